// CParamRechTalus on an offscreen screen: its controls, its focus order, the
// check boxes, the field rules through real focus changes, and what Command1
// and CmdCancel leave in Brimo_Talus.lsp and Brimo.ini.

#include "dialogs/slope/CParamRechTalus.h"
#include "dialogs/slope/SlopeControls.h"
#include "forms/WindowServices.h"
#include "support/FormServices.h"
#include "support/ScratchPrefix.h"

#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using namespace brimo;

namespace {

const QString kLisp = QStringLiteral("C:\\Zorel\\Var\\Jean\\Brimo_Talus.lsp");
const QString kIni = QStringLiteral("C:\\Zorel\\Var\\Jean\\Brimo.ini");

// The file from the opening values, in Windows-1252 with CR LF.
const QByteArray kOpeningLisp =
    "(setq QZ_asp_dess \"polyligne\") ;Choix du dessin final (polyligne ou points)\r\n"
    "(setq QZ_des_tal 2) ;Type de dessin du talus (2 ou 3 pour 2d ou 3d)\r\n"
    "(setq QZ_tal_dh 3) ;Talus dist horiz\r\n"
    "(setq QZ_tal_dv 2) ;Talus dist vert\r\n"
    "(setq QZ_tal_max 20) ;Long initial du talus\r\n"
    "(setq QZ_rech_360 360) ;Nbr de rech pour 360 degres\r\n"
    "(setq QZ_ecart_pts 1) ;Ecart entre les recherches\r\n"
    "(setq QZ_fact_flch 6) ;Facteur d'\xE9"
    "chelle des fl\xE8"
    "ches de direction\r\n";

// An earlier commit of another program version, longer than any new one.
const QByteArray kEarlierLisp = QByteArray("(setq QZ_ancien 1) ;plus lu\r\n").repeated(12);

// Brimo.ini with the general section, an earlier slope section holding a key
// of its own, and a later section that holds a slope key name too.
const QByteArray kEarlierIni = "[Brimo_Gene]\r\n"
                               "cadre_usery=900\r\n"
                               "x_lang=FRA\r\n"
                               "\r\n"
                               "[Brimo_Talus]\r\n"
                               "x_QZ_asp_dess=points\r\n"
                               "x_autre=ne pas toucher\r\n"
                               "x_QZ_tal_dh=9\r\n"
                               "[Autre]\r\n"
                               "x_QZ_tal_dh=99\r\n";

const QByteArray kOpeningIni = "[Brimo_Gene]\r\n"
                               "cadre_usery=900\r\n"
                               "x_lang=FRA\r\n"
                               "\r\n"
                               "[Brimo_Talus]\r\n"
                               "x_QZ_asp_dess=polyligne\r\n"
                               "x_autre=ne pas toucher\r\n"
                               "x_QZ_tal_dh=3\r\n"
                               "x_QZ_des_tal=2\r\n"
                               "x_QZ_tal_dv=2\r\n"
                               "x_QZ_tal_max=20\r\n"
                               "x_QZ_rech_360=360\r\n"
                               "x_QZ_ecart_pts=1\r\n"
                               "x_QZ_fact_flch=6\r\n"
                               "[Autre]\r\n"
                               "x_QZ_tal_dh=99\r\n";

QByteArray replaced(QByteArray bytes, const QByteArray& before, const QByteArray& after) {
    const qsizetype at = bytes.indexOf(before);
    Q_ASSERT(at >= 0);
    return bytes.replace(at, before.size(), after);
}

QByteArray legendFile() {
    QByteArray bytes;
    for (int n = 1; n <= 170; ++n) {
        const QByteArray text = n == 166 ? "Entrez un nombre" : n == 167 ? "Valeur refusee" : "Legende";
        bytes += QByteArray::number(n).rightJustified(4, '0') + ' ' + text + "\r\n";
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
        SetMessageBoxAnswerer([this](const MessageBoxCall& call) {
            messages.append(call);
            return false;
        });
    }
    ~SlopeSession() { SetMessageBoxAnswerer({}); }

    void open() {
        services.load();
        form = services.show(new CParamRechTalus(services, services.info, services.legends));
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
    void controlsStandWhereTheFormPlacesThem();
    void focusStartsOnCheck1AndTabFollowsTabIndex();
    void checkBoxesNeverBothTicked();
    void fieldRulesRunWhenTheFocusLeaves_data();
    void fieldRulesRunWhenTheFocusLeaves();
    void command1WritesTheRowsThatHold_data();
    void command1WritesTheRowsThatHold();
    void command1TakesTheFocusAndItsRepairFirst();
    void enterAndEscapeInAFieldDoNothing();
    void commitThatCannotWriteReportsAndChangesNothing_data();
    void commitThatCannotWriteReportsAndChangesNothing();
    void cancelEndsAndWritesNothing();
    void aboutStandsBesideTheDialog();
};

void CParamRechTalusTest::controlsStandWhereTheFormPlacesThem() {
    SlopeSession s;
    s.open();
    QCOMPARE(s.form->windowTitle(), QStringLiteral("Paramètre de recherche pied de talus"));
    QCOMPARE(s.form->size(), TwipsSize(7755, 4920));
    for (const SlopeControl& c : SlopeControls()) {
        const QWidget* widget = s.find<QWidget>(c.name);
        const QString parent = c.parent ? QString::fromLatin1(c.parent) : QStringLiteral("CParamRechTalus");
        QVERIFY2(widget->parentWidget()->objectName() == parent, c.name);
        QVERIFY2(widget->geometry() == TwipsRect(c.left, c.top, c.width, c.height), c.name);
    }
    for (const char* name : {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6"})
        QCOMPARE(s.field(name)->alignment(), Qt::AlignCenter);
    const QStringList texts = {s.field("Text1")->text(), s.field("Text2")->text(), s.field("Text3")->text(),
                               s.field("Text4")->text(), s.field("Text5")->text(), s.field("Text6")->text()};
    QCOMPARE(texts, (QStringList{"3", "2", "20", "360", "1", "6"}));
    QVERIFY(s.find<QCheckBox>("Check1")->isChecked());
    QVERIFY(!s.find<QCheckBox>("Check2")->isChecked());
    QCOMPARE(s.find<QCheckBox>("Check2")->text(), QStringLiteral("Check1"));
    QVERIFY(s.find<QRadioButton>("Option1")->isChecked());
    QVERIFY(!s.find<QRadioButton>("Option2")->isChecked());
    for (const QPushButton* button : s.form->findChildren<QPushButton*>())
        QVERIFY2(!button->isDefault() && !button->autoDefault(), qPrintable(button->objectName()));
}

void CParamRechTalusTest::focusStartsOnCheck1AndTabFollowsTabIndex() {
    SlopeSession s;
    s.open();
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("Check1"));

    // The tab stops of the window, from Check1 round to it again; of the
    // option group only the chosen button is one.
    QStringList chain;
    QWidget* w = s.find<QWidget>("Check1");
    do {
        if (w->focusPolicy() & Qt::TabFocus && w->isVisibleTo(s.form)) chain << w->objectName();
        w = w->nextInFocusChain();
    } while (w->objectName() != QLatin1String("Check1"));
    QCOMPARE(chain, (QStringList{"Check1", "Check2", "Option1", "Text1", "Text2", "Text4", "Text3", "Text5", "Text6",
                                 "Command1", "CmdCancel", "cmdAbout"}));

    // Tab from a field goes to the next one: Text4 comes before Text3.
    s.field("Text2")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(s.field("Text2"), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("Text4"));
    QTest::keyClick(s.field("Text4"), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("Text3"));
}

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

void CParamRechTalusTest::fieldRulesRunWhenTheFocusLeaves_data() {
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("refused");
    QTest::newRow("empty Text4 takes its default") << "Text4" << "" << "360" << false;
    QTest::newRow("empty Text6 takes its default") << "Text6" << "" << "6" << false;
    QTest::newRow("no leading 0 is added") << "Text1" << ".5" << ".5" << false;
    QTest::newRow("a negative becomes positive") << "Text1" << "-3" << "3" << false;
    QTest::newRow("rewritten through a number") << "Text2" << "-2.50" << "2.5" << false;
    QTest::newRow("zero stays") << "Text5" << "0" << "0" << false;
    QTest::newRow("no upper limit") << "Text3" << "999" << "999" << false;
    QTest::newRow("beyond double precision stays") << "Text3" << "1e400" << "1e400" << false;
    QTest::newRow("letters are refused") << "Text3" << "abc" << "abc" << true;
    QTest::newRow("a blank is no empty text") << "Text4" << " " << " " << true;
}

void CParamRechTalusTest::fieldRulesRunWhenTheFocusLeaves() {
    QFETCH(QString, control);
    QFETCH(QString, typed);
    QFETCH(QString, after);
    QFETCH(bool, refused);
    SlopeSession s;
    s.open();
    const QByteArray name = control.toLatin1();
    s.typeAndLeave(name.constData(), typed);

    QLineEdit* edit = s.field(name.constData());
    QCOMPARE(edit->text(), after);
    QCOMPARE(s.messages.size(), refused ? 1 : 0);
    if (refused) {
        QCOMPARE(s.messages[0].text, QStringLiteral("Entrez un nombre"));
        QCOMPARE(s.messages[0].title, QStringLiteral("Valeur refusee"));
        QCOMPARE(s.messages[0].flags, 4160);
        QCOMPARE(QApplication::focusWidget(), edit);
        QCOMPARE(edit->selectedText(), typed);
    } else {
        QVERIFY(QApplication::focusWidget() != edit);
    }
    QVERIFY(s.ends.isEmpty());
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

void CParamRechTalusTest::enterAndEscapeInAFieldDoNothing() {
    SlopeSession s;
    s.open();
    QLineEdit* text1 = s.field("Text1");
    text1->setFocus(Qt::TabFocusReason);
    QTest::keyClick(text1, Qt::Key_Return);
    QTest::keyClick(text1, Qt::Key_Enter);
    QTest::keyClick(text1, Qt::Key_Escape);
    QVERIFY(s.ends.isEmpty());
    QVERIFY(!s.prefix.exists(kLisp));
    QVERIFY(s.form->isVisible());
    QCOMPARE(QApplication::focusWidget(), text1);
}

void CParamRechTalusTest::commitThatCannotWriteReportsAndChangesNothing_data() {
    QTest::addColumn<QString>("actuel");
    QTest::addColumn<bool>("readOnlyLisp");
    QTest::addColumn<QString>("lispPath");
    QTest::newRow("read-only Lisp file") << "Jean" << true << kLisp;
    QTest::newRow("missing folder") << "Personne" << false
                                    << QStringLiteral("C:\\Zorel\\Var\\Personne\\Brimo_Talus.lsp");
}

void CParamRechTalusTest::commitThatCannotWriteReportsAndChangesNothing() {
    QFETCH(QString, actuel);
    QFETCH(bool, readOnlyLisp);
    QFETCH(QString, lispPath);
    SlopeSession s(actuel);
    s.prefix.write(kLisp, kEarlierLisp);
    s.prefix.write(kIni, kEarlierIni);
    if (readOnlyLisp) QFile::setPermissions(s.prefix.native(kLisp), QFile::ReadOwner | QFile::ReadGroup);
    s.open();
    s.find<QPushButton>("Command1")->click();

    QCOMPARE(s.ends, QList<int>{1});
    QCOMPARE(s.messages.size(), 1);
    QVERIFY2(s.messages[0].text.contains(lispPath), qPrintable(s.messages[0].text));
    QCOMPARE(s.prefix.read(kLisp), kEarlierLisp);
    QCOMPARE(s.prefix.read(kIni), kEarlierIni);
    QVERIFY(!s.prefix.exists(QStringLiteral("C:\\Zorel\\Var\\Personne")));
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
