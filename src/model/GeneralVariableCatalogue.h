#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The 51 general variables of section Brimo_Gene, in the order of reading,
// each with the control of CGeneralForm that shows it; and the option button
// that each stored value of a choice selects. The load, the commit, the
// settings tool and the dialog all read these two tables.

#include <array>

namespace brimo {

// How a default is held until it is shown: a 16-bit integer, a double, a text.
enum class DefaultKind { Int, Dbl, Txt };
// What the dialogs and the Lisp file make of the value.
enum class ValueType { Number, Text, Choice, Flag };

// What the commit reads of the control of a value.
enum class ControlRead {
    Text,    // the text of a field
    Options, // which button of an option group is selected
    State,   // the state of a check box
};
constexpr ControlRead ReadOf(ValueType type) {
    return type == ValueType::Choice ? ControlRead::Options : type == ValueType::Flag ? ControlRead::State : ControlRead::Text;
}

struct GeneralVariableRow {
    int no;
    const char* key;           // as the load spells it
    DefaultKind defaultKind;
    double defaultNumber;      // Int and Dbl defaults
    const char* defaultText;   // Txt defaults, UTF-8
    ValueType type;
    const char* field;         // the control of CGeneralForm that shows it: a
                               // field, a check box or an option group
};

inline constexpr std::array<GeneralVariableRow, 51> kGeneralVariableCatalogue = {{
    {1, "cadre_usery", DefaultKind::Int, 860, "", ValueType::Number, "Val0"},
    {2, "cadre_userx", DefaultKind::Int, 1600, "", ValueType::Number, "Val1"},
    {3, "cadre_couleur", DefaultKind::Int, 2, "", ValueType::Number, "Val2"},
    {4, "cadre_decal", DefaultKind::Int, 5, "", ValueType::Number, "Val3"},
    {5, "cadre_layer", DefaultKind::Txt, 0, "CADRE1", ValueType::Text, "Val4"},
    {6, "x_def_ounit", DefaultKind::Int, 1, "", ValueType::Choice, "Option1"},
    {7, "x_def_punit", DefaultKind::Int, 0, "", ValueType::Choice, "Option2"},
    {8, "x_incli", DefaultKind::Int, 0, "", ValueType::Number, "Val5"},
    {9, "x_compress", DefaultKind::Dbl, 0.7, "", ValueType::Number, "Val6"},
    {10, "x_ht_gc1", DefaultKind::Dbl, 1.5, "", ValueType::Number, "Val7"},
    {11, "x_ht_gc2", DefaultKind::Dbl, 2.5, "", ValueType::Number, "Val8"},
    {12, "x_ht_gc3", DefaultKind::Dbl, 3.5, "", ValueType::Number, "Val9"},
    {13, "x_ht_gc4", DefaultKind::Int, 4, "", ValueType::Number, "Val10"},
    {14, "x_ht_gc5", DefaultKind::Int, 5, "", ValueType::Number, "Val11"},
    {15, "x_ht_gc7", DefaultKind::Int, 7, "", ValueType::Number, "Val12"},
    {16, "x_ht_gc10", DefaultKind::Int, 10, "", ValueType::Number, "Val13"},
    {17, "x_ht_gc15", DefaultKind::Int, 15, "", ValueType::Number, "Val14"},
    {18, "x_ht_gcc", DefaultKind::Dbl, 3.5, "", ValueType::Number, "Text4"},
    {19, "x_color_gcc", DefaultKind::Int, 4, "", ValueType::Number, "Text19"},
    {20, "x_chtlay", DefaultKind::Int, 0, "", ValueType::Flag, "Check3"},
    {21, "x_nom_bureau", DefaultKind::Txt, 0, "Nom du bureau", ValueType::Text, "Val15"},
    {22, "x_adresse_bureau", DefaultKind::Txt, 0, "Adresse du bureau", ValueType::Text, "Val16"},
    {23, "x_code_bureau", DefaultKind::Txt, 0, "N postal", ValueType::Text, "Val17"},
    {24, "x_lieu_bureau", DefaultKind::Txt, 0, "Ville", ValueType::Text, "Val18"},
    {25, "x_tel_bureau", DefaultKind::Txt, 0, "No de téléphone", ValueType::Text, "Val19"},
    {26, "x_fax_bureau", DefaultKind::Txt, 0, "No de fax", ValueType::Text, "Val20"},
    {27, "x_style_txt1", DefaultKind::Txt, 0, "ROMANS", ValueType::Text, "Text1"},
    {28, "x_style_txt2", DefaultKind::Txt, 0, "ROMANS", ValueType::Text, "Text20"},
    {29, "x_style_txt3", DefaultKind::Txt, 0, "ROMANS", ValueType::Text, "Text21"},
    {30, "x_style_txt4", DefaultKind::Txt, 0, "ROMANS", ValueType::Text, "Text22"},
    {31, "x_style_txt5", DefaultKind::Txt, 0, "ROMANS", ValueType::Text, "Text23"},
    {32, "x_style_txt7", DefaultKind::Txt, 0, "ROMANS", ValueType::Text, "Text24"},
    {33, "x_style_txt10", DefaultKind::Txt, 0, "ROMANS", ValueType::Text, "Text25"},
    {34, "x_style_txt15", DefaultKind::Txt, 0, "ROMANS", ValueType::Text, "Text26"},
    {35, "x_style_cot", DefaultKind::Txt, 0, "ROMANS", ValueType::Text, "Text2"},
    {36, "x_chttt", DefaultKind::Int, 2, "", ValueType::Choice, "Option4"},
    {37, "x_lang", DefaultKind::Txt, 0, "FRA", ValueType::Choice, "Option5"},
    {38, "affilogoKVO", DefaultKind::Int, 1, "", ValueType::Flag, "Check1"},
    {39, "AffiProfil", DefaultKind::Int, 1, "", ValueType::Flag, "Check2"},
    {40, "x_color_zm10", DefaultKind::Int, 1, "", ValueType::Number, "Text5"},
    {41, "x_color_zm20", DefaultKind::Int, 2, "", ValueType::Number, "Text6"},
    {42, "x_color_zm50", DefaultKind::Int, 3, "", ValueType::Number, "Text7"},
    {43, "x_color_zm100", DefaultKind::Int, 4, "", ValueType::Number, "Text8"},
    {44, "x_color_zm200", DefaultKind::Int, 5, "", ValueType::Number, "Text9"},
    {45, "x_color_zm500", DefaultKind::Int, 6, "", ValueType::Number, "Text10"},
    {46, "Path_Win1", DefaultKind::Txt, 0, "C:\\WINNT\\EXPLORER.EXE", ValueType::Text, "Text11"},
    {47, "Path_Win2", DefaultKind::Txt, 0, "C:\\WINNT\\SYSTEM32\\CALC.EXE", ValueType::Text, "Text12"},
    {48, "Path_Win3", DefaultKind::Txt, 0, "C:\\PROGRAM FILES\\WINDOWS NT\\ACCESSOIRES\\WORDPAD.EXE", ValueType::Text, "Text13"},
    {49, "Path_Win4", DefaultKind::Txt, 0, "C:\\WINNT\\NOTEPAD.EXE", ValueType::Text, "Text14"},
    {50, "Path_Win6", DefaultKind::Txt, 0, "C:\\PROGRAM FILES\\ADOBE\\ACROBAT\\READER.EXE", ValueType::Text, "Text18"},
    {51, "Path_Win5", DefaultKind::Txt, 0, "", ValueType::Text, "Text15"},
}};

// A stored value of a choice and the option button that shows it. The load
// selects the button of the first row whose value matches the stored one (as
// a number, or as exact text where the default is a text) and none when no
// row does; the commit writes the value of the selected button. The rows of
// a key stand together, in the order of comparison, and the keys in the order
// of the load's steps.
struct GeneralChoice {
    const char* key;
    const char* value;
    const char* button;
    bool designSelected; // selected on the form before any load
};

inline constexpr std::array<GeneralChoice, 14> kGeneralChoices = {{
    {"x_def_ounit", "0", "Option1(0)", false},
    {"x_def_ounit", "1", "Option1(1)", false},
    {"x_def_ounit", "2", "Option1(2)", false},
    {"x_def_punit", "0", "Option2(0)", false},
    {"x_def_punit", "1", "Option2(1)", false},
    {"x_def_punit", "2", "Option2(2)", false},
    {"x_chttt", "0", "Option4(3)", false},
    {"x_chttt", "1", "Option4(5)", false},
    {"x_chttt", "2", "Option4(4)", true},
    {"x_chttt", "3", "Option4(6)", false},
    {"x_lang", "FRA", "Option5(0)", true},
    {"x_lang", "ENG", "Option5(1)", false},
    {"x_lang", "DEU", "Option5(2)", false},
    {"x_lang", "ITA", "Option5(3)", false},
}};

constexpr bool SameName(const char* a, const char* b) {
    while (*a && *a == *b) ++a, ++b;
    return *a == *b;
}

// The row of a key as the load spells it; the catalogue's end for none.
constexpr const GeneralVariableRow* FindVariableRow(const char* key) {
    for (const GeneralVariableRow& row : kGeneralVariableCatalogue)
        if (SameName(row.key, key)) return &row;
    return kGeneralVariableCatalogue.end();
}

// Each choice belongs to a choice of the catalogue, and its button to that
// choice's option group: "Option4(5)" to "Option4".
constexpr bool choicesFitTheCatalogue() {
    for (const GeneralChoice& choice : kGeneralChoices) {
        const GeneralVariableRow* row = FindVariableRow(choice.key);
        if (row == kGeneralVariableCatalogue.end() || row->type != ValueType::Choice) return false;
        const char *group = row->field, *button = choice.button;
        while (*group && *group == *button) ++group, ++button;
        if (*group || *button != '(') return false;
    }
    return true;
}
static_assert(choicesFitTheCatalogue());

} // namespace brimo
