#include "app/BrimoForm.h"

namespace brimo {

BrimoForm::BrimoForm(MainModule& module) : QDialog(nullptr), module_(module) {
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(false);
}

void BrimoForm::useFixedBorder() {
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
}

} // namespace brimo
