// CGeneralForm driven as a user drives it (what OK writes is in
// CommitCasesTest): what it refuses, the words of every language, and the buttons.
// Its layout and captions at load are pinned by the form snapshots.
#include "GeneralFormFixture.h"

#include "support/Golden.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <tuple>

namespace brimo::test {
namespace {

using GeneralCommitTest = GeneralFormTest;

TEST_F(GeneralCommitTest, ADoubleQuoteInALispStringIsRefusedWithEveryEditKept) {
    open();
    auto* tabs = find<QTabWidget>("SSTab1");
    auto* val15 = find<QLineEdit>("Val15");
    find<QLineEdit>("Val0")->setText("9\"00"); // a numeric row: no string, no refusal
    val15->setText("Bureau \"Nord\"");
    find<QPushButton>("cmdOK")->click();
    ASSERT_EQ(messages.size(), 1);
    // Named by the caption beside it on screen (the English of a program
    // without translations).
    EXPECT_EQ(messages[0].text.toStdString(), "The field \"FRA 131\" holds a double quote (\"), which the "
                                              "Lisp file cannot take. Remove it, then press OK again.");
    EXPECT_EQ(tabs->currentIndex(), 3);
    EXPECT_EQ(QApplication::focusWidget(), val15);
    EXPECT_EQ(val15->text(), "Bureau \"Nord\"");
    EXPECT_TRUE(ends().isEmpty());
    EXPECT_FALSE(prefix.exists(kLispPath) || prefix.exists(kIniPath));

    val15->setText("Bureau Nord");
    find<QLineEdit>("Text15")->setText("C:\\a\"b.exe");
    find<QPushButton>("cmdOK")->click();
    ASSERT_EQ(messages.size(), 2);
    EXPECT_TRUE(messages[1].text.contains(find<QLineEdit>("Text15")->accessibleName())) << messages[1].text.toStdString();
    EXPECT_EQ(tabs->currentIndex(), 5);
    EXPECT_TRUE(ends().isEmpty());

    // Another program stores a quote meanwhile in a field the user left
    // alone: OK shows it there before it refuses it.
    find<QLineEdit>("Text15")->setText("C:\\ab.exe");
    writeBrimoIni("[Brimo_Gene]\r\ncadre_layer=Le \"Cadre\"\r\n");
    find<QPushButton>("cmdOK")->click();
    ASSERT_EQ(messages.size(), 3);
    EXPECT_TRUE(messages[2].text.contains(find<QLineEdit>("Val4")->accessibleName())) << messages[2].text.toStdString();
    EXPECT_EQ(find<QLineEdit>("Val4")->text(), "Le \"Cadre\"");
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_TRUE(ends().isEmpty());
}

// A commit that cannot write shows one message naming the file and why,
// changes nothing and ends with status 1.
TEST_F(GeneralCommitTest, ACommitThatCannotWriteReportsAndChangesNothing) {
    enum Spoil { NoFolder, ReadOnlyIni, FolderForLisp };
    const std::tuple<Spoil, QString, QString> failures[] = {
        {NoFolder, kLispPath, "the folder $/dosdevices/c:/Zorel/Var/jo does not exist"},
        {ReadOnlyIni, kIniPath, "the file is read-only"},
        {FolderForLisp, kLispPath, "a folder stands where the file should be"},
    };
    for (const auto& [spoil, named, reason] : failures) {
        SCOPED_TRACE(reason.toStdString());
        TearDown();
        QDir(prefix.native(QStringLiteral("C:\\Zorel\\Var\\jo"))).removeRecursively();
        SetUp();
        writeBrimoIni("[Brimo_Gene]\r\nx_incli=3\r\n");
        prefix.write(kLispPath, "old");
        open();
        if (spoil == NoFolder) QDir(prefix.native("C:\\Zorel\\Var\\jo")).removeRecursively();
        if (spoil == ReadOnlyIni) QFile::setPermissions(prefix.native(kIniPath), QFile::ReadOwner | QFile::ReadOther);
        if (spoil == FolderForLisp) QFile::remove(prefix.native(kLispPath)), prefix.makeFolder(kLispPath);
        const QByteArray iniBefore = ini(), lispBefore = lisp();
        find<QPushButton>("cmdOK")->click();
        ASSERT_EQ(messages.size(), 1);
        EXPECT_EQ(messages[0].text.toStdString(), QStringLiteral("The file %1 could not be written: %2.\r\nNo file was changed.")
                                        .arg(named, QString(reason).replace(u'$', prefix.root())).toStdString());
        EXPECT_EQ(ends(), QList<int>{1});
        EXPECT_EQ(ini(), iniBefore);
        EXPECT_EQ(lisp(), lispBefore);
    }
}
// Leaving a field runs its rule; a refusal shows legends 166 and 167 and
// keeps the focus. The rules themselves are tested on their own table.
TEST_F(GeneralFormTest, LeavingAFieldRepairsOrRefusesItsText) {
    const bool comma = QLocale::system().decimalPoint() == QLatin1String(",");
    EXPECT_EQ(comma, qEnvironmentVariable("LC_ALL").startsWith("de_DE"));
    const struct {
        const char* field;
        const char* typed;
        const char* after;
        bool refused;
    } typings[] = {
        {"Val0", "", "860", false},
        {"Val6", "", comma ? "0,7" : "0.7", false},
        {"Val0", "abc", "abc", true},
        {"Val7", comma ? "-2,50" : "-2.50", comma ? "2,5" : "2.5", false},
        {"Val7", ".5", comma ? ".5" : "0.5", comma},
        {"Text8", "300", "4", false},
        {"Text19", "257", "255", false},
        {"Val15", "Bureau \"Nord\"", "Bureau \"Nord\"", false},
    };
    open();
    auto* tabs = find<QTabWidget>("SSTab1");
    for (const auto& typing : typings) {
        SCOPED_TRACE(std::string(typing.field) + " <- '" + typing.typed + "'");
        auto* field = find<QLineEdit>(typing.field);
        for (int tab = 0; tab < tabs->count(); ++tab)
            if (tabs->widget(tab)->isAncestorOf(field)) tabs->setCurrentIndex(tab);
        field->setFocus();
        EXPECT_EQ(field->selectedText(), field->text()) << "the entry selects the whole text";
        const QString typed = QString::fromUtf8(typing.typed);
        if (typed.isEmpty()) QTest::keyClick(field, Qt::Key_Delete);
        else QTest::keyClicks(field, typed);
        messages.clear();
        QTest::keyClick(field, Qt::Key_Tab);
        EXPECT_EQ(field->text(), QString::fromUtf8(typing.after));
        EXPECT_EQ(messages.size(), typing.refused ? 1 : 0);
        EXPECT_EQ(QApplication::focusWidget() == field, typing.refused);
        if (typing.refused) {
            EXPECT_EQ(messages[0].text, legend("FRA", 166));
            EXPECT_EQ(messages[0].title, legend("FRA", 167));
            EXPECT_EQ(messages[0].flags, 4160);
            field->setText(QStringLiteral("1"));
        }
        find<QWidget>("cmdOK")->setFocus();
    }
}

// Two refused texts: the focus goes back to the field left first, without the
// other one's rule taking it away again.
TEST_F(GeneralFormTest, ARefusalDoesNotStartTheNextFieldsRule) {
    open();
    auto* val0 = find<QLineEdit>("Val0");
    auto* val3 = find<QLineEdit>("Val3");
    val0->setText("abc");
    val3->setText("abc");
    val0->setFocus();
    val3->setFocus();
    EXPECT_EQ(messages.size(), 1);
    EXPECT_EQ(QApplication::focusWidget(), val0);
}

TEST_F(GeneralFormTest, ATabChangeWordsThatTabAgain) {
    open();
    EXPECT_EQ(QApplication::focusWidget(), find<QPushButton>("cmdOK"));
    EXPECT_EQ(legendQuestions(), 0);
    QTest::keyClick(find<QPushButton>("cmdOK"), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find("Val4"));
    SetCaption(find("Frame1"), "changed");
    SetCaption(find("Frame8"), "changed");
    find<QTabWidget>("SSTab1")->setCurrentIndex(3);
    EXPECT_EQ(find<QGroupBox>("Frame1")->title(), legend("FRA", 147));
    EXPECT_EQ(find<QGroupBox>("Frame8")->title(), "changed") << "only the tab that became current";
}

TEST_F(GeneralFormTest, SwitchingLanguageRewordsEveryTabKeepsTheValuesAndRunsNoRule) {
    writeBrimoIni("[Brimo_Gene]\r\ncadre_usery=abc\r\nx_ht_gc1=xyz\r\n");
    open();
    find<QLineEdit>("Val15")->setText("Mon bureau");
    clickOption("Option5(2)");
    EXPECT_EQ(services->variables.text(u"x_lang"), "DEU");
    EXPECT_EQ(find<QTabWidget>("SSTab1")->currentIndex(), 4);
    EXPECT_EQ(QApplication::focusWidget(), find("Option5(2)"));
    expectLegendCaptions("DEU", "FRA");
    EXPECT_EQ(find<QLineEdit>("Val15")->text(), "Mon bureau");
    EXPECT_EQ(find<QLineEdit>("Val0")->text(), "abc");
    EXPECT_TRUE(messages.isEmpty());
    EXPECT_FALSE(prefix.exists(kLispPath));

    // A failed reload empties the captions; a good one brings them back.
    removeLegends("DEU");
    clickOption("Option5(0)");
    clickOption("Option5(2)");
    EXPECT_EQ(legendQuestions(), 1);
    expectLegendCaptions("", "FRA");
    clickOption("Option5(0)");
    expectLegendCaptions("FRA", "FRA");

    // Opened again from the chooser: the new language, the edits gone.
    clickOption("Option5(2)");
    writeLegends("DEU");
    clickOption("Option5(0)");
    clickOption("Option5(2)");
    find<QPushButton>("Command7")->click();
    EXPECT_EQ(services->shown, QList<FormKind>{FormKind::Chooser});
    EXPECT_FALSE(form->isVisible());
    reopen();
    expectLegendCaptions("DEU", "DEU");
    EXPECT_EQ(find<QLineEdit>("Val15")->text(), "Nom du bureau");
    EXPECT_TRUE(ends().isEmpty());
}

TEST_F(GeneralFormTest, AStoredLanguageOpensOnTheLanguageTab) {
    const struct {
        const char* code;
        const char* option;
        bool fileThere;
        int questions;
    } languages[] = {{"DEU", "Option5(2)", true, 0}, {"ENG", "Option5(1)", true, 0}, {"DEU", "Option5(2)", false, 2}};
    for (const auto& language : languages) {
        SCOPED_TRACE(language.code);
        TearDown();
        SetUp();
        if (language.fileThere) writeLegends(language.code);
        else removeLegends(language.code);
        writeBrimoIni(QByteArray("[Brimo_Gene]\r\nx_lang=") + language.code + "\r\n");
        open();
        EXPECT_EQ(find<QTabWidget>("SSTab1")->currentIndex(), 4);
        EXPECT_TRUE(find<QRadioButton>(language.option)->isChecked());
        EXPECT_EQ(legendQuestions(), language.questions);
        const QString shown = language.fileThere ? QString::fromLatin1(language.code) : QString();
        expectLegendCaptions(shown, shown);
    }
}

TEST_F(GeneralFormTest, EscapeCommand8AndAClickOnACheckBoxDoNoHarm) {
    open();
    find<QLineEdit>("Val15")->setText("Mon bureau");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    find<QPushButton>("Command8")->click();
    auto* check3 = find<QCheckBox>("Check3");
    check3->click();
    check3->click();
    EXPECT_EQ(check3->checkState(), Qt::Unchecked) << "a click never makes the grey state";
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(ends().isEmpty() && messages.isEmpty());
    EXPECT_EQ(find<QLineEdit>("Val15")->text(), "Mon bureau");
    find<QPushButton>("cmdAbout")->click();
    EXPECT_EQ(services->shown, QList<FormKind>{FormKind::About});
    find<QPushButton>("CmdCancel")->click();
    EXPECT_EQ(ends(), QList<int>{0});
    EXPECT_FALSE(prefix.exists(kLispPath) || prefix.exists(kIniPath));
}

// A program button opens a file dialog titled by its legend, with the filter
// of legend 173, on the field's file; the chosen file goes into the field, a
// cancel changes nothing, a file outside the prefix keeps its native path.
TEST_F(GeneralFormTest, AProgramButtonPutsTheChosenFileIntoItsField) {
    writeLegends("FRA", {{173, "Programmes (*.exe)|*.exe|Tous (*.*)|*.*"}});
    prefix.write("C:\\Outils\\calc.exe", "");
    writeBrimoIni("[Brimo_Gene]\r\nPath_Win2=C:\\Outils\\calc.exe\r\n");
    open();
    const struct { const char* button; int title; const char* field; QString answer, after; bool opensOnField; } rows[] = {
        {"Command5", 172, "Text15", prefix.native("C:\\Outils\\neuf.exe"), "C:\\Outils\\neuf.exe", false},
        {"Command2", 169, "Text12", {}, "C:\\Outils\\calc.exe", true},
        {"Command6", 174, "Text18", "/usr/bin/env", "/usr/bin/env", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.button);
        QString title;
        QStringList filters, initial;
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            title = dialog->windowTitle(), filters = dialog->nameFilters(), initial = dialog->selectedFiles();
            if (row.answer.isEmpty()) return dialog->reject();
            dialog->selectFile(row.answer);
            static_cast<QDialog*>(dialog)->accept(); // as the Open button does
        });
        find<QPushButton>(row.button)->click();
        EXPECT_EQ(title, legend("FRA", row.title));
        EXPECT_EQ(filters, QStringList({"Programmes (*.exe)", "Tous (*.*)"}));
        EXPECT_EQ(find<QLineEdit>(row.field)->text(), row.after);
        if (row.opensOnField)
            EXPECT_EQ(QFileInfo(initial.value(0)).canonicalFilePath(), QFileInfo(prefix.native(row.after)).canonicalFilePath());
    }
}

} // namespace
} // namespace brimo::test
