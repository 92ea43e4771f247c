#include "platform/ProfileDocument.h"

#include "platform/Cp1252.h"

#include <cstring>

namespace brimo {

bool isProfileBlank(unsigned char c) {
    return c == ' ' || (c >= 0x09 && c <= 0x0D) || c == 0x1A || c == 0xA0;
}

namespace {

QByteArrayView trimmed(QByteArrayView text) {
    qsizetype b = 0, e = text.size();
    while (b < e && isProfileBlank(static_cast<unsigned char>(text[b]))) ++b;
    while (e > b && isProfileBlank(static_cast<unsigned char>(text[e - 1]))) --e;
    return text.sliced(b, e - b);
}

qsizetype lineEndOf(const QByteArray& bytes, qsizetype from) {
    const void* hit = std::memchr(bytes.constData() + from, '\n', static_cast<size_t>(bytes.size() - from));
    return hit ? static_cast<const char*>(hit) - bytes.constData() : bytes.size();
}

// The content of a line without its surrounding blanks (CR and LF included).
void trimRange(const QByteArray& bytes, qsizetype& b, qsizetype& e) {
    while (b < e && isProfileBlank(static_cast<unsigned char>(bytes[b]))) ++b;
    while (e > b && isProfileBlank(static_cast<unsigned char>(bytes[e - 1]))) --e;
}

} // namespace

bool profileNamesEqual(QByteArrayView stored, QByteArrayView wanted) {
    wanted = trimmed(wanted);
    if (stored.size() != wanted.size()) return false;
    for (qsizetype i = 0; i < stored.size(); ++i)
        if (foldCp1252(static_cast<unsigned char>(stored[i])) != foldCp1252(static_cast<unsigned char>(wanted[i])))
            return false;
    return true;
}

ProfileDocument::ProfileDocument(QByteArray bytes) : bytes_(std::move(bytes)) {}

// Section headers are found by looking for '[' alone: a file of many MB is
// scanned at the speed of memchr, and only the lines that hold a '[' after
// nothing but blanks are looked at more closely.
void ProfileDocument::indexSections() const {
    if (indexed_) return;
    sections_.clear();
    const char* data = bytes_.constData();
    const qsizetype size = bytes_.size();
    qsizetype pos = 0;
    while (pos < size) {
        const void* hit = std::memchr(data + pos, '[', static_cast<size_t>(size - pos));
        if (!hit) break;
        const qsizetype bracket = static_cast<const char*>(hit) - data;
        qsizetype lineBegin = bracket;
        while (lineBegin > 0 && data[lineBegin - 1] != '\n' && isProfileBlank(static_cast<unsigned char>(data[lineBegin - 1])))
            --lineBegin;
        const qsizetype lineEnd = lineEndOf(bytes_, bracket);
        pos = lineEnd + 1;
        if (lineBegin > 0 && data[lineBegin - 1] != '\n') continue; // a '[' inside a line
        qsizetype b = bracket, e = lineEnd;
        trimRange(bytes_, b, e);
        const char* close = static_cast<const char*>(memrchr(data + b, ']', static_cast<size_t>(e - b)));
        if (!close) continue;
        if (!sections_.empty()) sections_.back().bodyEnd = lineBegin;
        Section s;
        s.nameBegin = b + 1;
        s.nameEnd = close - data;
        s.bodyBegin = lineEnd < size ? lineEnd + 1 : size;
        s.headerHasLineEnd = lineEnd < size;
        s.bodyEnd = size;
        sections_.push_back(s);
    }
    indexed_ = true;
}

const ProfileDocument::Section* ProfileDocument::findSection(QByteArrayView name) const {
    indexSections();
    if (trimmed(name).isEmpty()) return nullptr;
    // A load reads many keys of one section: remember the last one found.
    if (lastSection_ >= 0 && lastSectionName_ == name) return &sections_[static_cast<size_t>(lastSection_)];
    for (const Section& s : sections_) {
        if (s.nameEnd == s.nameBegin) continue;
        if (profileNamesEqual(QByteArrayView(bytes_).sliced(s.nameBegin, s.nameEnd - s.nameBegin), name)) {
            lastSection_ = &s - sections_.data();
            lastSectionName_ = name.toByteArray();
            return &s;
        }
    }
    return nullptr;
}

std::vector<ProfileDocument::Key> ProfileDocument::keysOf(const Section& section) const {
    std::vector<Key> keys;
    qsizetype lineBegin = section.bodyBegin;
    while (lineBegin < section.bodyEnd) {
        const qsizetype lineEnd = lineEndOf(bytes_, lineBegin);
        qsizetype b = lineBegin, e = lineEnd;
        trimRange(bytes_, b, e);
        if (b < e) {
            Key k;
            k.nameBegin = b;
            k.nameEnd = e;
            const char* eq = static_cast<const char*>(std::memchr(bytes_.constData() + b, '=', static_cast<size_t>(e - b)));
            if (eq) {
                const qsizetype at = eq - bytes_.constData();
                k.nameEnd = at;
                while (k.nameEnd > b && isProfileBlank(static_cast<unsigned char>(bytes_[k.nameEnd - 1]))) --k.nameEnd;
                k.valueBegin = at + 1;
                k.valueEnd = e;
                while (k.valueBegin < e && isProfileBlank(static_cast<unsigned char>(bytes_[k.valueBegin]))) ++k.valueBegin;
            }
            keys.push_back(k);
        }
        lineBegin = lineEnd + 1;
    }
    return keys;
}

QByteArray ProfileDocument::getString(QByteArrayView section, QByteArrayView key, int bufferSize) const {
    if (bufferSize <= 0 || trimmed(key).isEmpty()) return {};
    const Section* s = findSection(section);
    if (!s) return {};
    const qsizetype sectionIndex = s - sections_.data();
    if (lastKeysOf_ != sectionIndex) {
        lastKeys_ = keysOf(*s);
        lastKeysOf_ = sectionIndex;
    }
    for (const Key& k : lastKeys_) {
        if (!profileNamesEqual(QByteArrayView(bytes_).sliced(k.nameBegin, k.nameEnd - k.nameBegin), key)) continue;
        if (k.valueBegin < 0) return {};
        QByteArrayView value = QByteArrayView(bytes_).sliced(k.valueBegin, k.valueEnd - k.valueBegin);
        // One pair of quotes goes; when the buffer cuts the value, the closing
        // quote is cut with it and the last character kept is dropped instead.
        bool quoted = false;
        if (value.size() >= 2 && (value[0] == '"' || value[0] == '\'') && value.back() == value[0]) {
            quoted = true;
            value = value.sliced(1);
        }
        QByteArray out = value.first(std::min<qsizetype>(value.size(), bufferSize - 1)).toByteArray();
        if (quoted && bufferSize >= value.size() && !out.isEmpty()) out.chop(1);
        return out;
    }
    return {};
}

bool ProfileDocument::setString(QByteArrayView section, QByteArrayView key, QByteArrayView value) {
    return setStrings(section, {{key.toByteArray(), value.toByteArray()}});
}

bool ProfileDocument::setStrings(QByteArrayView sectionName, const QList<KeyValue>& keyValues) {
    if (trimmed(sectionName).isEmpty() || keyValues.isEmpty()) return false;
    const Section* found = findSection(sectionName);

    // The section's body is small: edit it as a list of lines, then splice it
    // back into the file in one copy.
    QByteArray header;
    qsizetype spliceBegin, spliceEnd;
    QList<QByteArray> lines;
    if (found) {
        spliceBegin = found->bodyBegin;
        spliceEnd = found->bodyEnd;
        if (!found->headerHasLineEnd) header = "\r\n";
        qsizetype lineBegin = spliceBegin;
        while (lineBegin < spliceEnd) {
            const qsizetype lineEnd = std::min(lineEndOf(bytes_, lineBegin), spliceEnd);
            const qsizetype next = lineEnd < spliceEnd ? lineEnd + 1 : spliceEnd;
            lines.append(bytes_.sliced(lineBegin, next - lineBegin));
            lineBegin = next;
        }
    } else {
        spliceBegin = spliceEnd = bytes_.size();
        if (!bytes_.isEmpty()) header = bytes_.endsWith('\n') ? "\r\n" : "\r\n\r\n";
        QByteArrayView name = sectionName;
        while (!name.isEmpty() && isProfileBlank(static_cast<unsigned char>(name[0]))) name = name.sliced(1);
        header += '[' + name.toByteArray() + "]\r\n";
    }

    bool changed = !found;
    for (const KeyValue& kv : keyValues) {
        QByteArrayView value = kv.second;
        while (!value.isEmpty() && isProfileBlank(static_cast<unsigned char>(value[0]))) value = value.sliced(1);

        qsizetype lastContent = -1;
        bool replaced = false;
        for (qsizetype i = 0; i < lines.size() && !replaced; ++i) {
            const QByteArray& line = lines[i];
            qsizetype b = 0, e = line.size();
            trimRange(line, b, e);
            if (b >= e) continue;
            lastContent = i;
            const qsizetype eq = line.indexOf('=', b);
            const bool hasValue = eq >= 0 && eq < e;
            qsizetype nameEnd = hasValue ? eq : e;
            while (nameEnd > b && isProfileBlank(static_cast<unsigned char>(line[nameEnd - 1]))) --nameEnd;
            if (!profileNamesEqual(QByteArrayView(line).sliced(b, nameEnd - b), kv.first)) continue;
            replaced = true;
            if (hasValue) {
                qsizetype vb = eq + 1;
                while (vb < e && isProfileBlank(static_cast<unsigned char>(line[vb]))) ++vb;
                if (QByteArrayView(line).sliced(vb, e - vb) == value) break;
                lines[i] = line.first(vb) + value.toByteArray() + line.sliced(e);
            } else {
                lines[i] = line.first(e) + '=' + value.toByteArray() + line.sliced(e);
            }
            changed = true;
        }
        if (replaced) continue;

        QByteArrayView keyName = kv.first;
        while (!keyName.isEmpty() && isProfileBlank(static_cast<unsigned char>(keyName[0]))) keyName = keyName.sliced(1);
        const QByteArray newLine = keyName.toByteArray() + '=' + value.toByteArray() + "\r\n";
        if (lastContent >= 0 && !lines[lastContent].endsWith('\n')) lines[lastContent] += "\r\n";
        lines.insert(lastContent + 1, newLine);
        changed = true;
    }
    if (!changed) return false;

    QByteArray body = header;
    for (const QByteArray& line : lines) body += line;
    QByteArray out;
    out.reserve(bytes_.size() + body.size());
    out.append(QByteArrayView(bytes_).first(spliceBegin));
    out.append(body);
    out.append(QByteArrayView(bytes_).sliced(spliceEnd));
    bytes_ = std::move(out);
    indexed_ = false;
    lastSection_ = -1;
    lastKeysOf_ = -1;
    return true;
}

} // namespace brimo
