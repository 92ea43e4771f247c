#include "model/InstallInfo.h"

#include "platform/ProfileFile.h"
#include "platform/WindowsPaths.h"

namespace brimo {

QString ZorelIniPath() { return GetWindowsFolder() + QStringLiteral("\\zorel.ini"); }

void LoadInstallInfo(const WinePrefix& prefix, InstallInfo& info, Failure* failure) {
    info.prefix = prefix;
    const ProfileDocument ini = LoadProfile(prefix, ZorelIniPath(), failure);
    const struct {
        const char* section;
        const char* key;
        QString InstallInfo::*value;
    } reads[] = {
        {"Chemins", "Zorel", &InstallInfo::Zorel},
        {"Chemins", "Variables", &InstallInfo::Variables},
        {"Users", "actuel", &InstallInfo::actuel},
        {"VZorel", "No_version_Zorel", &InstallInfo::No_version_Zorel},
        {"VZorel", "No_version_acad", &InstallInfo::No_version_acad},
        {"VZorel", "No_serie_acad", &InstallInfo::No_serie_acad},
    };
    for (const auto& read : reads) {
        info.*read.value = ReadProfileString(ini, QString::fromLatin1(read.section), QString::fromLatin1(read.key));
        if (read.value == &InstallInfo::actuel && info.actuel == QLatin1String("Default")) info.actuel.clear();
    }
}

QString LegendFolder(const InstallInfo& info) { return info.Zorel + QStringLiteral("\\Lang\\"); }

static QString userFile(const InstallInfo& info, const char* name) {
    return info.Variables + QLatin1Char('\\') + info.actuel + QLatin1Char('\\') + QLatin1String(name);
}

QString BrimoIniPath(const InstallInfo& info) { return userFile(info, kUserFileNames[0]); }
QString GeneLispPath(const InstallInfo& info) { return userFile(info, kUserFileNames[1]); }
QString TalusLispPath(const InstallInfo& info) { return userFile(info, kUserFileNames[2]); }

} // namespace brimo
