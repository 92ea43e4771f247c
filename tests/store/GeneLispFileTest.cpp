// The Lisp file written from the default values, against a file composed by
// hand, line by line, from the catalogue of the add-on's interface.

#include "platform/Cp1252.h"
#include "store/GeneLispCatalogue.h"
#include "store/GeneralVariables.h"

#include <gtest/gtest.h>

namespace brimo {
namespace {

// Every line of Brimo_Gene.lsp with the default values, in order.
const char* const kDefaultFile[] = {
    "(setq cadre_usery 860) ;Largeur du cadre users",
    "(setq cadre_userx 1600) ;Longueur du cadre users",
    "(setq cadre_couleur 2) ;Couleur du double cadre",
    "(setq cadre_decal 5) ;Decalage en mm du double cadre",
    "(setq cadre_layer \"CADRE1\") ;Nom du plan pour le cadre",
    "(setq x_def_ounit 1) ;L'unité par défaut de l'espace objet est le cm",
    "(setq x_def_punit 0) ;L'unité par défaut de l'espace papier est le mm",
    "(setq x_incli 0) ;Degrés d'inclinaison des styles",
    "(setq x_compress 0.7) ;Compression des styles de texte",
    "(setq x_ht_gc1 1.5) ;Hauteur du style GC1",
    "(setq x_ht_gc2 2.5) ;Hauteur du style GC2",
    "(setq x_ht_gc3 3.5) ;Hauteur du style GC3",
    "(setq x_ht_gc4 4) ;Hauteur du style GC4",
    "(setq x_ht_gc5 5) ;Hauteur du style GC5",
    "(setq x_ht_gc7 7) ;Hauteur du style GC7",
    "(setq x_ht_gc10 10) ;Hauteur du style GC10",
    "(setq x_ht_gc15 15) ;Hauteur du style GC15",
    "(setq x_ht_gcc 3.5) ;Hauteur du style GCC",
    "(setq x_color_gcc 4) ;Couleur du style GCC",
    "(setq x_nom_bureau \"Nom du bureau\") ;Nom de votre bureau",
    "(setq x_adresse_bureau \"Adresse du bureau\") ;Adresse de votre bureau",
    "(setq x_code_bureau \"N postal\") ;No postal de votre bureau",
    "(setq x_lieu_bureau \"Ville\") ;Nom de la ville pour votre bureau",
    "(setq x_tel_bureau \"No de téléphone\") ;No de tél de votre bureau",
    "(setq x_fax_bureau \"No de fax\") ;No de fax de votre bureau",
    "(setq x_style_txt1 \"ROMANS\") ;Polices pour le style gc1",
    "(setq x_style_txt2 \"ROMANS\") ;Polices pour le style gc2",
    "(setq x_style_txt3 \"ROMANS\") ;Polices pour le style gc3",
    "(setq x_style_txt4 \"ROMANS\") ;Polices pour le style gc4",
    "(setq x_style_txt5 \"ROMANS\") ;Polices pour le style gc5",
    "(setq x_style_txt7 \"ROMANS\") ;Polices pour le style gc7",
    "(setq x_style_txt10 \"ROMANS\") ;Polices pour le style gc10",
    "(setq x_style_txt15 \"ROMANS\") ;Polices pour le style gc15",
    "(setq x_style_cot \"ROMANS\") ;Polices pour le style cote",
    "(setq x_color_zm10 1) ;Couleur par défaut Zmult 1:10",
    "(setq x_color_zm20 2) ;Couleur par défaut Zmult 1:20",
    "(setq x_color_zm50 3) ;Couleur par défaut Zmult 1:50",
    "(setq x_color_zm100 4) ;Couleur par défaut Zmult 1:100",
    "(setq x_color_zm200 5) ;Couleur par défaut Zmult 1:200",
    "(setq x_color_zm500 6) ;Couleur par défaut Zmult 1:500",
    "(setq x_chttt 2) ;Commande Autocad aprés choix du style - Texte dynamique",
    "(setq x_lang \"FRA\"); Langue français ",
    "(setq affilogoKVO 1) ;Affichage du logo Zorel lors du chagement des modules - Actif",
    "(setq affiprofil 1) ;Affichage du profil dessin - Actif",
    "(setq x_chtlay 0) ;Layers à utiliser après l'appel de la commande - Layers GC..",
    "(setq path_win1 \"C:\\\\WINNT\\\\EXPLORER.EXE\") ;Emplacement de l'explorateur Windows",
    "(setq path_win2 \"C:\\\\WINNT\\\\SYSTEM32\\\\CALC.EXE\") ;Emplacement de la machine à calculer",
    "(setq path_win3 \"C:\\\\PROGRAM FILES\\\\WINDOWS NT\\\\ACCESSOIRES\\\\WORDPAD.EXE\") ;Emplacement de l'éditeur WordPad",
    "(setq path_win4 \"C:\\\\WINNT\\\\NOTEPAD.EXE\") ;Emplacement du bloc-notes",
    "(setq path_win6 \"C:\\\\PROGRAM FILES\\\\ADOBE\\\\ACROBAT\\\\READER.EXE\") ;Emplacement d'acrobat reader",
    "(setq path_win5 \"\") ;Emplacement d'un programme personnel",
};

QByteArray expectedDefaultFile() {
    QByteArray out;
    for (const char* line : kDefaultFile) out += toCp1252(QString::fromUtf8(line)) + "\r\n";
    return out;
}

// The value of each row as the dialog would hand it over from the defaults.
QString defaultRowValue(const GeneralVariables& variables, const GeneLispRow& row) {
    return variables.text(QLatin1String(row.variable));
}

TEST(GeneLispFile, DefaultsGiveTheFileByteForByte) {
    const GeneralVariables variables;
    QStringList lines;
    for (const GeneLispRow& row : kGeneLispCatalogue) {
        const auto line = GeneLispLine(row, defaultRowValue(variables, row));
        ASSERT_TRUE(line.has_value()) << row.lispName;
        lines.append(*line);
    }
    const QByteArray written = ComposeLispFile(lines);
    const QByteArray expected = expectedDefaultFile();
    ASSERT_EQ(written.count('\n'), 51);
    EXPECT_EQ(written, expected);
}

TEST(GeneLispFile, FrenchLanguageLineBytes) {
    const QByteArray expected = QByteArray::fromHex(
        QByteArray("28736574712078 5F6C616E672022 4652412229 3B204C616E67756520 6672616EE7616973200D0A").replace(" ", ""));
    const auto line = GeneLispLine(kGeneLispCatalogue[41], QStringLiteral("FRA"));
    ASSERT_TRUE(line.has_value());
    EXPECT_EQ(ComposeLispFile({*line}), expected);
}

TEST(GeneLispFile, LineFormsKeepTheirValuesAsGiven) {
    struct Case {
        int row;
        const char* value;
        const char* line;
    };
    const Case cases[] = {
        {1, "", "(setq cadre_usery ) ;Largeur du cadre users"},
        {1, "2,5", "(setq cadre_usery 2,5) ;Largeur du cadre users"},
        {20, "A\\B \"x\"", "(setq x_nom_bureau \"A\\B \"x\"\") ;Nom de votre bureau"},
        {51, "", "(setq path_win5 \"\") ;Emplacement d'un programme personnel"},
        {51, "\\\\srv\\p", "(setq path_win5 \"\\\\\\\\srv\\\\p\") ;Emplacement d'un programme personnel"},
        {42, "ENG", "(setq x_lang \"ENG\") ; Langue anglais"},
        {42, "DEU", "(setq x_lang \"DEU\") ; Langue allemand"},
        {42, "ITA", "(setq x_lang \"ITA\") ; Langue italien"},
        {41, "0", "(setq x_chttt 0) ;Commande Autocad aprés choix du style - Aucune"},
        {41, "3", "(setq x_chttt 3) ;Commande Autocad aprés choix du style - Texte paragraphe"},
        {45, "1", "(setq x_chtlay 1) ;Layers à utiliser après l'appel de la commande - Layers courant"},
    };
    for (const Case& c : cases) {
        const auto line = GeneLispLine(kGeneLispCatalogue[static_cast<size_t>(c.row - 1)], QString::fromUtf8(c.value));
        ASSERT_TRUE(line.has_value()) << c.row;
        EXPECT_EQ(*line, QString::fromUtf8(c.line)) << c.row;
    }
    EXPECT_FALSE(GeneLispLine(kGeneLispCatalogue[5], QStringLiteral("5")).has_value());
}

TEST(EscapeBackslashes, DoublesEachBackslashOnce) {
    EXPECT_EQ(EscapeBackslashes(QString()), QString());
    EXPECT_EQ(EscapeBackslashes(QStringLiteral("abc")), QStringLiteral("abc"));
    EXPECT_EQ(EscapeBackslashes(QStringLiteral("C:\\WINNT\\NOTEPAD.EXE")), QStringLiteral("C:\\\\WINNT\\\\NOTEPAD.EXE"));
    EXPECT_EQ(EscapeBackslashes(QStringLiteral("\\\\")), QStringLiteral("\\\\\\\\"));
}

TEST(LispFile, CharactersOutsideTheCodePageBecomeQuestionMarks) {
    EXPECT_EQ(ComposeLispFile({QStringLiteral("a\u20ACb\u4E2D")}), QByteArray("a\x80" "b?\r\n"));
}

} // namespace
} // namespace brimo
