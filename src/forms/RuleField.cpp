#include "forms/RuleField.h"

#include "forms/BrimoForm.h"
#include "model/LegendNumbers.h"

#include <QFocusEvent>
#include <QStackedWidget>
#include <QTabWidget>

namespace brimo {

RuleField::RuleField(const FieldRule& rule, const LegendTable& legends, RefusalGuard& guard, QWidget* parent)
    : QLineEdit(parent), rule_(rule), legends_(legends), guard_(guard) {
    setObjectName(QString::fromLatin1(rule.control));
}

void RuleField::SelectAllOnEntry() { setSelection(0, static_cast<int>(text().size())); }

void RuleField::ValidateOnLeave() {
    const LeaveOutcome outcome = ApplyLeavingRule(rule_, text());
    if (outcome.text != text()) setText(outcome.text);
    if (!outcome.refused) return;

    guard_.underway = true;
    // The refusal is a box of the field's form.
    auto* form = qobject_cast<BrimoForm*>(window());
    const MessageBoxes boxes = form ? form->messageBoxes() : MessageBoxes();
    boxes.ShowInformationBox(legends_.GetLegends(Legend::RefusalText), legends_.GetLegends(Legend::RefusalTitle));
    bringForwardInTabs();
    setFocus(Qt::OtherFocusReason);
    guard_.underway = false;
}

// A field on a tab that is not showing cannot hold the focus: show its tab.
void RuleField::bringForwardInTabs() {
    for (QWidget* child = this; child && child->parentWidget(); child = child->parentWidget()) {
        auto* stack = qobject_cast<QStackedWidget*>(child->parentWidget());
        if (!stack) continue;
        if (auto* tabs = qobject_cast<QTabWidget*>(stack->parentWidget())) tabs->setCurrentWidget(child);
    }
}

void RuleField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    SelectAllOnEntry();
}

void RuleField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    // Only a move of the focus inside the window is a leave; a window that
    // goes to the background or a menu that opens is none.
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason) return;
    if (guard_.underway) return;
    ValidateOnLeave();
}

} // namespace brimo
