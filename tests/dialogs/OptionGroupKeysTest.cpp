// The keyboard of every group of option buttons of the general and slope
// dialogs, through real key presses: Tab or Shift+Tab enters the group on its
// selected button (the first enabled one when none is), an arrow moves the
// selection past disabled buttons and round the end, and the next Tab or
// Shift+Tab leaves the group.

#include "dialogs/general/GeneralFormFixture.h"
#include "dialogs/slope/CParamRechTalus.h"

#include <QApplication>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <cctype>

namespace brimo::test {
namespace {

struct GroupCase {
    const char* name;
    bool slope;            // the slope dialog, else the general one
    const char* ini;       // section Brimo_Gene of Brimo.ini
    int tab;               // the general dialog's tab that shows the group
    const char* from;      // where the focus stands first; "SSTab1" is the tab bar
    bool backwards;        // Shift+Tab, else Tab
    const char* entered;   // the button that the focus enters on
    Qt::Key arrow;
    const char* selected;  // the button selected and focused after the arrow
    const char* leftTo;    // where the next Tab or Shift+Tab goes
};

const GroupCase kCases[] = {
    {"Option1 forwards", false, "", 0, "Val3", false, "Option1(1)", Qt::Key_Right, "Option1(2)", "Option2(0)"},
    {"Option1 backwards", false, "", 0, "Option2(0)", true, "Option1(1)", Qt::Key_Left, "Option1(0)", "Val3"},
    {"Option1 none selected", false, "x_def_ounit=5", 0, "Val3", false, "Option1(0)", Qt::Key_Down, "Option1(1)",
     "Option2(0)"},
    {"Option2 backwards, round the end", false, "", 0, "Text5", true, "Option2(0)", Qt::Key_Up, "Option2(2)",
     "Option1(1)"},
    {"Option4 forwards", false, "", 2, "Val6", false, "Option4(4)", Qt::Key_Down, "Option4(3)", "SSTab1"},
    {"Option4 backwards", false, "x_chttt=1", 2, "SSTab1", true, "Option4(5)", Qt::Key_Up, "Option4(3)", "Val6"},
    {"Option5 backwards, past a disabled one", false, "", 4, "Check1", true, "Option5(0)", Qt::Key_Down,
     "Option5(2)", "CmdCancel"},
    {"Option5 forwards, round the end", false, "", 4, "CmdCancel", false, "Option5(0)", Qt::Key_Up, "Option5(2)",
     "Check1"},
    {"Option5 from German", false, "x_lang=DEU", 4, "CmdCancel", false, "Option5(2)", Qt::Key_Right, "Option5(0)",
     "Check1"},
    {"slope forwards", true, "", 0, "Check2", false, "Option1", Qt::Key_Right, "Option2", "Text1"},
    {"slope backwards, round the end", true, "", 0, "Text1", true, "Option1", Qt::Key_Left, "Option2", "Check2"},
};

class OptionGroupKeys : public GeneralFormTest, public ::testing::WithParamInterface<GroupCase> {
protected:
    QWidget* dialog = nullptr;

    QWidget* control(const char* name) const {
        if (!qstrcmp(name, "SSTab1")) return dialog->findChild<QTabWidget*>(QStringLiteral("SSTab1"))->tabBar();
        return dialog->findChild<QWidget*>(QLatin1String(name));
    }
    static QString focusName() {
        QWidget* focused = QApplication::focusWidget();
        if (qobject_cast<QTabBar*>(focused)) return QStringLiteral("SSTab1");
        return focused ? focused->objectName() : QString();
    }
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
};

TEST_P(OptionGroupKeys, EnterOnTheSelectedButtonArrowsSelectTabLeaves) {
    const GroupCase& c = GetParam();
    writeBrimoIni(QByteArray("[Brimo_Gene]\r\n") + c.ini + "\r\n");
    open();
    dialog = form;
    if (c.slope) {
        dialog = services->show(new CParamRechTalus(*services, services->info, services->legends));
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    } else {
        find<QTabWidget>(QStringLiteral("SSTab1"))->setCurrentIndex(c.tab);
    }
    const auto step = [&c] {
        if (c.backwards) press(Qt::Key_Backtab, Qt::ShiftModifier);
        else press(Qt::Key_Tab);
    };

    control(c.from)->setFocus(Qt::OtherFocusReason);
    ASSERT_EQ(focusName(), QLatin1String(c.from));
    step();
    EXPECT_EQ(focusName(), QLatin1String(c.entered));
    press(c.arrow);
    EXPECT_EQ(focusName(), QLatin1String(c.selected));
    EXPECT_TRUE(static_cast<QRadioButton*>(control(c.selected))->isChecked());
    step();
    EXPECT_EQ(focusName(), QLatin1String(c.leftTo));
    if (!c.slope && QByteArray(c.selected).startsWith("Option5")) // the click switches the language
        EXPECT_EQ(services->variables.text(u"x_lang"), QLatin1String(c.selected == QByteArray("Option5(2)") ? "DEU" : "FRA"));
}

INSTANTIATE_TEST_SUITE_P(Groups, OptionGroupKeys, ::testing::ValuesIn(kCases), [](const auto& info) {
    QByteArray name = info.param.name;
    for (char& ch : name)
        if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
    return name.toStdString();
});

} // namespace
} // namespace brimo::test
