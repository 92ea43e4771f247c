#pragma once
// A text field with a rule: it selects its whole text when it receives the
// focus, and repairs or refuses its text when it loses it. A refusal shows
// legends 166 and 167 and puts the focus back on the field.

#include "dialogs/general/FieldRules.h"

#include <QLineEdit>

namespace brimo {

class MainModule;

class RuleField : public QLineEdit {
    Q_OBJECT
public:
    RuleField(const FieldRule& rule, MainModule& module, QWidget* parent = nullptr);

    const FieldRule& rule() const { return rule_; }

    void SelectAllOnEntry();
    void ValidateOnLeave();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void bringForwardInTabs();

    const FieldRule& rule_;
    MainModule& module_;
};

} // namespace brimo
