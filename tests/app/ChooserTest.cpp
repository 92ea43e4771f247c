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
    // One word, compared exactly; anything else opens the chooser.
    void commandWordOpensItsDialog() {
        using enum StartDialog;
        const std::pair<const char*, StartDialog> rows[] = {
            {"VTalus", SlopeSearch}, {"VGene", General}, {"VAbout", About}, {"vgene", Chooser}, {"VGene ", Chooser},
            {" VGene", Chooser},     {"VGene x", Chooser}, {"", Chooser},   {"VChoix", Chooser}};
        for (const auto& [line, dialog] : rows) QCOMPARE(DialogForCommandLine(QString::fromLatin1(line)), dialog);
    }

    // The command line is the words after the program, joined by a blank.
    void commandLineIsTheWordsAfterTheProgram() {
        const std::pair<std::vector<const char*>, const char*> rows[] = {
            {{"Brimo2010"}, ""}, {{"Brimo2010", "VGene"}, "VGene"}, {{"Brimo2010", "VGene "}, "VGene "},
            {{"Brimo2010", "VGene", "x"}, "VGene x"}};
        for (const auto& [argv, line] : rows)
            QCOMPARE(CommandLineOf(int(argv.size()), argv.data()), QString::fromLatin1(line));
    }

    // The keyboard right after opening: Enter presses the button with the
    // focus, not the default button; Space presses the button Shift+Tab
    // reaches; Escape closes nothing.
    void keysAtOpening_data() {
        QTest::addColumn<QList<Qt::Key>>("keys");
        QTest::addColumn<QStringList>("windowsAfter");
        QTest::newRow("Enter") << QList<Qt::Key>{Qt::Key_Return} << QStringList{"CVarGlobale"};
        QTest::newRow("Shift+Tab, Space") << QList<Qt::Key>{Qt::Key_Backtab, Qt::Key_Space} << QStringList{"CGeneralForm"};
        QTest::newRow("Escape") << QList<Qt::Key>{Qt::Key_Escape} << QStringList{"CChoixForm"};
    }
    void keysAtOpening() {
        QFETCH(QList<Qt::Key>, keys);
        QFETCH(QStringList, windowsAfter);
        MainModule module;
        recordEnd(module);
        QVERIFY(QTest::qWaitForWindowActive(module.Show<CChoixForm>()));
        for (Qt::Key key : keys) QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(openWindows(), windowsAfter);
        QVERIFY(!endStatus_);
    }

    // Each button and what it opens or ends, with the about window open before or not.
    void buttonLeadsToItsForm() {
        const struct { const char* button; QStringList opened; bool chooserStays; int endStatus; } rows[] = {
            {"CmdChoixPiedTalus", {"CParamRechTalus"}, false, -1}, {"CmdCadreLayers", {"CGeneralForm"}, false, -1},
            {"CmdChoixGeneral", {"CVarGlobale"}, false, -1},       {"CmdChoixAbout", {"CAboutForm"}, true, -1},
            {"CmdChoixQuitter", {}, true, 0}};
        for (const auto& row : rows)
            for (bool aboutOpen : {false, true}) {
                MainModule module;
                recordEnd(module);
                CChoixForm* chooser = module.Show<CChoixForm>();
                if (aboutOpen) chooser->CmdChoixAbout_Click();
                chooser->findChild<QPushButton*>(row.button)->click();
                QStringList after = row.opened;
                if (row.chooserStays) after.append("CChoixForm");
                if (aboutOpen) after.append("CAboutForm");
                after.removeDuplicates();
                after.sort();
                QVERIFY2(openWindows() == after, qPrintable(QStringLiteral("%1 %2").arg(row.button).arg(aboutOpen)));
                QVERIFY2(endStatus_.value_or(-1) == row.endStatus, row.button);
            }
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
