// The Lisp file written from the default values, against the file composed
// by hand (tests/golden), and the line forms on values of every kind.

#include "model/GeneLispCatalogue.h"
#include "model/GeneralVariables.h"
#include "platform/Cp1252.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

namespace brimo {
namespace {

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
    const QByteArray expected = test::Golden(QStringLiteral("Brimo_Gene-defaults.lsp"));
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
