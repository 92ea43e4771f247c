// OK: what reaches Brimo_Gene.lsp and Brimo.ini, and what OK refuses.
#include "GeneralFormFixture.h"
#include "support/DefaultGeneLisp.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

namespace brimo::test {
namespace {

// The keys of section Brimo_Gene, in the order of the rows, with the defaults.
const char* const kDefaultKeys[] = {
    "cadre_usery=860", "cadre_userx=1600", "cadre_couleur=2", "cadre_decal=5", "cadre_layer=CADRE1",
    "x_def_ounit=1", "x_def_punit=0", "x_incli=0", "x_compress=0.7", "x_ht_gc1=1.5", "x_ht_gc2=2.5",
    "x_ht_gc3=3.5", "x_ht_gc4=4", "x_ht_gc5=5", "x_ht_gc7=7", "x_ht_gc10=10", "x_ht_gc15=15", "x_ht_gcc=3.5",
    "x_color_gcc=4", "x_nom_bureau=Nom du bureau", "x_adresse_bureau=Adresse du bureau",
    "x_code_bureau=N postal", "x_lieu_bureau=Ville", "x_tel_bureau=No de téléphone", "x_fax_bureau=No de fax",
    "x_style_txt1=ROMANS", "x_style_txt2=ROMANS", "x_style_txt3=ROMANS", "x_style_txt4=ROMANS",
    "x_style_txt5=ROMANS", "x_style_txt7=ROMANS", "x_style_txt10=ROMANS", "x_style_txt15=ROMANS",
    "x_style_cot=ROMANS", "x_color_zm10=1", "x_color_zm20=2", "x_color_zm50=3", "x_color_zm100=4",
    "x_color_zm200=5", "x_color_zm500=6", "x_chttt=2", "x_lang=FRA", "affilogoKVO=1", "affiprofil=1",
    "x_chtlay=0", "path_win1=C:\\WINNT\\EXPLORER.EXE", "path_win2=C:\\WINNT\\SYSTEM32\\CALC.EXE",
    "path_win3=C:\\PROGRAM FILES\\WINDOWS NT\\ACCESSOIRES\\WORDPAD.EXE", "path_win4=C:\\WINNT\\NOTEPAD.EXE",
    "path_win6=C:\\PROGRAM FILES\\ADOBE\\ACROBAT\\READER.EXE", "path_win5=",
};

// Lines in Windows-1252, each ending in CR LF.
QByteArray crlfFile(const QList<QByteArray>& lines) {
    QByteArray bytes;
    for (const QByteArray& line : lines) bytes += line + "\r\n";
    return bytes;
}

QList<QByteArray> defaultLispLines() {
    QList<QByteArray> lines;
    for (const char* line : kDefaultGeneLisp) lines.append(cp1252(line));
    return lines;
}

QList<QByteArray> defaultIniLines() {
    QList<QByteArray> lines{"[Brimo_Gene]"};
    for (const char* key : kDefaultKeys) lines.append(cp1252(key));
    return lines;
}

void replaceLine(QList<QByteArray>& lines, const QByteArray& head, const char* line) {
    for (QByteArray& candidate : lines)
        if (candidate.startsWith(head)) {
            candidate = cp1252(line);
            return;
        }
    ADD_FAILURE() << "no line " << head.toStdString();
}

void removeLine(QList<QByteArray>& lines, const QByteArray& head) {
    for (qsizetype i = 0; i < lines.size(); ++i)
        if (lines[i].startsWith(head)) {
            lines.removeAt(i);
            return;
        }
    ADD_FAILURE() << "no line " << head.toStdString();
}

using GeneralCommitTest = GeneralFormTest;

TEST_F(GeneralCommitTest, OkFromTheDefaultsWritesBothFilesAndEnds) {
    open();
    ASSERT_EQ(std::size(kDefaultGeneLisp), 51u);
    find<QPushButton>("cmdOK")->click();

    const QByteArray expected = crlfFile(defaultLispLines());
    EXPECT_EQ(lisp(), expected);
    EXPECT_TRUE(lisp().contains(QByteArray("(setq x_lang \"FRA\"); Langue fran\xE7" "ais \r\n")));
    EXPECT_EQ(ini(), crlfFile(defaultIniLines()));
    EXPECT_EQ(ends(), QList<int>{0});
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(GeneralCommitTest, EnterInAFieldCommitsItsTextUntested) {
    open();
    auto* val0 = find<QLineEdit>("Val0");
    find<QTabWidget>("SSTab1")->setCurrentIndex(0);
    val0->setFocus();
    QTest::keyClicks(val0, "abc");
    QTest::keyClick(val0, Qt::Key_Return);

    QList<QByteArray> lines = defaultLispLines();
    replaceLine(lines, "(setq cadre_usery", "(setq cadre_usery abc) ;Largeur du cadre users");
    EXPECT_EQ(lisp(), crlfFile(lines));
    EXPECT_TRUE(messages.isEmpty()) << "no rule ran";
    EXPECT_EQ(ends(), QList<int>{0});
}

TEST_F(GeneralCommitTest, StoredValuesOutsideTheOptionsAndAGreyCheckBox) {
    writeBrimoIni("[Brimo_Gene]\r\nx_def_ounit=5\r\nx_chttt=7\r\nx_lang=fra\r\naffilogoKVO=2\r\nx_chtxt=9\r\n"
                  "[Brimo_Talus]\r\nx_QZ_tal_dh=4\r\n");
    open();
    for (const char* name : {"Option1(0)", "Option1(1)", "Option1(2)"})
        EXPECT_FALSE(find<QRadioButton>(name)->isChecked()) << name;
    EXPECT_TRUE(find<QRadioButton>("Option4(4)")->isChecked());
    EXPECT_TRUE(find<QRadioButton>("Option5(0)")->isChecked());
    EXPECT_EQ(find<QTabWidget>("SSTab1")->currentIndex(), 0);
    EXPECT_EQ(find<QCheckBox>("Check1")->checkState(), Qt::PartiallyChecked);

    find<QPushButton>("cmdOK")->click();

    QList<QByteArray> lines = defaultLispLines();
    removeLine(lines, "(setq x_def_ounit");
    ASSERT_EQ(lines.size(), 50);
    EXPECT_EQ(lisp(), crlfFile(lines));

    // No key for the group without a choice: the stored 5 stays; keys that
    // the commit does not know stay too, as does the other section.
    // Existing keys keep their line, new ones follow the section's last line.
    QList<QByteArray> expected{"[Brimo_Gene]", "x_def_ounit=5", "x_chttt=2", "x_lang=FRA", "affilogoKVO=1",
                               "x_chtxt=9"};
    for (const char* key : kDefaultKeys) {
        const QByteArray line = cp1252(key);
        if (line.startsWith("x_def_ounit=") || line.startsWith("x_chttt=") || line.startsWith("x_lang=") ||
            line.startsWith("affilogoKVO="))
            continue;
        expected.append(line);
    }
    expected += QList<QByteArray>{"[Brimo_Talus]", "x_QZ_tal_dh=4"};
    EXPECT_EQ(ini(), crlfFile(expected));
}

TEST_F(GeneralCommitTest, StoredChoicesComeBackAsTheyWere) {
    writeBrimoIni("[Brimo_Gene]\r\nx_def_ounit=2\r\nx_def_punit=1\r\nx_chttt=1\r\nAffiProfil=0\r\nx_chtlay=1\r\n"
                  "Path_Win5=C:\\Outils\\a.exe\r\n");
    open();
    EXPECT_TRUE(find<QRadioButton>("Option4(5)")->isChecked()) << "value 1 selects the index 5";
    EXPECT_TRUE(find<QCheckBox>("Check3")->isChecked());
    find<QPushButton>("cmdOK")->click();

    QList<QByteArray> lines = defaultLispLines();
    replaceLine(lines, "(setq x_def_ounit", "(setq x_def_ounit 2) ;L'unité par défaut de l'espace objet est le m");
    replaceLine(lines, "(setq x_def_punit", "(setq x_def_punit 1) ;L'unité par défaut de l'espace papier est le cm");
    replaceLine(lines, "(setq x_chttt",
                "(setq x_chttt 1) ;Commande Autocad aprés choix du style - Texte sur une ligne");
    replaceLine(lines, "(setq affiprofil", "(setq affiprofil 0) ;Affichage du profil dessin - Inactif");
    replaceLine(lines, "(setq x_chtlay",
                "(setq x_chtlay 1) ;Layers à utiliser après l'appel de la commande - Layers courant");
    replaceLine(lines, "(setq path_win5",
                "(setq path_win5 \"C:\\\\Outils\\\\a.exe\") ;Emplacement d'un programme personnel");
    EXPECT_EQ(lisp(), crlfFile(lines));
    // Keys match without regard to case: the stored lines take the new values.
    EXPECT_TRUE(ini().startsWith("[Brimo_Gene]\r\nx_def_ounit=2\r\nx_def_punit=1\r\nx_chttt=1\r\nAffiProfil=0\r\n"
                                 "x_chtlay=1\r\nPath_Win5=C:\\Outils\\a.exe\r\ncadre_usery=860\r\n"));
    EXPECT_FALSE(ini().contains("affiprofil"));
}

TEST_F(GeneralCommitTest, ADoubleQuoteInAQuotedFieldIsRefusedWithEveryEditKept) {
    open();
    auto* tabs = find<QTabWidget>("SSTab1");
    auto* val15 = find<QLineEdit>("Val15");
    auto* val0 = find<QLineEdit>("Val0");
    val0->setText("900");
    val15->setText("Bureau \"Nord\"");
    tabs->setCurrentIndex(0);
    find<QPushButton>("cmdOK")->click();

    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].text.contains("x_nom_bureau"));
    EXPECT_TRUE(messages[0].text.contains("Nom de votre bureau"));
    EXPECT_EQ(tabs->currentIndex(), 3);
    EXPECT_EQ(QApplication::focusWidget(), val15);
    EXPECT_EQ(val15->text(), "Bureau \"Nord\"");
    EXPECT_EQ(val0->text(), "900");
    EXPECT_TRUE(ends().isEmpty());
    EXPECT_FALSE(prefix.exists(kLispPath));
    EXPECT_FALSE(prefix.exists(kIniPath));

    // A quote in a numeric field is no Lisp string: no refusal there; the
    // paths are strings too.
    val15->setText("Bureau Nord");
    find<QLineEdit>("Text15")->setText("C:\\a\"b.exe");
    find<QPushButton>("cmdOK")->click();
    ASSERT_EQ(messages.size(), 2);
    EXPECT_TRUE(messages[1].text.contains("path_win5"));
    EXPECT_EQ(tabs->currentIndex(), 5);
    EXPECT_TRUE(ends().isEmpty());
}

// A commit that cannot write shows one message naming the file, changes
// nothing and ends() with status 1.
TEST_F(GeneralCommitTest, AFolderThatIsMissingEndsWithAReport) {
    open();
    QDir(prefix.native("C:\\Zorel\\Var\\jo")).removeRecursively();
    find<QPushButton>("cmdOK")->click();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].text.contains(kLispPath));
    EXPECT_EQ(ends(), QList<int>{1});
    EXPECT_FALSE(prefix.exists("C:\\Zorel\\Var\\jo"));
}

TEST_F(GeneralCommitTest, AReadOnlyBrimoIniEndsWithAReportAndNothingChanged) {
    const QByteArray before = "[Brimo_Gene]\r\nx_incli=3\r\n";
    writeBrimoIni(before);
    prefix.write(kLispPath, "old");
    QFile::setPermissions(prefix.native(kIniPath), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    open();
    find<QPushButton>("cmdOK")->click();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].text.contains(kIniPath));
    EXPECT_EQ(ends(), QList<int>{1});
    EXPECT_EQ(ini(), before);
    EXPECT_EQ(lisp(), "old");
}

TEST_F(GeneralCommitTest, AFolderWhereBrimoIniShouldBeEndsWithAReportAndNothingChanged) {
    prefix.makeFolder(kIniPath);
    prefix.write(kLispPath, "old");
    open();
    find<QPushButton>("cmdOK")->click();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].text.contains(kIniPath));
    EXPECT_EQ(ends(), QList<int>{1});
    EXPECT_EQ(lisp(), "old");
}

} // namespace
} // namespace brimo::test
