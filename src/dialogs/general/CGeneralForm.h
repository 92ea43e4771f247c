#pragma once
// The general settings: six tabs of fields, options and check boxes, filled
// from GeneralVariables at load, worded from the legends, written to
// Brimo_Gene.lsp and Brimo.ini by OK. It is handed the installation
// settings, the general variables it loads (and whose x_lang the language
// switch changes), the same as Brimo.ini held them, the legends it reads and reloads with the question of a
// failed load, and the navigator for the other forms and the end.

#include "dialogs/general/GeneralCaptions.h"
#include "dialogs/general/GeneralLayout.h"
#include "forms/BrimoForm.h"
#include "forms/Navigator.h"
#include "forms/RuleField.h"
#include "model/GeneralCommit.h"
#include "model/GeneralVariables.h"
#include "model/InstallInfo.h"
#include "model/LegendTable.h"

#include <optional>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace brimo {

struct ProgramLocation;

class CGeneralForm : public BrimoForm {
    Q_OBJECT
public:
    CGeneralForm(Navigator& navigator, const InstallInfo& info, GeneralVariables& variables,
                 const GeneralVariables& stored, LegendTable& legends, LegendFailureQuestion& legendQuestion);

    void Form_Load() override;

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

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

    void buildTab(int tab);
    void setCaptions(std::span<const CaptionRow> rows);
    void sweepTabs(std::span<const SweepStep> steps);
    GeneralControlState controlState() const;
    void showControlState(const GeneralControlState& state);
    void putState(const GeneralControlState& state, std::optional<int> tab);
    void refuseUnwritableQuote(const UnwritableField& field);
    void showTabOf(QWidget* control);
    void showLockedKeys();

    Navigator& navigator_;
    const InstallInfo& info_;
    GeneralVariables& variables_;
    const GeneralVariables& stored_;
    LegendTable& legends_;
    LegendFailureQuestion& legendQuestion_;
    RefusalGuard refusalGuard_;
    GeneralControls controls_;
    // The controls that the form reads and writes, resolved as they are built.
    QPushButton *cmdOK_, *CmdCancel_, *Command7_, *cmdAbout_;
    QHash<QString, QLineEdit*> fields_;
    QHash<QString, QRadioButton*> options_;
    QHash<QString, QCheckBox*> checkBoxes_;
    // What the form last showed and worded, which a control built later takes.
    GeneralControlState shown_;
    QHash<QString, QString> captions_;
    bool sweeping_ = false;      // the tabs pass by: their captions change in turn
    bool showingState_ = false;  // the form, not a user, selects the buttons
    bool restBuilding_ = false;  // the tabs not looked at are being built
    GeneralVariables loadedFrom_;
    GeneralControlState loaded_;
};

} // namespace brimo
