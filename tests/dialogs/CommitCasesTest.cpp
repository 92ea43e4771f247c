// What OK writes, as data: each row of tests/golden/commit-cases.tsv opens the
// general or the slope dialog on the stored files it names, plays the user's
// actions and compares both written files byte for byte with its golden files.
#include "dialogs/general/GeneralFormFixture.h"
#include "dialogs/slope/CParamRechTalus.h"
#include "support/Golden.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

namespace brimo::test {
namespace {

const QString kTalusPath = QStringLiteral("C:\\Zorel\\Var\\jo\\Brimo_Talus.lsp");

class DialogCase : public GeneralFormTest {
protected:
    QWidget* dialog = nullptr;

    void openDialog(bool slope) {
        if (!slope) return void(dialog = open());
        services->load();
        auto* talus = new CParamRechTalus(*services, services->info, services->legends);
        talus->messageBoxes().setAnswerer([this](const MessageBoxCall& call) { return messages.append(call), false; });
        dialog = services->show(talus);
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    }
    template <class Widget = QWidget> Widget* in(const QString& name) {
        auto* widget = dialog->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return widget;
    }
    void play(const QString& action) {
        const QString verb = action.section(u' ', 0, 0), name = action.section(u' ', 1, 1);
        if (verb == u"click") in<QAbstractButton>(name)->click();
        else if (verb == u"press") QTest::mouseClick(in(name), Qt::LeftButton);
        else if (verb == u"set") in<QAbstractButton>(name)->setChecked(true);
        else if (verb == u"key") QTest::keyClick(QApplication::focusWidget(), name == u"Tab" ? Qt::Key_Tab : Qt::Key_Return);
        else if (verb == u"type") {
            auto* field = in<QLineEdit>(name);
            if (auto* tabs = dialog->findChild<QTabWidget*>())
                for (int tab = 0; tab < tabs->count(); ++tab)
                    if (tabs->widget(tab)->isAncestorOf(field)) tabs->setCurrentIndex(tab);
            field->setFocus(Qt::TabFocusReason);
            QTest::keyClick(field, Qt::Key_Backspace); // the whole text stands selected
            QTest::keyClicks(field, action.section(u' ', 2));
        } else ADD_FAILURE() << "no action " << action.toStdString();
    }
};

TEST_F(DialogCase, OkWritesBothFilesFromWhatTheControlsHold) {
    const QList<QByteArray> rows = Golden(QStringLiteral("commit-cases.tsv")).split('\n');
    for (const QByteArray& row : rows) {
        if (row.isEmpty() || row.startsWith('#')) continue;
        const QStringList c = QString::fromUtf8(row).split(u'\t');
        ASSERT_EQ(c.size(), 8) << row.constData();
        SCOPED_TRACE(c[0].toStdString());
        const bool slope = c[1] == u"slope";
        const auto prepare = [&] {
            TearDown();
            QDir(prefix.native(QStringLiteral("C:\\Zorel\\Var\\jo"))).removeRecursively();
            SetUp();
            if (c[2] != u"-") writeBrimoIni(Golden(c[2]));
            if (c[3] != u"-") prefix.write(slope ? kTalusPath : kLispPath, Golden(c[3]));
            QFile standard(prefix.standardPath());
            standard.remove();
            if (c[7] != u"-") ASSERT_TRUE(standard.open(QIODevice::WriteOnly) && standard.write(Golden(c[7])) > 0 && standard.flush());
        };
        const auto expectWritten = [&] {
            ExpectGolden(c[5], prefix.read(slope ? kTalusPath : kLispPath));
            ExpectGolden(c[6], ini());
            EXPECT_EQ(ends(), QList<int>{0});
            EXPECT_TRUE(messages.isEmpty());
        };
        prepare();
        openDialog(slope);
        for (const QString& action : c[4].split(QStringLiteral("; "))) play(action);
        expectWritten();
        if (slope || c[4] != u"click cmdOK") continue;
        // The same OK before the window shows: no tab built, every value
        // from what the load put into the controls.
        prepare();
        services->load();
        auto* general = new CGeneralForm(*services, services->info, services->variables, services->variables,
                                         services->legends, *services);
        general->Form_Load();
        general->findChild<QAbstractButton*>(QStringLiteral("cmdOK"))->click();
        EXPECT_EQ(general->findChild<QWidget*>(QStringLiteral("Val4")), nullptr);
        expectWritten();
        delete general;
    }
}

TEST_F(DialogCase, SlopeAboutStandsBesideTheDialog) {
    openDialog(true);
    QTest::mouseClick(in("cmdAbout"), Qt::LeftButton);
    EXPECT_EQ(services->shown, QList<FormKind>{FormKind::About});
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(ends().isEmpty());
}

} // namespace
} // namespace brimo::test
