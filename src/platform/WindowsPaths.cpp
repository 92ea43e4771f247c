#include "platform/WindowsPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>

#include <fcntl.h>

namespace brimo {

WinePrefix WinePrefix::FromEnvironment() {
    const QByteArray prefix = qgetenv("WINEPREFIX");
    if (!prefix.isEmpty()) return FromText(DecodeNativeText(prefix));
    return FromText(DecodeNativeText(qgetenv("HOME") + "/.wine"));
}

namespace {

constexpr char16_t kEscapedByte = 0xDC00;
bool isEscapedByte(QChar c) { return c.unicode() >= kEscapedByte + 0x80 && c.unicode() <= kEscapedByte + 0xFF; }

// The length of the whole UTF-8 character at the start of `bytes`, or 0:
// what decodes and encodes back alike (no stray continuation byte, no
// overlong form, no surrogate).
qsizetype utf8Length(QByteArrayView bytes) {
    const auto lead = static_cast<unsigned char>(bytes[0]);
    const qsizetype length = lead < 0x80 ? 1 : lead >= 0xC2 && lead <= 0xDF ? 2 : (lead & 0xF0) == 0xE0 ? 3 : lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
    if (length == 0 || length > bytes.size()) return 0;
    const QByteArrayView one = bytes.first(length);
    return QString::fromUtf8(one).toUtf8() == one ? length : 0;
}

} // namespace

QString DecodeNativeText(QByteArrayView bytes) {
    QString text;
    qsizetype plain = 0, i = 0;
    while (i < bytes.size()) {
        if (const qsizetype length = utf8Length(bytes.sliced(i))) {
            i += length;
            continue;
        }
        text += QString::fromUtf8(bytes.sliced(plain, i - plain)) + QChar(kEscapedByte + static_cast<unsigned char>(bytes[i]));
        plain = ++i;
    }
    return text + QString::fromUtf8(bytes.sliced(plain));
}

QByteArray EncodeNativeText(const QString& text) {
    QByteArray bytes;
    qsizetype plain = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i < text.size() && !isEscapedByte(text[i])) continue;
        bytes += text.mid(plain, i - plain).toUtf8();
        if (i < text.size()) bytes += static_cast<char>(text[i].unicode() - kEscapedByte);
        plain = i + 1;
    }
    return bytes;
}

WinePrefix WinePrefix::FromText(const QString& text) {
    if (std::none_of(text.begin(), text.end(), isEscapedByte)) return {text, {}};
    QString shown;
    for (const QChar c : text)
        shown += isEscapedByte(c) ? QStringLiteral("\\x") + QString::number(c.unicode() - kEscapedByte, 16).toUpper() : QString(c);
    // Kept open for the life of the process: the prefix is a value that any
    // later step may use.
    const int fd = ::open(EncodeNativeText(text).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return {shown, shown}; // no such folder, and messages say so by its shown name
    return {QStringLiteral("/proc/self/fd/%1").arg(fd), shown};
}

QString GetWindowsFolder() { return QStringLiteral("C:\\windows"); }

QString DriveFolder(const WinePrefix& prefix, QChar letter) {
    return prefix.folder + QStringLiteral("/dosdevices/") + letter.toLower() + QLatin1Char(':');
}

QString MapWindowsPathText(const WinePrefix& prefix, const QString& windowsPath) {
    if (windowsPath.isEmpty()) return {};
    QString path = windowsPath;
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    // Two separators in front name a network share; a path joined from an
    // empty folder ("\\Brimo.ini") is one too, and names nothing here.
    if (path.startsWith(QLatin1String("//"))) return {};
    // A drive letter is one of A to Z; without one the path lies on the
    // current drive, C:, whose current folder is its root.
    const QChar first = path.at(0);
    const bool drive = path.size() >= 2 && path.at(1) == QLatin1Char(':') && first.unicode() < 128 && first.isLetter();
    const QString head = DriveFolder(prefix, drive ? first : QLatin1Char('c'));
    QStringView rest = QStringView(path).mid(drive ? 2 : 0);
    if (rest.startsWith(QLatin1Char('/'))) rest = rest.mid(1);

    // "." and ".." as Windows resolves them: ".." takes back the last name
    // and stops at the root of the drive. Doubled separators stay.
    QList<QStringView> names;
    for (QStringView name : rest.split(QLatin1Char('/'))) {
        if (name == u".") continue;
        if (name == u"..") {
            while (!names.isEmpty() && names.last().isEmpty()) names.removeLast();
            if (!names.isEmpty()) names.removeLast();
            continue;
        }
        names.append(name);
    }
    QString mapped = head;
    for (QStringView name : names) {
        mapped += QLatin1Char('/');
        mapped += name;
    }
    if (names.isEmpty()) mapped += QLatin1Char('/');
    return mapped;
}

namespace {

// Finds `name` in `folder` without regard to case; empty when absent.
QString findIgnoringCase(const QString& folder, const QString& name) {
    const QDir dir(folder.isEmpty() ? QStringLiteral("/") : folder);
    const QStringList entries = dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString& entry : entries)
        if (entry.compare(name, Qt::CaseInsensitive) == 0) return entry;
    return {};
}

} // namespace

QString ToNativePath(const WinePrefix& prefix, const QString& windowsPath) {
    const QString mapped = MapWindowsPathText(prefix, windowsPath);
    if (mapped.isEmpty() || QFileInfo::exists(mapped)) return mapped;

    // Walk the components and repair the spelling of those that differ only
    // in case. Empty components (doubled separators) are kept as they are.
    const QStringList parts = mapped.split(QLatin1Char('/'));
    QString built;
    bool missing = false;
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const QString& part = parts.at(i);
        QString piece = part;
        if (!missing && !part.isEmpty() && part != QLatin1String(".") && part != QLatin1String("..")) {
            const QString candidate = (i == 0 ? QString() : built + QLatin1Char('/')) + part;
            if (!QFileInfo::exists(candidate)) {
                const QString found = findIgnoringCase(i == 0 ? QString(".") : built, part);
                if (found.isEmpty()) missing = true;
                else piece = found;
            }
        }
        built = (i == 0) ? piece : built + QLatin1Char('/') + piece;
    }
    return built;
}

} // namespace brimo
