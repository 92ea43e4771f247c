// Every group of option buttons of the general and slope dialogs, both ways,
// by real key presses (the rule is told in forms/OptionGroupKeys.h).

#include "dialogs/general/GeneralFormFixture.h"
#include "dialogs/slope/CParamRechTalus.h"

#include <QApplication>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace brimo::test {
namespace {

struct GroupCase {
    const char* ini;   // Brimo_Gene keys; "slope" opens the slope dialog
    int tab;           // of the general dialog
    const char* from;  // where the focus stands first; SSTab1 is the tab bar
    bool back;         // Shift+Tab, else Tab
    const char* entered;
    Qt::Key arrow;
    const char* selected;
    const char* leftTo;
};

const GroupCase kCases[] = {
    {"", 0, "Val3", false, "Option1(1)", Qt::Key_Right, "Option1(2)", "Option2(0)"},
    {"x_def_ounit=5", 0, "Option2(0)", true, "Option1(0)", Qt::Key_Left, "Option1(2)", "Val3"},
    {"", 0, "Option1(1)", false, "Option2(0)", Qt::Key_Down, "Option2(1)", "Text5"},
    {"", 0, "Text5", true, "Option2(0)", Qt::Key_Up, "Option2(2)", "Option1(1)"},
    {"", 2, "Val6", false, "Option4(4)", Qt::Key_Down, "Option4(3)", "SSTab1"},
    {"x_chttt=1", 2, "SSTab1", true, "Option4(5)", Qt::Key_Up, "Option4(3)", "Val6"},
    {"", 4, "Check1", true, "Option5(0)", Qt::Key_Down, "Option5(2)", "CmdCancel"}, // past the disabled Anglais
    {"x_lang=DEU", 4, "CmdCancel", false, "Option5(2)", Qt::Key_Right, "Option5(0)", "Check1"},
    {"slope", 0, "Check2", false, "Option1", Qt::Key_Right, "Option2", "Text1"},
    {"slope", 0, "Text1", true, "Option1", Qt::Key_Left, "Option2", "Check2"},
};

class OptionGroupKeys : public GeneralFormTest, public ::testing::WithParamInterface<GroupCase> {};

QString focusName() {
    QWidget* focused = QApplication::focusWidget();
    return qobject_cast<QTabBar*>(focused) ? QStringLiteral("SSTab1") : focused->objectName();
}

TEST_P(OptionGroupKeys, EnterOnTheSelectedButtonArrowsSelectTabLeaves) {
    const GroupCase& c = GetParam();
    const bool slope = !qstrcmp(c.ini, "slope");
    writeBrimoIni(QByteArray("[Brimo_Gene]\r\n") + (slope ? "" : c.ini) + "\r\n");
    QWidget* dialog = open();
    find<QTabWidget>(QStringLiteral("SSTab1"))->setCurrentIndex(c.tab);
    if (slope) {
        dialog = services->show(new CParamRechTalus(*services, services->info, services->legends));
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    }
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    };
    const auto step = [&] { c.back ? press(Qt::Key_Backtab, Qt::ShiftModifier) : press(Qt::Key_Tab); };

    QWidget* from = dialog->findChild<QWidget*>(QLatin1String(c.from));
    (from ? from : dialog->findChild<QTabBar*>())->setFocus(Qt::OtherFocusReason);
    step();
    EXPECT_EQ(focusName(), QLatin1String(c.entered));
    press(c.arrow);
    EXPECT_EQ(focusName(), QLatin1String(c.selected));
    EXPECT_TRUE(dialog->findChild<QRadioButton*>(QLatin1String(c.selected))->isChecked());
    step();
    EXPECT_EQ(focusName(), QLatin1String(c.leftTo));
    if (c.tab == 4) // the click of Option5 switches the language
        EXPECT_EQ(services->variables.text(u"x_lang"), QLatin1String(c.arrow == Qt::Key_Down ? "DEU" : "FRA"));
}

INSTANTIATE_TEST_SUITE_P(Groups, OptionGroupKeys, ::testing::ValuesIn(kCases));

} // namespace
} // namespace brimo::test
