#include "dialogs/drawing/CVarGlobale.h"

namespace brimo {

CVarGlobale::CVarGlobale(MainModule& module) : BrimoForm(module) {
    setObjectName(QStringLiteral("CVarGlobale"));
    setWindowTitle(QStringLiteral("Zorel2004 - Variables"));
}

} // namespace brimo
