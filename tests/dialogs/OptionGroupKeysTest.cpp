// Every group of option buttons of the general and slope dialogs, both ways,
// by real key presses: the rows of tests/golden/option-group-keys.tsv (the
// rule is told in forms/OptionGroupKeys.h).

#include "dialogs/general/GeneralFormFixture.h"
#include "dialogs/slope/CParamRechTalus.h"
#include "support/Golden.h"

#include <QApplication>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace brimo::test {
namespace {

using OptionGroupKeys = GeneralFormTest;

QString focusName() {
    QWidget* focused = QApplication::focusWidget();
    return qobject_cast<QTabBar*>(focused) ? QStringLiteral("SSTab1") : focused->objectName();
}

void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier); }

TEST_F(OptionGroupKeys, EnterOnTheSelectedButtonArrowsSelectTabLeaves) {
    const QMap<QString, Qt::Key> keys{{"Tab", Qt::Key_Tab}, {"Backtab", Qt::Key_Backtab}, {"Right", Qt::Key_Right},
                                      {"Left", Qt::Key_Left}, {"Down", Qt::Key_Down}, {"Up", Qt::Key_Up}};
    for (const QByteArray& line : Golden(QStringLiteral("option-group-keys.tsv")).split('\n')) {
        if (line.isEmpty() || line.startsWith('#')) continue;
        const QStringList c = QString::fromUtf8(line).split(u'\t');
        ASSERT_EQ(c.size(), 8) << line.constData();
        SCOPED_TRACE(line.constData());
        TearDown();
        SetUp();
        const bool slope = c[0] == u"slope";
        writeBrimoIni("[Brimo_Gene]\r\n" + (c[0] == u"-" || slope ? QByteArray() : c[0].toLatin1()) + "\r\n");
        QWidget* dialog = open();
        find<QTabWidget>(QStringLiteral("SSTab1"))->setCurrentIndex(c[1].toInt());
        if (slope) {
            dialog = services->show(new CParamRechTalus(*services, services->info, services->legends));
            dialog->activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
        }
        QWidget* from = dialog->findChild<QWidget*>(c[2]);
        (from ? from : dialog->findChild<QTabBar*>())->setFocus(Qt::OtherFocusReason);
        press(keys[c[3]]);
        EXPECT_EQ(focusName(), c[4]);
        press(keys[c[5]]);
        EXPECT_EQ(focusName(), c[6]);
        EXPECT_TRUE(dialog->findChild<QRadioButton*>(c[6])->isChecked());
        press(keys[c[3]]);
        EXPECT_EQ(focusName(), c[7]);
        if (c[1] == u"4") // the click of Option5 switches the language
            EXPECT_EQ(services->variables.text(u"x_lang"), QLatin1String(c[5] == u"Down" ? "DEU" : "FRA"));
    }
}

} // namespace
} // namespace brimo::test
