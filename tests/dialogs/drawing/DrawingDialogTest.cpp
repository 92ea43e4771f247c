// The drawing variables dialog: every control of its table in place, a
// sample of design values checked against the form as drawn, and buttons
// that do nothing.

#include "dialogs/drawing/CVarGlobale.h"
#include "dialogs/drawing/DrawingControls.h"
#include "forms/RowTabControl.h"
#include "forms/WindowServices.h"
#include "support/ScratchPrefix.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace brimo;

namespace {

// What a control shows: its caption, value or title.
QString shownText(QWidget* widget) {
    if (auto* field = qobject_cast<QLineEdit*>(widget)) return field->text();
    if (auto* label = qobject_cast<QLabel*>(widget)) return label->text();
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) return button->text();
    if (auto* frame = qobject_cast<QGroupBox*>(widget)) return frame->title();
    return QString();
}

// The tab whose page holds the widget, or -1 outside the tab control.
int tabOf(QWidget* widget, RowTabControl* tabs) {
    for (QWidget* w = widget; w; w = w->parentWidget())
        if (int index = tabs->indexOf(w); index >= 0) return index;
    return -1;
}

} // namespace

class DrawingDialogTest : public QObject {
    Q_OBJECT
    test::ScratchPrefix prefix_;
    CVarGlobale* dialog_ = nullptr;

    template <class W = QWidget> W* control(const QString& name) { return dialog_->findChild<W*>(name); }

private slots:
    void init() {
        dialog_ = new CVarGlobale;
        dialog_->Form_Load();
        dialog_->show();
    }
    void cleanup() { dialog_->close(); }

    void windowAsDrawn() {
        QCOMPARE(dialog_->windowTitle(), QStringLiteral("Zorel2004 - Variables"));
        QCOMPARE(dialog_->size(), TwipsSize(11280, 6285));
        QVERIFY(dialog_->windowFlags() & Qt::WindowMinimizeButtonHint);
        QVERIFY(dialog_->windowFlags() & Qt::WindowMaximizeButtonHint);
        QVERIFY(dialog_->maximumSize().width() > dialog_->width()); // resizable

        auto* tabs = control<RowTabControl>("SSTab1");
        QCOMPARE(tabs->geometry(), TwipsRect(364, 234, 9477, 5161));
        const QStringList captions{"Courbes de niveau", "Report de points", "Talus", "Textes", "Général", "Profil"};
        QCOMPARE(tabs->count(), captions.size());
        for (int i = 0; i < tabs->count(); ++i) QCOMPARE(tabs->tabText(i), captions[i]);
        QCOMPARE(tabs->currentIndex(), 2);
    }

    // Each control stands in its parent at its twips, the tab's controls
    // counted from the tab control's corner, and on the tab of its row.
    void everyControlInPlace() {
        QVERIFY(QTest::qWaitForWindowExposed(dialog_));
        auto* tabs = control<RowTabControl>("SSTab1");
        QHash<QString, int> tabOfName;
        for (const DrawingControl& row : DrawingControls()) {
            const QString name = QString::fromLatin1(row.name);
            if (row.kind == DrawingKind::Tab) {
                tabOfName.insert(name, tabs->indexOf(control(name)));
                continue;
            }
            const QList<QWidget*> found = dialog_->findChildren<QWidget*>(name);
            QVERIFY2(found.size() == 1, row.name);
            QWidget* widget = found.front();
            const QString parent = QString::fromLatin1(row.parent);
            const QPoint corner = parent.isEmpty() ? QPoint()
                                  : tabOfName.contains(parent) ? tabs->mapTo(dialog_, QPoint())
                                                               : control(parent)->mapTo(dialog_, QPoint());
            QCOMPARE(QRect(widget->mapTo(dialog_, QPoint()), widget->size()),
                     TwipsRect(row.left, row.top, row.width, row.height).translated(corner));
            const int expectedTab = tabOfName.value(parent, parent.isEmpty() || parent == "SSTab1" ? -1
                                                            : tabOf(control(parent), tabs));
            QCOMPARE(tabOf(widget, tabs), expectedTab);
        }
    }

    // A sample of the form as drawn, one row per control.
    void designValues_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("tab");
        QTest::addColumn<int>("checkState"); // -1: no check box
        QTest::addColumn<bool>("centred");
        const struct {
            const char* name;
            const char* text;
            int tab;
            int checkState;
            bool centred;
        } rows[] = {
            {"Command1(0)", "OK", -1, -1, false},
            {"Frame2(0)", "Propriétés calques CDN", 0, -1, false},
            {"Check6(1)", "", 0, Qt::Unchecked, false},
            {"Text4(5)", "PtsCDN", 0, -1, false},
            {"Text28(7)", "3", 0, -1, true},
            {"Text28(1)", "", 0, -1, false},
            {"Check7(1)", "Indiquer altitude  sur CDN principales", 0, Qt::Checked, false},
            {"Check7(3)", "Dessiner CDN dans calque courant", 0, Qt::Unchecked, false},
            {"Val7(1)", "2.0", 0, -1, true},
            {"Text1(3)", "TXTAltitudeCDN", 0, -1, false},
            {"Command2", "variables", 0, -1, false},
            {"Label5(8)", "Points reportés :", 1, -1, false},
            {"Check5(2)", "", 1, Qt::Unchecked, false},
            {"Val7(8)", "7", 1, -1, true},
            {"Check9(18)", "", 1, Qt::Checked, false},
            {"Check9(24)", "", 1, Qt::Checked, false},
            {"Check9(17)", "", 1, Qt::Unchecked, false},
            {"Text4(4)", "3", 1, -1, false},
            {"Check7(5)", "Taille du point, conserver les paramètres Autocad", 1, Qt::Checked, false},
            {"Check7(4)", "Reportés les points dans calque courant", 1, Qt::Unchecked, false},
            {"Frame3", "Paramètres du dessin", 2, -1, false},
            {"Text2(0)", "QZ1", 3, -1, false},
            {"Check2(11)", "", 3, Qt::PartiallyChecked, false},
            {"Val13(0)", "10.0", 3, -1, true},
            {"Val11(1)", "2", 3, -1, true},
            {"Check1(6)", "Créer tout les calques", 3, Qt::Checked, false},
            {"Val15", "Nom du bureau", 4, -1, false},
            {"Val19", "No de téléphone", 4, -1, false},
        };
        for (const auto& row : rows)
            QTest::newRow(row.name) << row.name << QString::fromUtf8(row.text) << row.tab << row.checkState
                                    << row.centred;
    }
    void designValues() {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFETCH(int, tab);
        QFETCH(int, checkState);
        QFETCH(bool, centred);
        QWidget* widget = control(name);
        QVERIFY(widget);
        QCOMPARE(shownText(widget), text);
        QCOMPARE(tabOf(widget, control<RowTabControl>("SSTab1")), tab);
        QVERIFY(widget->isEnabled());
        if (checkState >= 0) QCOMPARE(int(qobject_cast<QCheckBox*>(widget)->checkState()), checkState);
        if (auto* field = qobject_cast<QLineEdit*>(widget))
            QCOMPARE(bool(field->alignment() & Qt::AlignHCenter), centred);
    }

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
        QVERIFY(!control<QPushButton>("Command1(0)")->isDefault());
    }

    // Opened again, the dialog shows its design values, not what was typed.
    void reopeningShowsDesignValues() {
        control<QLineEdit>("Val15")->setText("Bureau Dupont");
        dialog_->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        init();
        QCOMPARE(control<QLineEdit>("Val15")->text(), QStringLiteral("Nom du bureau"));
        QCOMPARE(control<RowTabControl>("SSTab1")->currentIndex(), 2);
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

    void tabOrderOfTheWindow() {
        QVERIFY(QTest::qWaitForWindowActive(dialog_));
        QVERIFY(control("SSTab1")->isAncestorOf(QApplication::focusWidget()) ||
                QApplication::focusWidget() == control("SSTab1"));
        QWidget* previous = control("Command1(0)");
        for (const char* next : {"Command1(1)", "Command1(2)"}) {
            QCOMPARE(previous->nextInFocusChain(), control(next));
            previous = control(next);
        }
    }
};

QTEST_MAIN(DrawingDialogTest)
#include "DrawingDialogTest.moc"
