#include "support/ScratchPrefix.h"

#include "platform/Cp1252.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace brimo::test {

ScratchPrefix::ScratchPrefix() {
    hadPrevious_ = qEnvironmentVariableIsSet("WINEPREFIX");
    previous_ = qgetenv("WINEPREFIX");
    QDir(root()).mkpath(QStringLiteral("drive_c/windows"));
    QDir(root()).mkpath(QStringLiteral("dosdevices"));
    if (::symlink("../drive_c", QFile::encodeName(root() + QStringLiteral("/dosdevices/c:")).constData()) != 0)
        std::perror("ScratchPrefix: dosdevices/c:");
    qputenv("WINEPREFIX", QFile::encodeName(root()));
    // No office standard but the one a test writes beside the prefix.
    qputenv("BRIMO_STANDARD", QFile::encodeName(standardPath()));
}

ScratchPrefix::~ScratchPrefix() {
    if (hadPrevious_) qputenv("WINEPREFIX", previous_);
    else qunsetenv("WINEPREFIX");
    qunsetenv("BRIMO_STANDARD");
}

QString ScratchPrefix::native(const QString& windowsPath) const {
    QString rest = windowsPath;
    if (rest.size() >= 2 && rest.at(1) == QLatin1Char(':')) rest = QStringLiteral("drive_c") + rest.mid(2);
    rest.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return root() + QLatin1Char('/') + rest;
}

void ScratchPrefix::makeFolder(const QString& windowsPath) const { QDir().mkpath(native(windowsPath)); }

void ScratchPrefix::write(const QString& windowsPath, const QByteArray& bytes) const {
    const QString path = native(windowsPath);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) std::abort();
    file.write(bytes);
}

QByteArray ScratchPrefix::read(const QString& windowsPath) const {
    QFile file(native(windowsPath));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool ScratchPrefix::exists(const QString& windowsPath) const { return QFileInfo::exists(native(windowsPath)); }

void ScratchPrefix::writeZorelIni(const QString& zorel, const QString& variables, const QString& actuel) const {
    write(QStringLiteral("C:\\windows\\zorel.ini"),
          toCp1252(QStringLiteral("[Chemins]\r\nZorel=%1\r\nVariables=%2\r\n[Users]\r\nactuel=%3\r\n")
                       .arg(zorel, variables, actuel)));
}

QByteArray cp1252(const char* utf8) { return toCp1252(QString::fromUtf8(utf8)); }

} // namespace brimo::test
