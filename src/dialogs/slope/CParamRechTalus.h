#pragma once
// The slope-toe search dialog: eight parameters of the add-on's search,
// opened with the form's own values and written to Brimo_Talus.lsp and
// section Brimo_Talus of Brimo.ini by Command1, which ends the program.

#include "app/BrimoForm.h"
#include "dialogs/slope/SlopeCommit.h"

class QStyle;

namespace brimo {

struct SlopeControl;

class CParamRechTalus : public BrimoForm {
    Q_OBJECT
public:
    explicit CParamRechTalus(MainModule& module);

    void Form_Load() override;

    void Check1_Click();
    void Check2_Click();
    void Command1_Click();
    void CmdCancel_Click();
    void cmdAbout_Click();

    // What the commit reads of the controls.
    SlopeControlState ControlState() const;

protected:
    // Escape closes no window here: the form has no cancel button.

private:
    QWidget* createControl(const SlopeControl& control, QWidget* parent);
    void drawSketches();
    void chainTabStops();
    void bindEvents();
    void untickOtherWhenTicked(const char* own, const char* other);
    template <class Control> Control* control(const char* name) const;

    QStyle* frameStyle_ = nullptr;
};

} // namespace brimo
