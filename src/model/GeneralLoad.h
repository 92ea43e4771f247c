#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// What Form_Load of CGeneralForm copies from GeneralVariables into its
// controls: the text fields in their order of filling, the option buttons
// that stored values select, and the states of the check boxes. The settings
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

// How a stored value is held against a row: as a number, or as exact text.
enum class StoredComparison { Number, ExactText };

// A stored value and the option button that it selects.
struct StoredChoice {
    const char* key;
    StoredComparison comparison;
    const char* value;
    const char* button;
};

// In the order of the load's steps; within a key, in the order of comparison.
inline constexpr std::array<StoredChoice, 14> kStoredChoices = {{
    {"x_def_ounit", StoredComparison::Number, "0", "Option1(0)"},
    {"x_def_ounit", StoredComparison::Number, "1", "Option1(1)"},
    {"x_def_ounit", StoredComparison::Number, "2", "Option1(2)"},
    {"x_def_punit", StoredComparison::Number, "0", "Option2(0)"},
    {"x_def_punit", StoredComparison::Number, "1", "Option2(1)"},
    {"x_def_punit", StoredComparison::Number, "2", "Option2(2)"},
    {"x_chttt", StoredComparison::Number, "0", "Option4(3)"},
    {"x_chttt", StoredComparison::Number, "1", "Option4(5)"},
    {"x_chttt", StoredComparison::Number, "2", "Option4(4)"},
    {"x_chttt", StoredComparison::Number, "3", "Option4(6)"},
    {"x_lang", StoredComparison::ExactText, "FRA", "Option5(0)"},
    {"x_lang", StoredComparison::ExactText, "ENG", "Option5(1)"},
    {"x_lang", StoredComparison::ExactText, "DEU", "Option5(2)"},
    {"x_lang", StoredComparison::ExactText, "ITA", "Option5(3)"},
}};

// A stored flag and the check box that shows it.
struct StoredCheck {
    const char* key;
    const char* checkBox;
};

inline constexpr std::array<StoredCheck, 3> kStoredChecks = {{
    {"affilogoKVO", "Check1"},
    {"AffiProfil", "Check2"},
    {"x_chtlay", "Check3"},
}};

// The option buttons to select, in the load's order: one for each key whose
// stored value matches a row, none for a key that matches no row (its group
// then stays as the form was designed).
QStringList StoredSelections(const GeneralVariables& variables);

// The state (0 empty, 1 ticked, 2 grey) that a stored flag gives its check
// box: the value as a whole number. Nothing for a text that is no number or
// lies outside 0 to 2; the box then keeps its design state.
std::optional<int> StoredCheckState(const QString& stored);

// The buttons that the form selects by its design, before any load; the
// check boxes are empty by design.
inline constexpr std::array<const char*, 2> kDesignSelectedOptions = {"Option4(4)", "Option5(0)"};

// The controls as Form_Load leaves them: every field with the text form of
// its variable, each group with the button of its stored value (or of the
// design), each check box with its stored state (or empty).
GeneralControlState LoadedControlState(const GeneralVariables& variables);

// The option group of a button: "Option4" of "Option4(5)".
QString OptionGroupOf(const QString& button);

} // namespace brimo
