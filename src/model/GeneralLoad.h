#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// What Form_Load of CGeneralForm copies from GeneralVariables into its
// controls: the texts of the fields, the option buttons that stored values
// select, and the states of the check boxes of the flags. The settings
// tool starts from the same controls, so that it writes what the dialog's OK
// writes right after opening.

#include "model/GeneralCommit.h"
#include "model/GeneralVariables.h"

#include <QStringList>

#include <optional>

namespace brimo {

// The option buttons to select, in the load's order: one for each key whose
// stored value matches a row of kGeneralChoices, none for a key that matches
// no row (its group then stays as the form was designed).
QStringList StoredSelections(const GeneralVariables& variables);

// The state (0 empty, 1 ticked, 2 grey) that a stored flag gives its check
// box: the value as a whole number. Nothing for a text that is no number or
// lies outside 0 to 2; the box then keeps its design state.
std::optional<int> StoredCheckState(const QString& stored);

// The controls as designed: empty fields and boxes, the design's buttons.
GeneralControlState DesignControlState();

// The controls as Form_Load leaves them: every field with the text form of
// its variable, each group with the button of its stored value (or of the
// design), each check box with its stored state (or empty).
GeneralControlState LoadedControlState(const GeneralVariables& variables);

// The option group of a button: "Option4" of "Option4(5)".
QString OptionGroupOf(const QString& button);

} // namespace brimo
