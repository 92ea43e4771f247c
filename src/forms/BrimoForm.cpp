#include "forms/BrimoForm.h"

#include "forms/AccessibleNames.h"
#include "forms/OptionGroupKeys.h"

#include <QKeyEvent>

#include <algorithm>

namespace brimo {

BrimoForm::BrimoForm() : QDialog(nullptr) {
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(false);
}

void BrimoForm::useFixedBorder() {
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
}

QWidget* BrimoForm::chainTabOrder(std::vector<std::pair<int, QWidget*>> stops) {
    std::ranges::sort(stops, {}, &std::pair<int, QWidget*>::first);
    for (std::size_t i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1].second, stops[i].second);
    return stops.empty() ? nullptr : stops.front().second;
}

// No form of the program has a cancel button: Escape closes nothing.
void BrimoForm::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel)) return;
    QDialog::keyPressEvent(event);
}

void BrimoForm::showEvent(QShowEvent* event) {
    if (!groupKeysReady_) {
        UseOptionGroupKeys(this);
        NameControls(this);
    }
    groupKeysReady_ = true;
    QDialog::showEvent(event);
}

void BrimoForm::takeInNewControls() {
    if (groupKeysReady_) UseOptionGroupKeys(this);
}

} // namespace brimo
