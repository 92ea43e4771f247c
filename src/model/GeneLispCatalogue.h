#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The line catalogue of Brimo_Gene.lsp: row N is line N when every choice is
// made. The Lisp name of a row is also its key in section Brimo_Gene.

#include "model/GeneralVariableCatalogue.h"
#include "model/LispFile.h"

#include <array>
#include <optional>

namespace brimo {

struct GeneLispRow {
    int row;
    const char* lispName;  // and key of Brimo.ini
    LispLineForm form;
    const char* closing;   // UTF-8; empty for fixed and language rows
    const char* variable;  // the key of GeneralVariables (the load's spelling)
};

inline constexpr std::array<GeneLispRow, 51> kGeneLispCatalogue = {{
    {1, "cadre_usery", LispLineForm::Numeric, ") ;Largeur du cadre users", "cadre_usery"},
    {2, "cadre_userx", LispLineForm::Numeric, ") ;Longueur du cadre users", "cadre_userx"},
    {3, "cadre_couleur", LispLineForm::Numeric, ") ;Couleur du double cadre", "cadre_couleur"},
    {4, "cadre_decal", LispLineForm::Numeric, ") ;Decalage en mm du double cadre", "cadre_decal"},
    {5, "cadre_layer", LispLineForm::Quoted, ") ;Nom du plan pour le cadre", "cadre_layer"},
    {6, "x_def_ounit", LispLineForm::Fixed, "", "x_def_ounit"},
    {7, "x_def_punit", LispLineForm::Fixed, "", "x_def_punit"},
    {8, "x_incli", LispLineForm::Numeric, ") ;Degrés d'inclinaison des styles", "x_incli"},
    {9, "x_compress", LispLineForm::Numeric, ") ;Compression des styles de texte", "x_compress"},
    {10, "x_ht_gc1", LispLineForm::Numeric, ") ;Hauteur du style GC1", "x_ht_gc1"},
    {11, "x_ht_gc2", LispLineForm::Numeric, ") ;Hauteur du style GC2", "x_ht_gc2"},
    {12, "x_ht_gc3", LispLineForm::Numeric, ") ;Hauteur du style GC3", "x_ht_gc3"},
    {13, "x_ht_gc4", LispLineForm::Numeric, ") ;Hauteur du style GC4", "x_ht_gc4"},
    {14, "x_ht_gc5", LispLineForm::Numeric, ") ;Hauteur du style GC5", "x_ht_gc5"},
    {15, "x_ht_gc7", LispLineForm::Numeric, ") ;Hauteur du style GC7", "x_ht_gc7"},
    {16, "x_ht_gc10", LispLineForm::Numeric, ") ;Hauteur du style GC10", "x_ht_gc10"},
    {17, "x_ht_gc15", LispLineForm::Numeric, ") ;Hauteur du style GC15", "x_ht_gc15"},
    {18, "x_ht_gcc", LispLineForm::Numeric, ") ;Hauteur du style GCC", "x_ht_gcc"},
    {19, "x_color_gcc", LispLineForm::Numeric, ") ;Couleur du style GCC", "x_color_gcc"},
    {20, "x_nom_bureau", LispLineForm::Quoted, ") ;Nom de votre bureau", "x_nom_bureau"},
    {21, "x_adresse_bureau", LispLineForm::Quoted, ") ;Adresse de votre bureau", "x_adresse_bureau"},
    {22, "x_code_bureau", LispLineForm::Quoted, ") ;No postal de votre bureau", "x_code_bureau"},
    {23, "x_lieu_bureau", LispLineForm::Quoted, ") ;Nom de la ville pour votre bureau", "x_lieu_bureau"},
    {24, "x_tel_bureau", LispLineForm::Quoted, ") ;No de tél de votre bureau", "x_tel_bureau"},
    {25, "x_fax_bureau", LispLineForm::Quoted, ") ;No de fax de votre bureau", "x_fax_bureau"},
    {26, "x_style_txt1", LispLineForm::Quoted, ") ;Polices pour le style gc1", "x_style_txt1"},
    {27, "x_style_txt2", LispLineForm::Quoted, ") ;Polices pour le style gc2", "x_style_txt2"},
    {28, "x_style_txt3", LispLineForm::Quoted, ") ;Polices pour le style gc3", "x_style_txt3"},
    {29, "x_style_txt4", LispLineForm::Quoted, ") ;Polices pour le style gc4", "x_style_txt4"},
    {30, "x_style_txt5", LispLineForm::Quoted, ") ;Polices pour le style gc5", "x_style_txt5"},
    {31, "x_style_txt7", LispLineForm::Quoted, ") ;Polices pour le style gc7", "x_style_txt7"},
    {32, "x_style_txt10", LispLineForm::Quoted, ") ;Polices pour le style gc10", "x_style_txt10"},
    {33, "x_style_txt15", LispLineForm::Quoted, ") ;Polices pour le style gc15", "x_style_txt15"},
    {34, "x_style_cot", LispLineForm::Quoted, ") ;Polices pour le style cote", "x_style_cot"},
    {35, "x_color_zm10", LispLineForm::Numeric, ") ;Couleur par défaut Zmult 1:10", "x_color_zm10"},
    {36, "x_color_zm20", LispLineForm::Numeric, ") ;Couleur par défaut Zmult 1:20", "x_color_zm20"},
    {37, "x_color_zm50", LispLineForm::Numeric, ") ;Couleur par défaut Zmult 1:50", "x_color_zm50"},
    {38, "x_color_zm100", LispLineForm::Numeric, ") ;Couleur par défaut Zmult 1:100", "x_color_zm100"},
    {39, "x_color_zm200", LispLineForm::Numeric, ") ;Couleur par défaut Zmult 1:200", "x_color_zm200"},
    {40, "x_color_zm500", LispLineForm::Numeric, ") ;Couleur par défaut Zmult 1:500", "x_color_zm500"},
    {41, "x_chttt", LispLineForm::Fixed, "", "x_chttt"},
    {42, "x_lang", LispLineForm::Language, "", "x_lang"},
    {43, "affilogoKVO", LispLineForm::Fixed, "", "affilogoKVO"},
    {44, "affiprofil", LispLineForm::Fixed, "", "AffiProfil"},
    {45, "x_chtlay", LispLineForm::Fixed, "", "x_chtlay"},
    {46, "path_win1", LispLineForm::Path, ") ;Emplacement de l'explorateur Windows", "Path_Win1"},
    {47, "path_win2", LispLineForm::Path, ") ;Emplacement de la machine à calculer", "Path_Win2"},
    {48, "path_win3", LispLineForm::Path, ") ;Emplacement de l'éditeur WordPad", "Path_Win3"},
    {49, "path_win4", LispLineForm::Path, ") ;Emplacement du bloc-notes", "Path_Win4"},
    {50, "path_win6", LispLineForm::Path, ") ;Emplacement d'acrobat reader", "Path_Win6"},
    {51, "path_win5", LispLineForm::Path, ") ;Emplacement d'un programme personnel", "Path_Win5"},
}};

// The variable that a row writes, and so the control it reads.
constexpr const GeneralVariableRow& VariableOf(const GeneLispRow& row) { return *FindVariableRow(row.variable); }

// Row N stands at index N - 1: the fixed lines name their rows by number.
constexpr bool rowsNumberedInOrder() {
    for (std::size_t i = 0; i < kGeneLispCatalogue.size(); ++i)
        if (kGeneLispCatalogue[i].row != static_cast<int>(i) + 1) return false;
    return true;
}
static_assert(rowsNumberedInOrder());

// Every variable is written by one row.
constexpr bool rowsWriteEveryVariableOnce() {
    for (const GeneralVariableRow& variable : kGeneralVariableCatalogue) {
        int rows = 0;
        for (const GeneLispRow& row : kGeneLispCatalogue) rows += SameName(row.variable, variable.key);
        if (rows != 1) return false;
    }
    return true;
}
static_assert(rowsWriteEveryVariableOnce());

// The complete literals of the fixed rows, by row and value.
struct GeneFixedLine {
    int row;
    int value;
    const char* line; // UTF-8
};

inline constexpr std::array<GeneFixedLine, 16> kGeneFixedLines = {{
    {6, 0, "(setq x_def_ounit 0) ;L'unité par défaut de l'espace objet est le mm"},
    {6, 1, "(setq x_def_ounit 1) ;L'unité par défaut de l'espace objet est le cm"},
    {6, 2, "(setq x_def_ounit 2) ;L'unité par défaut de l'espace objet est le m"},
    {7, 0, "(setq x_def_punit 0) ;L'unité par défaut de l'espace papier est le mm"},
    {7, 1, "(setq x_def_punit 1) ;L'unité par défaut de l'espace papier est le cm"},
    {7, 2, "(setq x_def_punit 2) ;L'unité par défaut de l'espace papier est le m"},
    {41, 0, "(setq x_chttt 0) ;Commande Autocad aprés choix du style - Aucune"},
    {41, 1, "(setq x_chttt 1) ;Commande Autocad aprés choix du style - Texte sur une ligne"},
    {41, 2, "(setq x_chttt 2) ;Commande Autocad aprés choix du style - Texte dynamique"},
    {41, 3, "(setq x_chttt 3) ;Commande Autocad aprés choix du style - Texte paragraphe"},
    {43, 0, "(setq affilogoKVO 0) ;Affichage du logo Zorel lors du chagement des modules - Inactif"},
    {43, 1, "(setq affilogoKVO 1) ;Affichage du logo Zorel lors du chagement des modules - Actif"},
    {44, 0, "(setq affiprofil 0) ;Affichage du profil dessin - Inactif"},
    {44, 1, "(setq affiprofil 1) ;Affichage du profil dessin - Actif"},
    {45, 0, "(setq x_chtlay 0) ;Layers à utiliser après l'appel de la commande - Layers GC.."},
    {45, 1, "(setq x_chtlay 1) ;Layers à utiliser après l'appel de la commande - Layers courant"},
}};

// The closing texts of the language line, by code; their spacing differs.
struct GeneLanguageClosing {
    const char* code;
    const char* closing; // UTF-8
};

inline constexpr std::array<GeneLanguageClosing, 4> kGeneLanguageClosings = {{
    {"FRA", "); Langue français "},
    {"ENG", ") ; Langue anglais"},
    {"DEU", ") ; Langue allemand"},
    {"ITA", ") ; Langue italien"},
}};

// The line of a row for a value: the field's text for the value rows, the
// chosen number ("0", "1", ...) for the fixed rows, the code for the
// language row. No line for a choice that has no literal.
std::optional<QString> GeneLispLine(const GeneLispRow& row, const QString& value);

} // namespace brimo
