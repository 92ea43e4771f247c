#pragma once
// The general settings: six tabs of fields, options and check boxes, filled
// from GeneralVariables at load, worded from the legends, written to
// Brimo_Gene.lsp and Brimo.ini by OK.

#include "app/BrimoForm.h"
#include "dialogs/general/GeneralCaptions.h"
#include "dialogs/general/GeneralCommit.h"
#include "dialogs/general/GeneralLayout.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;

namespace brimo {

struct ProgramLocation;

class CGeneralForm : public BrimoForm {
    Q_OBJECT
public:
    explicit CGeneralForm(MainModule& module);

    void Form_Load() override;

protected:

private:
    // Event handlers, named after their controls.
    void SSTab1_Click();
    void Option5_Click(int index);
    void cmdOK_Click();
    void CmdCancel_Click();
    void Command7_Click();
    void cmdAbout_Click();
    // Command1_Click to Command6_Click: the file dialog on a location field.
    void ProgramLocation_Click(const ProgramLocation& location);

    void setCaptions(std::span<const CaptionRow> rows);
    void sweepTabs(std::span<const SweepStep> steps);
    GeneralControlState controlState() const;
    void refuseUnwritableQuote(const UnwritableField& field);
    void showTabOf(QWidget* control);

    QWidget* control(QAnyStringView name) const { return controls_.byName.value(name.toString()); }
    QLineEdit* textField(QAnyStringView name) const;
    QRadioButton* option(QAnyStringView name) const;
    QCheckBox* checkBox(QAnyStringView name) const;

    GeneralControls controls_;
};

} // namespace brimo
