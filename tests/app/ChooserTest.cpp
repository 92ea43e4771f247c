// The command word, the form slots of MainModule, and the module chooser:
// its keyboard and where each of its buttons leads (its window is in the
// form snapshots).

#include "app/CommandWord.h"
#include "app/MainModule.h"
#include "dialogs/about/CAboutForm.h"
#include "dialogs/chooser/CChoixForm.h"
#include "forms/WindowServices.h"
#include "support/ScratchPrefix.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <optional>

using namespace brimo;

namespace {

QStringList openWindows() {
    QStringList names;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible()) names.append(widget->objectName());
    names.sort();
    return names;
}

QString focusName() { return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString(); }

void flushClosedWindows() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

} // namespace

class ChooserTest : public QObject {
    Q_OBJECT
    test::ScratchPrefix prefix_;
    std::optional<int> endStatus_;

    void recordEnd(MainModule& module) {
        endStatus_.reset();
        module.endProcess = [this](int status) { endStatus_ = status; };
    }

private slots:
    void commandWordOpensItsDialog_data() {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<StartDialog>("dialog");
        QTest::newRow("VTalus") << "VTalus" << StartDialog::SlopeSearch;
        QTest::newRow("VGene") << "VGene" << StartDialog::General;
        QTest::newRow("VAbout") << "VAbout" << StartDialog::About;
        QTest::newRow("lower case") << "vgene" << StartDialog::Chooser;
        QTest::newRow("blank behind") << "VGene " << StartDialog::Chooser;
        QTest::newRow("blank in front") << " VGene" << StartDialog::Chooser;
        QTest::newRow("second word") << "VGene x" << StartDialog::Chooser;
        QTest::newRow("nothing") << "" << StartDialog::Chooser;
        QTest::newRow("other word") << "VChoix" << StartDialog::Chooser;
    }
    void commandWordOpensItsDialog() {
        QFETCH(QString, commandLine);
        QFETCH(StartDialog, dialog);
        QCOMPARE(DialogForCommandLine(commandLine), dialog);
    }

    void commandLineIsTheWordsAfterTheProgram_data() {
        QTest::addColumn<QStringList>("argv");
        QTest::addColumn<QString>("commandLine");
        QTest::newRow("no word") << QStringList{"Brimo2010"} << "";
        QTest::newRow("one word") << QStringList{"Brimo2010", "VGene"} << "VGene";
        QTest::newRow("blank kept") << QStringList{"Brimo2010", "VGene "} << "VGene ";
        QTest::newRow("two words") << QStringList{"Brimo2010", "VGene", "x"} << "VGene x";
    }
    void commandLineIsTheWordsAfterTheProgram() {
        QFETCH(QStringList, argv);
        QFETCH(QString, commandLine);
        std::vector<QByteArray> bytes;
        std::vector<const char*> pointers;
        for (const QString& word : argv) bytes.push_back(word.toLocal8Bit());
        for (const QByteArray& word : bytes) pointers.push_back(word.constData());
        QCOMPARE(CommandLineOf(int(pointers.size()), pointers.data()), commandLine);
    }

    // Enter right after opening presses the button with the focus, not the
    // default button: the user lands in CVarGlobale.
    void enterAtOpeningPressesGeneral() {
        MainModule module;
        recordEnd(module);
        CChoixForm* chooser = module.Show<CChoixForm>();
        QVERIFY(QTest::qWaitForWindowActive(chooser));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(openWindows(), QStringList{"CVarGlobale"});
        QVERIFY(!endStatus_);
    }

    void spaceOnHiddenButtonPressesIt() {
        MainModule module;
        CChoixForm* chooser = module.Show<CChoixForm>();
        QVERIFY(QTest::qWaitForWindowActive(chooser));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QCOMPARE(focusName(), QStringLiteral("CmdCadreLayers"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(openWindows(), QStringList{"CGeneralForm"});
    }

    void escapeClosesNothing() {
        MainModule module;
        CChoixForm* chooser = module.Show<CChoixForm>();
        QVERIFY(QTest::qWaitForWindowActive(chooser));
        QTest::keyClick(chooser, Qt::Key_Escape);
        QVERIFY(chooser->isVisible());
    }

    void buttonLeadsToItsForm_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("aboutOpenBefore");
        QTest::addColumn<QStringList>("windowsAfter");
        QTest::addColumn<int>("endStatus"); // -1: no end
        const struct {
            const char* button;
            QStringList opened;
            bool chooserStays;
            int endStatus;
        } rows[] = {
            {"CmdChoixPiedTalus", {"CParamRechTalus"}, false, -1},
            {"CmdCadreLayers", {"CGeneralForm"}, false, -1},
            {"CmdChoixGeneral", {"CVarGlobale"}, false, -1},
            {"CmdChoixAbout", {"CAboutForm"}, true, -1},
            {"CmdChoixQuitter", {}, true, 0},
        };
        for (const auto& row : rows) {
            for (bool aboutOpen : {false, true}) {
                QStringList after = row.opened;
                if (row.chooserStays) after.append("CChoixForm");
                if (aboutOpen) after.append("CAboutForm");
                after.removeDuplicates();
                after.sort();
                QTest::addRow("%s%s", row.button, aboutOpen ? ", about open" : "")
                    << row.button << aboutOpen << after << row.endStatus;
            }
        }
    }
    void buttonLeadsToItsForm() {
        QFETCH(QString, button);
        QFETCH(bool, aboutOpenBefore);
        QFETCH(QStringList, windowsAfter);
        QFETCH(int, endStatus);
        MainModule module;
        recordEnd(module);
        CChoixForm* chooser = module.Show<CChoixForm>();
        if (aboutOpenBefore) chooser->CmdChoixAbout_Click();
        chooser->findChild<QPushButton*>(button)->click();
        QCOMPARE(openWindows(), windowsAfter);
        QCOMPARE(endStatus_.value_or(-1), endStatus);
    }

    // One window per form: Show of an open form brings it forward without
    // its load step; after a close the next Show builds it and loads again.
    void showKeepsOneWindowAndLoadsOnlyWhenBuilt() {
        MainModule module;
        CAboutForm* first = module.Show<CAboutForm>();
        auto* systemInfo = first->findChild<QPushButton*>("Command1");
        systemInfo->setText("typed over");
        QCOMPARE(module.Show<CAboutForm>(), first);
        QCOMPARE(systemInfo->text(), QStringLiteral("typed over"));
        QCOMPARE(openWindows(), QStringList{"CAboutForm"});

        first->close();
        QCOMPARE(module.Window<CAboutForm>(), nullptr);
        flushClosedWindows();
        CAboutForm* second = module.Show<CAboutForm>();
        QCOMPARE(module.Window<CAboutForm>(), second);
        QCOMPARE(second->findChild<QPushButton*>("Command1")->text(), QString()); // legend 54 of an empty table
        QCOMPARE(openWindows(), QStringList{"CAboutForm"});
    }
};

QTEST_MAIN(ChooserTest)
#include "ChooserTest.moc"
