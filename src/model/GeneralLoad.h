#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// What Form_Load of CGeneralForm copies from GeneralVariables into its
// controls: the text fields in their order of filling, the option buttons
// that stored values select, and the states of the check boxes of the flags. The settings
// tool starts from the same controls, so that it writes what the dialog's OK
// writes right after opening.

#include "model/GeneralCommit.h"
#include "model/GeneralVariables.h"

#include <QStringList>

#include <array>
#include <optional>

namespace brimo {

// The text fields in the order in which the load fills them.
inline constexpr std::array<const char*, 44> kLoadedTextFields = {
    "Val0",   "Val1",   "Val2",   "Val3",   "Val4",   "Val5",   "Val6",   "Val7",   "Val8",
    "Val9",   "Val10",  "Val11",  "Val12",  "Val13",  "Val14",  "Val15",  "Val16",  "Val17",
    "Val18",  "Val19",  "Val20",  "Text1",  "Text20", "Text21", "Text22", "Text23", "Text24",
    "Text25", "Text26", "Text2",  "Text4",  "Text19", "Text5",  "Text6",  "Text7",  "Text8",
    "Text9",  "Text10", "Text11", "Text12", "Text13", "Text14", "Text18", "Text15",
};

// Every text field is filled, and nothing else.
constexpr bool loadFillsTheTextFields() {
    std::size_t texts = 0;
    for (const GeneralVariableRow& row : kGeneralVariableCatalogue) {
        if (ReadOf(row.type) != ControlRead::Text) continue;
        ++texts;
        int filled = 0;
        for (const char* field : kLoadedTextFields) filled += SameName(field, row.field);
        if (filled != 1) return false;
    }
    return texts == kLoadedTextFields.size();
}
static_assert(loadFillsTheTextFields());

// The option buttons to select, in the load's order: one for each key whose
// stored value matches a row of kGeneralChoices, none for a key that matches
// no row (its group then stays as the form was designed).
QStringList StoredSelections(const GeneralVariables& variables);

// The state (0 empty, 1 ticked, 2 grey) that a stored flag gives its check
// box: the value as a whole number. Nothing for a text that is no number or
// lies outside 0 to 2; the box then keeps its design state.
std::optional<int> StoredCheckState(const QString& stored);

// The controls as Form_Load leaves them: every field with the text form of
// its variable, each group with the button of its stored value (or of the
// design), each check box with its stored state (or empty).
GeneralControlState LoadedControlState(const GeneralVariables& variables);

// The option group of a button: "Option4" of "Option4(5)".
QString OptionGroupOf(const QString& button);

} // namespace brimo
