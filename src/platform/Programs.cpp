#include "platform/Programs.h"

#include "platform/WindowsPaths.h"

#include <QFileInfo>
#include <QProcess>

namespace brimo {

bool StartProgram(const QString& windowsPath) {
    const QString program = ToNativePath(windowsPath.trimmed());
    // A Windows program runs through Wine, which takes the prefix from the
    // same WINEPREFIX; where Wine cannot be started, the file is tried as is.
    if (program.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive) &&
        QProcess::startDetached(QStringLiteral("wine"), {program}))
        return true;
    return QProcess::startDetached(program, {});
}

bool FileExists(const QString& windowsPath) { return QFileInfo(ToNativePath(windowsPath)).isFile(); }

} // namespace brimo
