// CParamRechTalus on an offscreen screen (its layout is in the form snapshots,
// the rules of its fields and the report of a failed commit are those of the
// general dialog): the check boxes, and what Command1 and CmdCancel leave in
// Brimo_Talus.lsp and Brimo.ini.

#include "dialogs/slope/CParamRechTalus.h"
#include "forms/WindowServices.h"
#include "support/FormServices.h"
#include "support/Golden.h"
#include "support/ScratchPrefix.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using namespace brimo;

namespace {

const QString kLisp = QStringLiteral("C:\\Zorel\\Var\\Jean\\Brimo_Talus.lsp");
const QString kIni = QStringLiteral("C:\\Zorel\\Var\\Jean\\Brimo.ini");

// The files of the opening values, and an earlier Brimo.ini with the general
// section, a slope section holding a key of its own, and a later section that
// holds a slope key name too (tests/golden/slope).
const QByteArray kOpeningLisp = test::Golden(QStringLiteral("slope/Brimo_Talus-opening.lsp"));
const QByteArray kEarlierIni = test::Golden(QStringLiteral("slope/Brimo-earlier.ini"));
const QByteArray kOpeningIni = test::Golden(QStringLiteral("slope/Brimo-opening.ini"));

// An earlier commit of another program version, longer than any new one.
const QByteArray kEarlierLisp = QByteArray("(setq QZ_ancien 1) ;plus lu\r\n").repeated(12);

QByteArray replaced(QByteArray bytes, const QByteArray& before, const QByteArray& after) {
    const qsizetype at = bytes.indexOf(before);
    Q_ASSERT(at >= 0);
    return bytes.replace(at, before.size(), after);
}

QByteArray legendFile() {
    QByteArray bytes;
    for (int n = 1; n <= 170; ++n) {
        bytes += QByteArray::number(n).rightJustified(4, '0') + " Legende\r\n";
    }
    return bytes;
}

// One run of the program up to the open dialog, in its own prefix; the end
// of the process and the message boxes are recorded.
struct SlopeSession {
    test::ScratchPrefix prefix;
    test::FormServices services;
    QList<int>& ends = services.ends;
    QList<MessageBoxCall> messages;
    CParamRechTalus* form = nullptr;

    explicit SlopeSession(const QString& actuel = QStringLiteral("Jean")) {
        prefix.writeZorelIni(QStringLiteral("C:\\Zorel"), QStringLiteral("C:\\Zorel\\Var"), actuel);
        prefix.write(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_FRA.txt"), legendFile());
        prefix.makeFolder(QStringLiteral("C:\\Zorel\\Var\\Jean"));
    }

    void open() {
        services.load();
        auto* slope = new CParamRechTalus(services, services.info, services.legends);
        slope->messageBoxes().setAnswerer([this](const MessageBoxCall& call) {
            messages.append(call);
            return false;
        });
        form = services.show(slope);
        form->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(form));
    }

    template <class Widget> Widget* find(const char* name) const {
        auto* widget = form->findChild<Widget*>(QLatin1String(name));
        Q_ASSERT(widget);
        return widget;
    }
    QLineEdit* field(const char* name) const { return find<QLineEdit>(name); }

    // The user enters the field, replaces its whole text and leaves by Tab.
    void typeAndLeave(const char* name, const QString& text) {
        QLineEdit* edit = field(name);
        edit->setFocus(Qt::TabFocusReason);
        QTest::keyClick(edit, Qt::Key_Backspace); // the whole text stands selected
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Tab);
    }
};

enum class Action { None, ChooseOption2, TickCheck2, UntickCheck1 };

} // namespace

Q_DECLARE_METATYPE(Action)

class CParamRechTalusTest : public QObject {
    Q_OBJECT
private slots:
    void checkBoxesNeverBothTicked();
    void command1WritesTheRowsThatHold_data();
    void command1WritesTheRowsThatHold();
    void command1TakesTheFocusAndItsRepairFirst();
    void cancelEndsAndWritesNothing();
    void aboutStandsBesideTheDialog();
};

void CParamRechTalusTest::checkBoxesNeverBothTicked() {
    SlopeSession s;
    s.open();
    auto* check1 = s.find<QCheckBox>("Check1");
    auto* check2 = s.find<QCheckBox>("Check2");
    auto ticks = [&] { return QPair<bool, bool>(check1->isChecked(), check2->isChecked()); };

    QTest::mouseClick(check2, Qt::LeftButton, {}, check2->rect().center());
    QCOMPARE(ticks(), qMakePair(false, true));
    QTest::mouseClick(check2, Qt::LeftButton, {}, check2->rect().center());
    QCOMPARE(ticks(), qMakePair(false, false)); // unticking touches nothing else
    QTest::mouseClick(check1, Qt::LeftButton, {}, check1->rect().center());
    QCOMPARE(ticks(), qMakePair(true, false));
    check2->setChecked(true); // an assignment acts as a click
    QCOMPARE(ticks(), qMakePair(false, true));

    auto* option1 = s.find<QRadioButton>("Option1");
    auto* option2 = s.find<QRadioButton>("Option2");
    QTest::mouseClick(option2, Qt::LeftButton, {}, option2->rect().center());
    QVERIFY(!option1->isChecked() && option2->isChecked());
    QTest::mouseClick(option2, Qt::LeftButton, {}, option2->rect().center());
    QVERIFY(!option1->isChecked() && option2->isChecked());
    option1->setChecked(true);
    QVERIFY(option1->isChecked() && !option2->isChecked());
}

void CParamRechTalusTest::command1WritesTheRowsThatHold_data() {
    QTest::addColumn<Action>("action");
    QTest::addColumn<QByteArray>("lisp");
    QTest::addColumn<QByteArray>("ini");
    QTest::newRow("opening values") << Action::None << kOpeningLisp << kOpeningIni;
    QTest::newRow("Option2 chosen")
        << Action::ChooseOption2
        << replaced(kOpeningLisp, "(setq QZ_des_tal 2)", "(setq QZ_des_tal 3)")
        << replaced(kOpeningIni, "x_QZ_des_tal=2", "x_QZ_des_tal=3");
    QTest::newRow("Check2 ticked")
        << Action::TickCheck2 << replaced(kOpeningLisp, "\"polyligne\")", "\"points\")")
        << replaced(kOpeningIni, "x_QZ_asp_dess=polyligne", "x_QZ_asp_dess=points");
    // Neither box: no QZ_asp_dess line, and the key keeps its earlier value.
    QTest::newRow("both unticked")
        << Action::UntickCheck1
        << kOpeningLisp.mid(kOpeningLisp.indexOf("\r\n") + 2)
        << replaced(kOpeningIni, "x_QZ_asp_dess=polyligne", "x_QZ_asp_dess=points");
}

void CParamRechTalusTest::command1WritesTheRowsThatHold() {
    QFETCH(Action, action);
    QFETCH(QByteArray, lisp);
    QFETCH(QByteArray, ini);
    SlopeSession s;
    s.prefix.write(kLisp, kEarlierLisp);
    s.prefix.write(kIni, kEarlierIni);
    s.open();
    switch (action) {
    case Action::None: break;
    case Action::ChooseOption2: s.find<QRadioButton>("Option2")->click(); break;
    case Action::TickCheck2: s.find<QCheckBox>("Check2")->click(); break;
    case Action::UntickCheck1: s.find<QCheckBox>("Check1")->click(); break;
    }
    QPushButton* ok = s.find<QPushButton>("Command1");
    QTest::mouseClick(ok, Qt::LeftButton);

    QCOMPARE(s.ends, QList<int>{0});
    QVERIFY(s.messages.isEmpty());
    QCOMPARE(s.prefix.read(kLisp), lisp);
    QCOMPARE(s.prefix.read(kIni), ini);
}

void CParamRechTalusTest::command1TakesTheFocusAndItsRepairFirst() {
    SlopeSession s;
    s.open();
    QLineEdit* text1 = s.field("Text1");
    text1->setFocus(Qt::TabFocusReason);
    QTest::keyClick(text1, Qt::Key_Backspace);
    QTest::keyClicks(text1, "-3");
    QTest::mouseClick(s.find<QPushButton>("Command1"), Qt::LeftButton);

    QCOMPARE(s.ends, QList<int>{0});
    QVERIFY(s.prefix.read(kLisp).contains("(setq QZ_tal_dh 3) ;Talus dist horiz\r\n"));
}

void CParamRechTalusTest::cancelEndsAndWritesNothing() {
    SlopeSession s;
    s.prefix.write(kLisp, kEarlierLisp);
    s.prefix.write(kIni, kEarlierIni);
    s.open();
    s.typeAndLeave("Text3", "45");
    QTest::mouseClick(s.find<QPushButton>("CmdCancel"), Qt::LeftButton);

    QCOMPARE(s.ends, QList<int>{0});
    QCOMPARE(s.prefix.read(kLisp), kEarlierLisp);
    QCOMPARE(s.prefix.read(kIni), kEarlierIni);
}

void CParamRechTalusTest::aboutStandsBesideTheDialog() {
    SlopeSession s;
    s.open();
    QTest::mouseClick(s.find<QPushButton>("cmdAbout"), Qt::LeftButton);
    QCOMPARE(s.services.shown, QList<FormKind>{FormKind::About});
    QVERIFY(s.form->isVisible());
    QVERIFY(s.ends.isEmpty());
}

QTEST_MAIN(CParamRechTalusTest)
#include "CParamRechTalusTest.moc"
