#pragma once
// The slope-toe search dialog: eight parameters of the add-on's search,
// opened with the form's own values and written to Brimo_Talus.lsp and
// section Brimo_Talus of Brimo.ini by Command1, which ends the program.
// It is handed the installation settings (where the files lie), the legends
// of its refusal message, and the navigator for the about window and the end.

#include "forms/BrimoForm.h"
#include "forms/RuleField.h"
#include "forms/Navigator.h"
#include "model/InstallInfo.h"
#include "model/LegendTable.h"
#include "model/SlopeCommit.h"

class QStyle;

namespace brimo {

struct SlopeControl;

class CParamRechTalus : public BrimoForm {
    Q_OBJECT
public:
    CParamRechTalus(Navigator& navigator, const InstallInfo& info, const LegendTable& legends);

    void Form_Load() override;

    void Check1_Click();
    void Check2_Click();
    void Command1_Click();
    void CmdCancel_Click();
    void cmdAbout_Click();

    // What the commit reads of the controls.
    SlopeControlState ControlState() const;

private:
    QWidget* createControl(const SlopeControl& control, QWidget* parent);
    void showOfficeStandard();
    void drawSketches();
    void chainTabStops();
    void bindEvents();
    void untickOtherWhenTicked(const char* own, const char* other);
    template <class Control> Control* control(const char* name) const;

    Navigator& navigator_;
    const InstallInfo& info_;
    const LegendTable& legends_;
    RefusalGuard refusalGuard_;
    QStyle* frameStyle_ = nullptr;
};

} // namespace brimo
