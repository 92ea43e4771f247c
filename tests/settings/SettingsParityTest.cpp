// brimo-settings set against the dialogs' OK: the same values, typed into the
// fields or given on the command line, must give the same bytes in both
// files; and the history keeps the commits of both programs. Run under a
// point-decimal and a comma-decimal locale.
#include "dialogs/general/GeneralFormFixture.h"
#include "dialogs/slope/CParamRechTalus.h"
#include "model/GeneralCommit.h"
#include "model/FieldRules.h"
#include "model/GeneralVariableCatalogue.h"

#include <QCheckBox>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QLocale>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

namespace brimo::test {
namespace {

using Values = QList<QPair<QString, QString>>; // key, value

struct ParityCase {
    QString name;
    bool slope;           // the slope dialog, else the general one
    QChar decimal;        // run only under this decimal symbol (a text that
                          // one locale repairs, the other refuses); null: both
    QByteArray storedIni; // Brimo.ini before; empty: none
    Values values;
};

QList<ParityCase> ReadCases() {
    QFile file(QStringLiteral(BRIMO_PARITY_TABLE));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QList<ParityCase> cases;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QStringList f = line.split(QLatin1Char('\t'));
        if (line.startsWith(QLatin1Char('#'))) continue;
        ParityCase c{f[0], f[1] == "slope", f[2] == "-" ? QChar() : f[2][0], f[3] == "-" ? "" : f[3].toUtf8().replace('|', "\r\n"), {}};
        for (const QString& value : f.mid(4)) c.values.append({value.section(QLatin1Char('='), 0, 0), value.section(QLatin1Char('='), 1)});
        cases.append(c);
    }
    return cases;
}

class SettingsParityTest : public GeneralFormTest {
protected:
    void SetUp() override {
        GeneralFormTest::SetUp();
        writeLegends(QStringLiteral("ENG"));
        writeLegends(QStringLiteral("ITA"));
    }

    void resetFiles(const QByteArray& storedIni) {
        for (const QString& path : {kIniPath, kLispPath, kTalusPath}) QFile::remove(prefix.native(path));
        if (!storedIni.isEmpty()) writeBrimoIni(storedIni);
    }

    QByteArray files() const { return "--- ini\n" + ini() + "--- gene\n" + lisp() + "--- talus\n" + prefix.read(kTalusPath); }

    void typeAndLeave(QLineEdit* field, const QString& text) {
        if (auto* tabs = form ? form->findChild<QTabWidget*>(QStringLiteral("SSTab1")) : nullptr)
            for (int tab = 0; tab < tabs->count(); ++tab)
                if (tabs->widget(tab)->isAncestorOf(field)) tabs->setCurrentIndex(tab);
        field->setFocus(Qt::TabFocusReason);
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        // QTest types ASCII only: other characters come as key events with their text.
        for (const QChar c : text) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
            QApplication::sendEvent(field, &press);
        }
        QTest::keyClick(field, Qt::Key_Tab);
    }

    // The general dialog: each value typed into its field or chosen, then OK.
    void generalDialog(const Values& values) {
        services = std::make_unique<FormServices>();
        open();
        for (const auto& [key, value] : values) {
            QString name;
            for (const GeneralVariableRow& row : kGeneralVariableCatalogue)
                if (key.compare(QLatin1String(row.key), Qt::CaseInsensitive) == 0) name = QLatin1String(row.field);
            if (name.startsWith(QLatin1String("Check")))
                find<QCheckBox>(name)->setCheckState(value == "1" ? Qt::Checked : Qt::Unchecked);
            else if (name.startsWith(QLatin1String("Option")))
                for (const GeneralChoice& choice : kGeneralChoices)
                    if (QLatin1String(choice.button).startsWith(name + '(') && QLatin1String(choice.value) == value)
                        find<QRadioButton>(QLatin1String(choice.button))->setChecked(true);
            if (name.startsWith(QLatin1String("Val")) || name.startsWith(QLatin1String("Text")))
                typeAndLeave(find<QLineEdit>(name), value);
        }
        static_cast<QPushButton*>(find<QWidget>(QStringLiteral("cmdOK")))->click();
        ASSERT_EQ(ends(), QList<int>{0});
        form = nullptr;
    }

    // The slope dialog: the same, then its OK (Command1).
    void slopeDialog(const Values& values) {
        services = std::make_unique<FormServices>();
        services->load();
        auto* slope = services->show(new CParamRechTalus(*services, services->info, services->legends));
        slope->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(slope));
        for (const auto& [key, value] : values) {
            if (key == "x_QZ_asp_dess")
                slope->findChild<QCheckBox*>(value == "points" ? "Check2" : "Check1")->setChecked(true);
            else if (key == "x_QZ_des_tal")
                slope->findChild<QRadioButton*>(value == "3" ? "Option2" : "Option1")->setChecked(true);
            else
                for (const FieldRule& rule : SlopeFieldRules())
                    if (QLatin1String(rule.key) == key) typeAndLeave(slope->findChild<QLineEdit*>(QLatin1String(rule.control)), value);
        }
        slope->findChild<QPushButton*>("Command1")->click();
        ASSERT_EQ(ends(), QList<int>{0});
    }

    // The real brimo-settings on the prefix: its exit status and standard
    // output; what it says on stderr goes to the test's output.
    int run(const QStringList& arguments, QByteArray* output = nullptr) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(BRIMO_SETTINGS_EXE), arguments + QStringList{QStringLiteral("--prefix"), prefix.root()});
        process.waitForFinished(60000);
        if (output) *output = process.readAllStandardOutput();
        return process.exitCode();
    }

    QByteArray viaTool(bool slope, const Values& values) {
        QStringList arguments{QStringLiteral("set"), QStringLiteral("--dialog"), QLatin1String(slope ? "slope" : "general")};
        for (const auto& [key, value] : values) arguments.append(key + '=' + value);
        EXPECT_EQ(run(arguments), 0);
        return files();
    }

    // Each commit of the history as "number program what first-key".
    QStringList history() {
        QByteArray output;
        run({QStringLiteral("history"), QStringLiteral("--json")}, &output);
        QStringList entries;
        for (const QJsonValue entry : QJsonDocument::fromJson(output).array().first()["entries"].toArray())
            entries.append(QStringLiteral("%1 %2 %3 %4").arg(entry["number"].toInt()).arg(entry["program"].toString(),
                           entry["what"].toString(), entry["keys"].toArray().first().toString()));
        return entries;
    }

    static inline const QString kTalusPath = QStringLiteral("C:\\Zorel\\Var\\jo\\Brimo_Talus.lsp");
};

TEST_F(SettingsParityTest, SetWritesWhatTheDialogsOkWrites) {
    const QList<ParityCase> cases = ReadCases();
    ASSERT_EQ(cases.size(), 13);
    for (const ParityCase& c : cases) {
        if (!c.decimal.isNull() && QLocale::system().decimalPoint() != c.decimal) continue;
        SCOPED_TRACE(c.name.toStdString());
        resetFiles(c.storedIni);
        if (c.slope) slopeDialog(c.values);
        else generalDialog(c.values);
        const QByteArray dialog = files();
        resetFiles(c.storedIni);
        EXPECT_EQ(viaTool(c.slope, c.values), dialog);
    }
}

// Three commits by both programs, each kept in the history with its program
// and keys; restore 1 brings the files back as they were before the first
// (the Lisp file, which the first made, goes), and is kept in turn.
TEST_F(SettingsParityTest, HistoryKeepsEveryCommitAndRestoreGoesBack) {
    writeBrimoIni("[Brimo_Gene]\r\nx_nom_bureau=Avant\r\nx_chtxt=1\r\n");
    const QByteArray before = files();
    viaTool(false, {{"x_nom_bureau", "Un"}});
    generalDialog({{"x_ht_gc2", "3"}});
    prefix.write(QStringLiteral("C:\\office.ini"), "[Brimo_Gene]\r\nx_lang=DEU\r\n");
    ASSERT_EQ(run({QStringLiteral("apply"), prefix.native(QStringLiteral("C:\\office.ini"))}), 0);
    const QStringList three = {"1 brimo-settings set Brimo_Gene/x_nom_bureau", "2 settings_tests OK Brimo_Gene/x_ht_gc2",
                               "3 brimo-settings apply Brimo_Gene/x_lang"};
    EXPECT_EQ(history(), three);
    EXPECT_EQ(run({QStringLiteral("restore"), QStringLiteral("1")}), 0);
    EXPECT_EQ(files(), before);
    EXPECT_FALSE(QFile::exists(prefix.native(kLispPath)));
    EXPECT_EQ(history(), three + QStringList{"4 brimo-settings restore 1 Brimo_Gene/x_nom_bureau"});
    EXPECT_EQ(run({QStringLiteral("restore"), QStringLiteral("9")}), 3);
}

} // namespace
} // namespace brimo::test
