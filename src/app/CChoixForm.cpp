#include "app/CChoixForm.h"

namespace brimo {

CChoixForm::CChoixForm(MainModule& module) : BrimoForm(module) {
    setObjectName(QStringLiteral("CChoixForm"));
    setWindowTitle(QStringLiteral("Choix du module"));
}

} // namespace brimo
