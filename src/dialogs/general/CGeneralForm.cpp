#include "dialogs/general/CGeneralForm.h"

namespace brimo {

CGeneralForm::CGeneralForm(MainModule& module) : BrimoForm(module) {
    setObjectName(QStringLiteral("CGeneralForm"));
    setWindowTitle(QStringLiteral("Général"));
}

} // namespace brimo
