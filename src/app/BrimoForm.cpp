#include "app/BrimoForm.h"

#include <QKeyEvent>

namespace brimo {

BrimoForm::BrimoForm(MainModule& module) : QDialog(nullptr), module_(module) {
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(false);
}

void BrimoForm::useFixedBorder() {
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
}

void BrimoForm::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel)) return;
    QDialog::keyPressEvent(event);
}

} // namespace brimo
