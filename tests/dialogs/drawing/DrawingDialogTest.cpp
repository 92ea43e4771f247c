// The drawing variables dialog beyond its snapshot: the grey fields, buttons
// that do nothing, and the two rows of tabs.

#include "dialogs/drawing/CVarGlobale.h"
#include "forms/RowTabControl.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace brimo;

class DrawingDialogTest : public QObject {
    Q_OBJECT
    CVarGlobale* dialog_ = nullptr;

    template <class W = QWidget> W* control(const QString& name) { return dialog_->findChild<W*>(name); }

private slots:
    void init() {
        dialog_ = new CVarGlobale;
        dialog_->Form_Load();
        dialog_->show();
    }
    void cleanup() { dialog_->close(); }

    void greyFields() {
        const QPalette plain = control("Text4(0)")->palette();
        const QPalette greyText = control("Text4(3)")->palette();
        const QPalette greyColours = control("Text4(4)")->palette();
        QCOMPARE(greyText.color(QPalette::Text), plain.color(QPalette::Disabled, QPalette::Text));
        QCOMPARE(greyText.color(QPalette::Base), plain.color(QPalette::Base));
        QCOMPARE(greyColours.color(QPalette::Text), plain.color(QPalette::Disabled, QPalette::Text));
        QCOMPARE(greyColours.color(QPalette::Base), plain.color(QPalette::Button));
    }

    // Its buttons have no action: the window stays, with what was typed.
    void buttonsDoNothing() {
        control<QLineEdit>("Val15")->setText("Bureau Dupont");
        control<QCheckBox>("Check6(1)")->setCheckState(Qt::Checked);
        for (const char* name : {"Command1(0)", "Command1(1)", "Command1(2)", "Command2", "Command3(0)", "Command3(3)"}) {
            control<QPushButton>(name)->click();
            QVERIFY2(dialog_->isVisible(), name);
        }
        QCOMPARE(control<QLineEdit>("Val15")->text(), QStringLiteral("Bureau Dupont"));
        QCOMPARE(control<QCheckBox>("Check6(1)")->checkState(), Qt::Checked);
        QTest::keyClick(control("Val15"), Qt::Key_Return);
        QVERIFY(dialog_->isVisible());
    }

    // Two rows of three tabs; the row of the current tab stands next to the
    // page, whether the tab was reached by the keyboard or by the mouse.
    void tabRows() {
        QVERIFY(QTest::qWaitForWindowActive(dialog_));
        auto* tabs = control<RowTabControl>("SSTab1");
        const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
        // From tab `start` with the focus on `focus` (SSTab1: the tabs), a key
        // (Key_unknown: a click on the tab `expected`) goes to tab `expected`.
        const struct { int start; const char* focus; Qt::Key key; Qt::KeyboardModifiers mods; int expected; } rows[] = {
            {2, "SSTab1", Qt::Key_Right, {}, 3}, {5, "SSTab1", Qt::Key_Down, {}, 5}, {4, "SSTab1", Qt::Key_Home, {}, 0},
            {0, "Text4(0)", Qt::Key_Tab, ctrl, 1}, {0, "Text4(0)", Qt::Key_Backtab, ctrl | Qt::ShiftModifier, 5},
            {5, "SSTab1", Qt::Key_PageDown, ctrl, 0}, {4, "Val15", Qt::Key_PageUp, ctrl, 3},
            {2, "SSTab1", Qt::Key_unknown, {}, 4},
        };
        for (const auto& row : rows) {
            tabs->setCurrentIndex(row.start);
            control(row.focus)->setFocus(Qt::OtherFocusReason);
            if (row.key != Qt::Key_unknown) QTest::keyClick(QApplication::focusWidget(), row.key, row.mods);
            else QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(row.expected).center());
            QCOMPARE(tabs->currentIndex(), row.expected);
            for (int tab = 0; tab < tabs->count(); ++tab)
                QCOMPARE(tabs->tabRect(tab).top() > 0, tabs->rowOf(tab) == tabs->rowOf(row.expected));
        }
    }
};

QTEST_MAIN(DrawingDialogTest)
#include "DrawingDialogTest.moc"
