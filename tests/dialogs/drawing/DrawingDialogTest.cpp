// The drawing variables dialog beyond its snapshot: the grey fields and
// buttons that do nothing.

#include "dialogs/drawing/CVarGlobale.h"

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
};

QTEST_MAIN(DrawingDialogTest)
#include "DrawingDialogTest.moc"
