#include "platform/WindowsPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace brimo {

WinePrefix WinePrefix::FromEnvironment() {
    const QString prefix = qEnvironmentVariable("WINEPREFIX");
    if (!prefix.isEmpty()) return {prefix};
    return {qEnvironmentVariable("HOME") + QStringLiteral("/.wine")};
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
