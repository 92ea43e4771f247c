// The form's build and its remaining buttons: geometry, kinds of controls,
// tab order, the keys Escape and Enter, the program location dialogs.
#include "GeneralFormFixture.h"

#include "forms/RuleField.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace brimo::test {
namespace {

using GeneralButtonsTest = GeneralFormTest;

TEST_F(GeneralButtonsTest, TheFormAndItsButtonsStandWhereTheTwipsSay) {
    open();
    EXPECT_EQ(form->size(), TwipsSize(7470, 4455));
    EXPECT_EQ(form->minimumSize(), form->maximumSize());
    EXPECT_FALSE(form->windowFlags() & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
    EXPECT_FALSE(form->windowIcon().isNull());
    EXPECT_EQ(find<QTabWidget>("SSTab1")->geometry(), TwipsRect(117, 117, 7137, 3887));
    EXPECT_EQ(find<QTabWidget>("SSTab1")->count(), 6);
    const std::pair<const char*, int> buttons[] = {{"Command7", 117}, {"cmdAbout", 1170}, {"cmdOK", 3978},
                                                   {"CmdCancel", 5031}};
    for (const auto& [name, left] : buttons) EXPECT_EQ(find<QPushButton>(name)->geometry(), TwipsRect(left, 3978, 975, 375));
    EXPECT_TRUE(find<QPushButton>("cmdOK")->isDefault());
}

TEST_F(GeneralButtonsTest, EveryControlHasItsKindAndFrame) {
    open();
    // The 38 fields with a rule, each bound to its own row; the six paths without.
    EXPECT_EQ(form->findChildren<RuleField*>().size(), 38);
    for (RuleField* field : form->findChildren<RuleField*>())
        EXPECT_EQ(field->objectName(), QLatin1String(field->rule().control));
    for (const char* name : {"Text11", "Text12", "Text13", "Text14", "Text15", "Text18"}) {
        EXPECT_EQ(qobject_cast<RuleField*>(find<QLineEdit>(name)), nullptr) << name;
    }
    // Numbers centred, texts to the left.
    EXPECT_EQ(find<QLineEdit>("Val0")->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
    EXPECT_EQ(find<QLineEdit>("Text5")->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
    EXPECT_EQ(find<QLineEdit>("Val4")->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignLeft);
    EXPECT_EQ(find<QLineEdit>("Text1")->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignLeft);
    // Frames within frames.
    const std::pair<const char*, const char*> parents[] = {
        {"Val1", "Frame7"}, {"Val0", "Frame7"}, {"Shape1", "Frame7"}, {"Box2", "Frame7"}, {"Val3", "Box2"},
        {"Frame5", "Frame4"}, {"Option1(2)", "Frame5"}, {"Option2(0)", "Frame6"}, {"Text10", "Frame9"},
        {"Check3", "Box5"}, {"Text2", "Frame2"}, {"Option4(3)", "Box4"}, {"Val18", "Frame1"},
        {"Option5(1)", "Frame8"}, {"Text18", "Frame10"},
    };
    for (const auto& [child, parent] : parents)
        EXPECT_EQ(find<QWidget>(child)->parentWidget()->objectName(), parent) << child;
    for (const char* name : {"Check1", "Check2", "Check3"}) EXPECT_TRUE(find<QCheckBox>(name)->isTristate());
    // Val1 above the sketch, Val0 to its right.
    const QRect sketch = find<QWidget>("Shape1")->geometry();
    EXPECT_LT(find<QWidget>("Val1")->geometry().bottom(), sketch.top());
    EXPECT_GT(find<QWidget>("Val0")->geometry().left(), sketch.right());
    // On the programs' tab Acrobat Reader stands above the personal program.
    EXPECT_LT(find<QWidget>("Command6")->y(), find<QWidget>("Command5")->y());
}

TEST_F(GeneralButtonsTest, DefaultsSelectTheStoredOptionsAndChecks) {
    open();
    for (const char* name : {"Option1(1)", "Option2(0)", "Option4(4)", "Option5(0)"})
        EXPECT_TRUE(find<QRadioButton>(name)->isChecked()) << name;
    EXPECT_EQ(find<QCheckBox>("Check1")->checkState(), Qt::Checked);
    EXPECT_EQ(find<QCheckBox>("Check2")->checkState(), Qt::Checked);
    EXPECT_EQ(find<QCheckBox>("Check3")->checkState(), Qt::Unchecked);
    // A click never makes the grey state.
    auto* check3 = find<QCheckBox>("Check3");
    check3->click();
    EXPECT_EQ(check3->checkState(), Qt::Checked);
    check3->click();
    EXPECT_EQ(check3->checkState(), Qt::Unchecked);
}

TEST_F(GeneralButtonsTest, TheTabKeyFollowsTheTabIndexes) {
    open();
    const QStringList order = {
        "cmdOK", "Val4", "Val1", "Val0", "Val2", "Val3", "Option1(0)", "Option1(1)", "Option1(2)", "Option2(0)",
        "Option2(1)", "Option2(2)", "Text5", "Text6", "Text7", "Text8", "Text9", "Text10", "Command7", "cmdAbout",
        "CmdCancel", "Val7", "Text1", "Val8", "Text20", "Val9", "Text21", "Val10", "Text22", "Val11", "Text23",
        "Val12", "Text24", "Val13", "Text25", "Val14", "Text26", "Check3", "Text4", "Text19", "Text2", "Val5",
        "Val6", "Option4(5)", "Option4(6)", "Option4(4)", "Option4(3)", "Val15", "Val16", "Val17", "Val18",
        "Val19", "Val20", "Option5(0)", "Option5(1)", "Option5(2)", "Option5(3)", "Check1", "Check2", "Command1",
        "Text11", "Command2", "Text12", "Command3", "Text13", "Command4", "Text14", "Command6", "Text18",
        "Command5", "Text15", "SSTab1", "Command8"};
    // The focus chain, read from cmdOK, with the tab bar standing for SSTab1.
    QStringList chain;
    QWidget* widget = find<QWidget>("cmdOK");
    do {
        QString name = widget->objectName();
        if (widget == find<QTabWidget>("SSTab1")->tabBar()) name = "SSTab1";
        if (order.contains(name) && !chain.contains(name)) chain.append(name);
        widget = widget->nextInFocusChain();
    } while (widget != find<QWidget>("cmdOK"));
    EXPECT_EQ(chain, order);

    // From cmdOK the Tab key reaches the first field of the first tab.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find<QWidget>("Val4"));
}

TEST_F(GeneralButtonsTest, EscapeAndCommand8DoNothing) {
    open();
    find<QLineEdit>("Val15")->setText("Mon bureau");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    find<QPushButton>("Command8")->click();
    find<QPushButton>("Command8")->click();
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(ends().isEmpty());
    EXPECT_TRUE(messages.isEmpty());
    EXPECT_EQ(find<QLineEdit>("Val15")->text(), "Mon bureau");
    EXPECT_FALSE(prefix.exists(kLispPath));
}

TEST_F(GeneralButtonsTest, CancelEndsAtOnceWithoutWriting) {
    writeBrimoIni("[Brimo_Gene]\r\nx_incli=3\r\n");
    open();
    find<QLineEdit>("Val5")->setText("9");
    find<QPushButton>("CmdCancel")->click();
    EXPECT_EQ(ends(), QList<int>{0});
    EXPECT_EQ(ini(), "[Brimo_Gene]\r\nx_incli=3\r\n");
    EXPECT_FALSE(prefix.exists(kLispPath));
}

TEST_F(GeneralButtonsTest, AboutOpensBesideTheForm) {
    open();
    find<QPushButton>("cmdAbout")->click();
    EXPECT_EQ(services->shown, QList<FormKind>{FormKind::About});
    EXPECT_TRUE(form->isVisible());
}

// Answers the next file dialog: checks what it shows, then picks `file` or cancels.
struct FileDialogSeen {
    QString title;
    QStringList filters;
    QStringList initial;
};
void answerNextFileDialog(FileDialogSeen& seen, const QString& file) {
    QTimer::singleShot(0, [&seen, file] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        seen = {dialog->windowTitle(), dialog->nameFilters(), dialog->selectedFiles()};
        if (file.isEmpty()) {
            dialog->reject();
            return;
        }
        dialog->selectFile(file);
        static_cast<QDialog*>(dialog)->accept(); // as the Open button does
    });
}

TEST_F(GeneralButtonsTest, AProgramButtonPutsTheChosenFileIntoItsField) {
    writeLegends("FRA", {{173, "Programmes (*.exe)|*.exe|Tous (*.*)|*.*"}});
    prefix.write("C:\\Outils\\calc.exe", "");
    writeBrimoIni("[Brimo_Gene]\r\nPath_Win2=C:\\Outils\\calc.exe\r\n");
    open();

    FileDialogSeen seen;
    answerNextFileDialog(seen, prefix.native("C:\\Outils\\neuf.exe"));
    find<QPushButton>("Command5")->click();
    EXPECT_EQ(seen.title, legend("FRA", 172));
    EXPECT_EQ(seen.filters, QStringList({"Programmes (*.exe)", "Tous (*.*)"}));
    EXPECT_EQ(find<QLineEdit>("Text15")->text(), "C:\\Outils\\neuf.exe");

    // The dialog opens on the field's file; a cancel changes nothing.
    answerNextFileDialog(seen, {});
    find<QPushButton>("Command2")->click();
    EXPECT_EQ(seen.title, legend("FRA", 169));
    ASSERT_EQ(seen.initial.size(), 1);
    EXPECT_EQ(QFileInfo(seen.initial[0]).canonicalFilePath(),
              QFileInfo(prefix.native("C:\\Outils\\calc.exe")).canonicalFilePath());
    EXPECT_EQ(find<QLineEdit>("Text12")->text(), "C:\\Outils\\calc.exe");

    // Command6 has its own title; a file outside the prefix keeps its native path.
    answerNextFileDialog(seen, "/usr/bin/env");
    find<QPushButton>("Command6")->click();
    EXPECT_EQ(seen.title, legend("FRA", 174));
    EXPECT_EQ(find<QLineEdit>("Text18")->text(), "/usr/bin/env");
    EXPECT_TRUE(ends().isEmpty());
}

} // namespace
} // namespace brimo::test
