#include "dialogs/general/ProgramLocations.h"

#include "platform/WindowsPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace brimo {

QString ToolkitFileFilter(const QString& windowsFilter) {
    const QStringList parts = windowsFilter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts.at(i + 1).split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (QString& pattern : patterns) pattern = pattern.trimmed();
        patterns.removeAll(QString());
        if (patterns.isEmpty()) continue;
        const QString group = QLatin1Char('(') + patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
        const QString label = parts.at(i).trimmed();
        if (label.endsWith(group)) filters.append(label);
        else if (label.isEmpty()) filters.append(group);
        else filters.append(label + QLatin1Char(' ') + group);
    }
    return filters.join(QStringLiteral(";;"));
}

namespace {

QString withBackslashes(QString rest) {
    if (rest.isEmpty()) rest = QStringLiteral("/");
    return rest.replace(QLatin1Char('/'), QLatin1Char('\\'));
}

// The Windows text of a native path inside the drives of `prefix`, or empty.
QString windowsTextInside(const QString& path, const QString& prefix) {
    const QString driveC = prefix + QStringLiteral("/drive_c");
    if (path == driveC || path.startsWith(driveC + QLatin1Char('/')))
        return QStringLiteral("C:") + withBackslashes(path.mid(driveC.size()));

    const QString devices = prefix + QStringLiteral("/dosdevices/");
    if (!path.startsWith(devices)) return {};
    const QString rest = path.mid(devices.size());
    const bool isDrive = rest.size() >= 2 && rest.at(0).isLetter() && rest.at(1) == QLatin1Char(':') &&
                         (rest.size() == 2 || rest.at(2) == QLatin1Char('/'));
    if (!isDrive) return {};
    return rest.at(0).toUpper() + QStringLiteral(":") + withBackslashes(rest.mid(2));
}

// A path as given and, where it exists, with its links resolved.
QStringList spellingsOf(const QString& path) {
    QStringList spellings{QDir::cleanPath(path)};
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (!canonical.isEmpty() && !spellings.contains(canonical)) spellings.append(canonical);
    return spellings;
}

} // namespace

QString FieldTextForChosenFile(const WinePrefix& prefix, const QString& nativePath) {
    const QStringList prefixes = spellingsOf(prefix.folder);
    for (const QString& path : spellingsOf(nativePath))
        for (const QString& folder : prefixes) {
            const QString text = windowsTextInside(path, folder);
            if (!text.isEmpty()) return text;
        }
    return nativePath;
}

} // namespace brimo
