#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// Where the add-on lies, where its variable files lie, who the user is, and
// which versions are installed: six texts read once from zorel.ini; and the
// office standard in force, read by whoever starts.

#include "platform/Failure.h"
#include "platform/WindowsPaths.h"

#include <QString>

#include <array>
#include <memory>

namespace brimo {

struct OfficeStandard;

struct InstallInfo {
    WinePrefix prefix;        // where the Windows drives of these paths lie
    QString Zorel;            // [Chemins] Zorel: install folder of the add-on
    QString Variables;        // [Chemins] Variables: root of the variable files
    QString actuel;           // [Users] actuel: current user; "Default" is held as ""
    QString No_version_Zorel; // [VZorel]: displayed only
    QString No_version_acad;  // [VZorel]: displayed only
    QString No_serie_acad;    // [VZorel]: displayed only
    std::shared_ptr<const OfficeStandard> standard; // none: the program's defaults alone
};

// Reads the six values, in their order, from GetWindowsFolder() + "\zorel.ini"
// in `prefix`, which the paths joined from them lie in too.
// A zorel.ini that is there but cannot be read reads as a missing one and
// sets `failure` (see LoadProfile).
void LoadInstallInfo(const WinePrefix& prefix, InstallInfo& info, Failure* failure = nullptr);

// Paths joined by plain concatenation: no separator is tested or added.
QString ZorelIniPath();
QString LegendFolder(const InstallInfo& info);   // Zorel + "\Lang\"
QString BrimoIniPath(const InstallInfo& info);   // Variables + "\" + actuel + "\Brimo.ini"
QString GeneLispPath(const InstallInfo& info);   // ... + "\Brimo_Gene.lsp"
QString TalusLispPath(const InstallInfo& info);  // ... + "\Brimo_Talus.lsp"

// The names of the files of a user's folder that commits write.
inline constexpr std::array<const char*, 3> kUserFileNames = {"Brimo.ini", "Brimo_Gene.lsp", "Brimo_Talus.lsp"};

} // namespace brimo
