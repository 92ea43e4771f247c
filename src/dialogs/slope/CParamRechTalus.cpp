#include "dialogs/slope/CParamRechTalus.h"

namespace brimo {

CParamRechTalus::CParamRechTalus(MainModule& module) : BrimoForm(module) {
    setObjectName(QStringLiteral("CParamRechTalus"));
    setWindowTitle(QStringLiteral("Paramètre de recherche pied de talus"));
}

} // namespace brimo
