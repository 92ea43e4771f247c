#include "platform/ProfileDocument.h"

#include "platform/Cp1252.h"

#include <algorithm>
#include <cstring>

namespace brimo {

bool isProfileBlank(unsigned char c) { return c == ' ' || (c >= 0x09 && c <= 0x0D) || c == 0x1A; }

namespace {

bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

unsigned char foldAscii(unsigned char c) { return c >= 'A' && c <= 'Z' ? static_cast<unsigned char>(c + 32) : c; }

// The end of the line that starts at or before `from`: its first CR or LF, or
// the end of the bytes. Two memchr passes are faster than one loop; they go
// by blocks so that a file whose lines end in CR alone is not read to its end
// for every line.
qsizetype lineEndOf(QByteArrayView bytes, qsizetype from) {
    constexpr qsizetype kBlock = 4096;
    const char* data = bytes.data();
    const qsizetype size = bytes.size();
    for (qsizetype pos = from; pos < size; pos += kBlock) {
        const qsizetype blockEnd = std::min(size, pos + kBlock);
        const void* lf = std::memchr(data + pos, '\n', static_cast<size_t>(blockEnd - pos));
        const qsizetype lfAt = lf ? static_cast<const char*>(lf) - data : blockEnd;
        if (const void* cr = std::memchr(data + pos, '\r', static_cast<size_t>(lfAt - pos)))
            return static_cast<const char*>(cr) - data;
        if (lf) return lfAt;
    }
    return size;
}

// The first byte of the next line: past one CR LF, CR or LF at `lineEnd`.
qsizetype nextLineOf(QByteArrayView bytes, qsizetype lineEnd) {
    if (lineEnd >= bytes.size()) return bytes.size();
    if (bytes[lineEnd] == '\r' && lineEnd + 1 < bytes.size() && bytes[lineEnd + 1] == '\n') return lineEnd + 2;
    return lineEnd + 1;
}

void trimRange(QByteArrayView bytes, qsizetype& b, qsizetype& e) {
    while (b < e && isProfileBlank(static_cast<unsigned char>(bytes[b]))) ++b;
    while (e > b && isProfileBlank(static_cast<unsigned char>(bytes[e - 1]))) --e;
}

QByteArrayView trimmed(QByteArrayView text) {
    qsizetype b = 0, e = text.size();
    trimRange(text, b, e);
    return text.sliced(b, e - b);
}

// A name or a value ends at a NUL byte.
qsizetype untilNul(QByteArrayView bytes, qsizetype b, qsizetype e) {
    const void* nul = std::memchr(bytes.data() + b, '\0', static_cast<size_t>(e - b));
    return nul ? static_cast<const char*>(nul) - bytes.data() : e;
}

// The parts of one line of a section's body, as offsets into `bytes`.
struct LineParts {
    bool blank = true;
    qsizetype nameBegin = 0, nameEnd = 0;
    qsizetype eq = -1;                        // the '=', or -1
    qsizetype valueBegin = -1, valueEnd = -1; // without blanks; cut at a NUL
    qsizetype contentEnd = 0;                 // the last byte that is no blank, plus one
};

LineParts partsOf(QByteArrayView bytes, qsizetype lineBegin, qsizetype lineEnd) {
    LineParts p;
    qsizetype b = lineBegin, e = lineEnd;
    trimRange(bytes, b, e);
    if (b >= e) return p;
    p.blank = false;
    p.contentEnd = e;
    p.nameBegin = b;
    const void* eq = std::memchr(bytes.data() + b, '=', static_cast<size_t>(e - b));
    qsizetype nameEnd = e;
    if (eq) {
        p.eq = static_cast<const char*>(eq) - bytes.data();
        nameEnd = p.eq;
        while (nameEnd > b && isProfileBlank(static_cast<unsigned char>(bytes[nameEnd - 1]))) --nameEnd;
        p.valueBegin = p.eq + 1;
        while (p.valueBegin < e && isProfileBlank(static_cast<unsigned char>(bytes[p.valueBegin]))) ++p.valueBegin;
        p.valueEnd = untilNul(bytes, p.valueBegin, e);
    }
    p.nameEnd = untilNul(bytes, b, nameEnd);
    return p;
}

} // namespace

bool profileNamesEqual(QByteArrayView stored, QByteArrayView wanted) {
    wanted = trimmed(wanted);
    if (stored.size() != wanted.size()) return false;
    for (qsizetype i = 0; i < stored.size(); ++i)
        if (foldAscii(static_cast<unsigned char>(stored[i])) != foldAscii(static_cast<unsigned char>(wanted[i])))
            return false;
    return true;
}

// An editor may save Brimo.ini or zorel.ini as UTF-8 with a byte-order mark.
// The profile functions of Windows then read the file as UTF-8 and write it
// back so, mark first; read as Windows-1252, the mark would hide the first
// section, and a write would add that section a second time.
ProfileDocument::ProfileDocument(QByteArray bytes)
    : bytes_(std::move(bytes)), utf8_(bytes_.startsWith("\xEF\xBB\xBF")) {}

QByteArray ProfileDocument::stored(QByteArrayView text) const {
    return utf8_ ? cp1252ToUtf8(text) : text.toByteArray();
}

QByteArray ProfileDocument::cp1252Of(qsizetype begin, qsizetype end) const {
    return utf8_ ? utf8ToCp1252(bytes_, begin, end) : bytes_.mid(begin, end - begin);
}

// Section headers are found by looking for '[' alone: a file of many MB is
// scanned at the speed of memchr, and only the lines that hold a '[' after
// nothing but blanks are looked at more closely.
void ProfileDocument::indexSections() const {
    if (indexed_) return;
    sections_.clear();
    const QByteArrayView bytes(bytes_);
    const char* data = bytes.data();
    const qsizetype size = bytes.size();
    const qsizetype begin = textBegin();
    qsizetype pos = begin;
    while (pos < size) {
        const void* hit = std::memchr(data + pos, '[', static_cast<size_t>(size - pos));
        if (!hit) break;
        const qsizetype bracket = static_cast<const char*>(hit) - data;
        qsizetype lineBegin = bracket;
        while (lineBegin > begin && !isLineEnd(data[lineBegin - 1]) &&
               isProfileBlank(static_cast<unsigned char>(data[lineBegin - 1])))
            --lineBegin;
        const qsizetype lineEnd = lineEndOf(bytes, bracket);
        pos = nextLineOf(bytes, lineEnd);
        if (lineBegin > begin && !isLineEnd(data[lineBegin - 1])) continue; // a '[' inside a line
        qsizetype b = bracket, e = lineEnd;
        trimRange(bytes, b, e);
        const char* close = static_cast<const char*>(memrchr(data + b, ']', static_cast<size_t>(e - b)));
        if (!close) continue;
        if (!sections_.empty()) sections_.back().bodyEnd = lineBegin;
        Section s;
        s.nameBegin = b + 1;
        s.nameEnd = close - data;
        trimRange(bytes, s.nameBegin, s.nameEnd);
        s.nameEnd = untilNul(bytes, s.nameBegin, s.nameEnd);
        s.bodyBegin = pos;
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

QList<QByteArray> ProfileDocument::keyNames(QByteArrayView section) const {
    QList<QByteArray> names;
    const Section* found = findSection(stored(section));
    if (!found) return names;
    for (const Key& key : keysOf(*found))
        if (key.valueBegin >= 0) names.append(cp1252Of(key.nameBegin, key.nameEnd));
    return names;
}

std::vector<ProfileDocument::Key> ProfileDocument::keysOf(const Section& section) const {
    std::vector<Key> keys;
    const QByteArrayView bytes(bytes_);
    qsizetype lineBegin = section.bodyBegin;
    while (lineBegin < section.bodyEnd) {
        const qsizetype lineEnd = lineEndOf(bytes, lineBegin);
        const LineParts p = partsOf(bytes, lineBegin, lineEnd);
        if (!p.blank) keys.push_back({p.nameBegin, p.nameEnd, p.valueBegin, p.valueEnd});
        lineBegin = nextLineOf(bytes, lineEnd);
    }
    return keys;
}

QByteArray ProfileDocument::getString(QByteArrayView section, QByteArrayView ansiKey, int bufferSize) const {
    if (bufferSize <= 0 || trimmed(ansiKey).isEmpty()) return {};
    const QByteArray key = stored(ansiKey);
    const Section* s = findSection(stored(section));
    if (!s) return {};
    const qsizetype sectionIndex = s - sections_.data();
    if (lastKeysOf_ != sectionIndex) {
        lastKeys_ = keysOf(*s);
        lastKeysOf_ = sectionIndex;
    }
    for (const Key& k : lastKeys_) {
        if (!profileNamesEqual(QByteArrayView(bytes_).sliced(k.nameBegin, k.nameEnd - k.nameBegin), key)) continue;
        if (k.valueBegin < 0) return {};
        // The quotes and the buffer apply to the characters, not to the
        // bytes of a UTF-8 file.
        const QByteArray text = cp1252Of(k.valueBegin, k.valueEnd);
        QByteArrayView value(text);
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

bool ProfileDocument::setStrings(QByteArrayView ansiSection, const QList<KeyValue>& keyValues) {
    const QByteArray sectionName = stored(trimmed(ansiSection));
    if (sectionName.isEmpty() || keyValues.isEmpty()) return false;
    const Section* found = findSection(sectionName);

    // The section's body is small: edit it as a list of lines, each with its
    // own line end, then splice it back into the file in one copy.
    QByteArray header;
    qsizetype spliceBegin, spliceEnd;
    QList<QByteArray> lines;
    if (found) {
        spliceBegin = found->bodyBegin;
        spliceEnd = found->bodyEnd;
        if (!found->headerHasLineEnd) header = "\r\n";
        const QByteArrayView bytes(bytes_);
        qsizetype lineBegin = spliceBegin;
        while (lineBegin < spliceEnd) {
            const qsizetype next = std::min(nextLineOf(bytes, lineEndOf(bytes, lineBegin)), spliceEnd);
            lines.append(bytes_.sliced(lineBegin, next - lineBegin));
            lineBegin = next;
        }
    } else {
        spliceBegin = spliceEnd = bytes_.size();
        if (bytes_.size() > textBegin() && !isLineEnd(bytes_.back())) header = "\r\n";
        header += '[' + sectionName + "]\r\n";
    }

    bool changed = !found;
    for (const KeyValue& kv : keyValues) {
        const QByteArray key = stored(trimmed(kv.first));
        const QByteArray value = stored(trimmed(kv.second));

        qsizetype lastContent = -1;
        bool replaced = false;
        for (qsizetype i = 0; i < lines.size() && !replaced; ++i) {
            const QByteArray& line = lines[i];
            const LineParts p = partsOf(line, 0, lineEndOf(line, 0));
            if (p.blank) continue;
            lastContent = i;
            if (!profileNamesEqual(QByteArrayView(line).sliced(p.nameBegin, p.nameEnd - p.nameBegin), key)) continue;
            replaced = true;
            if (p.eq >= 0) {
                if (QByteArrayView(line).sliced(p.valueBegin, p.valueEnd - p.valueBegin) == value) break;
                lines[i] = line.first(p.valueBegin) + value + line.sliced(p.contentEnd);
            } else {
                lines[i] = line.first(p.contentEnd) + '=' + value + line.sliced(p.contentEnd);
            }
            changed = true;
        }
        if (replaced) continue;

        const QByteArray newLine = key + '=' + value + "\r\n";
        if (lastContent >= 0 && !isLineEnd(lines[lastContent].back())) lines[lastContent] += "\r\n";
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
