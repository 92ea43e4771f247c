#pragma once
// Window kit (src/forms): what every form uses and nothing that knows a
// particular form; it sees the model and the platform.
//
// A text field with a rule: it selects its whole text when it receives the
// focus, and repairs or refuses its text when it loses it. A refusal shows
// legends 166 and 167 and puts the focus back on the field.

#include "model/FieldRules.h"
#include "model/LegendTable.h"

#include <QLineEdit>

namespace brimo {

// Shared by the fields of one form: while a refusal is shown and the focus
// put back, the other fields that lose the focus on the way do not run their
// rules; two fields holding bad texts would otherwise take the focus from
// each other without end.
struct RefusalGuard {
    bool underway = false;
};

class RuleField : public QLineEdit {
    Q_OBJECT
public:
    RuleField(const FieldRule& rule, const LegendTable& legends, RefusalGuard& guard, QWidget* parent = nullptr);

    const FieldRule& rule() const { return rule_; }

    void SelectAllOnEntry();
    void ValidateOnLeave();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void bringForwardInTabs();

    const FieldRule& rule_;
    const LegendTable& legends_;
    RefusalGuard& guard_;
};

} // namespace brimo
