#include "dialogs/about/CAboutForm.h"

namespace brimo {

CAboutForm::CAboutForm(MainModule& module) : BrimoForm(module) {
    setObjectName(QStringLiteral("CAboutForm"));
    setWindowTitle(QStringLiteral("About"));
}

} // namespace brimo
