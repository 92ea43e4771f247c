#include "platform/WindowsPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace brimo {

namespace {
QString& chosenPrefix() {
    static QString prefix;
    return prefix;
}
} // namespace

void SetWinePrefix(const QString& prefix) { chosenPrefix() = prefix; }

QString WinePrefix() {
    if (!chosenPrefix().isEmpty()) return chosenPrefix();
    const QString prefix = qEnvironmentVariable("WINEPREFIX");
    if (!prefix.isEmpty()) return prefix;
    return qEnvironmentVariable("HOME") + QStringLiteral("/.wine");
}

QString GetWindowsFolder() { return QStringLiteral("C:\\windows"); }

QString MapWindowsPathText(const QString& windowsPath) {
    if (windowsPath.startsWith(QLatin1Char('/'))) return windowsPath;
    // Two backslashes in front name a network share; a path joined from an
    // empty folder ("\\Brimo.ini") is one too, and names nothing here.
    if (windowsPath.startsWith(QLatin1String("\\\\"))) return {};
    QString rest = windowsPath;
    QString head;
    if (rest.size() >= 2 && rest.at(1) == QLatin1Char(':') && rest.at(0).isLetter()) {
        head = WinePrefix() + QStringLiteral("/dosdevices/") + rest.at(0).toLower() + QLatin1Char(':');
        rest = rest.mid(2);
    }
    rest.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return head + rest;
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

QString ToNativePath(const QString& windowsPath) {
    const QString mapped = MapWindowsPathText(windowsPath);
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
