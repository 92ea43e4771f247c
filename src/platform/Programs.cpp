#include "platform/Programs.h"

#include "platform/WindowsPaths.h"

#include <QFileInfo>
#include <QProcess>

namespace brimo {

bool StartProgram(const WinePrefix& prefix, const QString& windowsPath) {
    const QString program = ToNativePath(prefix, windowsPath.trimmed());
    // A Windows program runs through Wine in the same prefix; where Wine
    // cannot be started, the file is tried as is.
    if (program.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive)) {
        QProcess wine;
        wine.setProgram(QStringLiteral("wine"));
        wine.setArguments({program});
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("WINEPREFIX"), prefix.folder);
        wine.setProcessEnvironment(environment);
        if (wine.startDetached()) return true;
    }
    return QProcess::startDetached(program, {});
}

bool FileExists(const WinePrefix& prefix, const QString& windowsPath) {
    return QFileInfo(ToNativePath(prefix, windowsPath)).isFile();
}

} // namespace brimo
