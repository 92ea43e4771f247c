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

// The real brimo-settings: its exit status and standard output; what it says
// on stderr goes to the test's output.
int RunSettings(const QStringList& arguments, QByteArray* output = nullptr) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(BRIMO_SETTINGS_EXE), arguments);
    process.waitForFinished(60000);
    if (output) *output = process.readAllStandardOutput();
    return process.exitCode();
}

using Values = QList<QPair<const char*, const char*>>; // key, value (UTF-8)

struct ParityCase {
    const char* name;
    bool slope;           // the slope dialog, else the general one
    QByteArray storedIni; // Brimo.ini before; empty: none
    Values values;
    char decimal = 0;     // run only under this decimal symbol (a text that
                          // one locale repairs, the other refuses)
};

const ParityCase kCases[] = {
    {"defaults", false, {}, {}},
    {"stored values, odd ones too", false,
     "[Brimo_Gene]\r\ncadre_usery=900\r\nx_ht_gc1=abc\r\nx_def_ounit=5\r\nx_chttt=7\r\nAffiProfil=2\r\n"
     "x_chtlay=1\r\npath_win5=D:\\Outils\\prog.exe\r\nx_chtxt=1\r\n[Brimo_Talus]\r\nx_QZ_tal_dh=9\r\n",
     {}},
    {"rule repairs", false,
     "[Brimo_Gene]\r\ncadre_usery=900\r\n",
     {{"cadre_usery", ""}, {"cadre_decal", "-2.50"}, {"x_color_zm10", "300"},
      {"cadre_couleur", "256.5"}, {"cadre_layer", ""}, {"x_compress", "2,5"}, {"x_color_gcc", "1e400"},
      {"x_incli", "-12"}, {"x_ht_gc15", "1e39"}}},
    {"leading point", false, {}, {{"x_ht_gc1", ".5"}, {"x_ht_gc2", "-.5"}, {"x_ht_gcc", "-2.50"}}, '.'},
    {"decimal comma", false, {}, {{"x_ht_gc1", "-,5"}, {"x_ht_gc2", "-2,50"}, {"x_incli", "-1,25"}}, ','},
    {"texts and paths", false,
     {},
     {{"x_nom_bureau", "Bureau d'études Nord"}, {"x_lieu_bureau", "Genève"}, {"Path_Win1", "D:\\Outils\\x.exe"},
      {"Path_Win5", ""}, {"x_style_cot", "  "}}},
    {"choices and check boxes", false,
     "[Brimo_Gene]\r\nx_chtlay=1\r\n",
     {{"x_def_ounit", "0"}, {"x_def_punit", "2"}, {"x_chttt", "3"}, {"x_lang", "DEU"}, {"affilogoKVO", "0"},
      {"x_chtlay", "0"}, {"AffiProfil", "1"}}},
    {"language FRA", false, "[Brimo_Gene]\r\nx_lang=FRA\r\n", {{"x_nom_bureau", "Un"}}},
    {"language ENG", false, "[Brimo_Gene]\r\nx_lang=ENG\r\n", {{"x_nom_bureau", "Two"}}},
    {"language DEU", false, "[Brimo_Gene]\r\nx_lang=DEU\r\n", {{"x_nom_bureau", "Drei"}}},
    {"language ITA", false, "[Brimo_Gene]\r\nx_lang=ITA\r\n", {{"x_ht_gc2", "-3"}}},
    {"opening values", true, "[Brimo_Talus]\r\nx_QZ_tal_dh=9\r\n", {}},
    {"repairs and choices", true,
     {},
     {{"x_QZ_tal_dh", "-4"}, {"x_QZ_tal_max", ""}, {"x_QZ_fact_flch", "2,5"}, {"x_QZ_ecart_pts", "0.5"},
      {"x_QZ_asp_dess", "points"}, {"x_QZ_des_tal", "3"}}},
};

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
            const char* control = nullptr;
            for (const GeneralVariableRow& row : kGeneralVariableCatalogue)
                if (QString::fromLatin1(row.key).compare(QLatin1String(key), Qt::CaseInsensitive) == 0) control = row.field;
            const QString name = QLatin1String(control);
            if (name.startsWith(QLatin1String("Check")))
                find<QCheckBox>(name)->setCheckState(QLatin1String(value) == "1" ? Qt::Checked : Qt::Unchecked);
            else if (name.startsWith(QLatin1String("Option")))
                for (const ChoiceTest& test : kGeneralChoiceTests)
                    if (QLatin1String(test.button).startsWith(name + '(') && QLatin1String(test.value) == value)
                        find<QRadioButton>(QLatin1String(test.button))->setChecked(true);
            if (name.startsWith(QLatin1String("Val")) || name.startsWith(QLatin1String("Text")))
                typeAndLeave(find<QLineEdit>(name), QString::fromUtf8(value));
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
            const QString text = QString::fromUtf8(value);
            if (QLatin1String(key) == "x_QZ_asp_dess")
                slope->findChild<QCheckBox*>(text == "points" ? "Check2" : "Check1")->setChecked(true);
            else if (QLatin1String(key) == "x_QZ_des_tal")
                slope->findChild<QRadioButton*>(text == "3" ? "Option2" : "Option1")->setChecked(true);
            else
                for (const FieldRule& rule : SlopeFieldRules())
                    if (QLatin1String(rule.key) == key) typeAndLeave(slope->findChild<QLineEdit*>(QLatin1String(rule.control)), text);
        }
        slope->findChild<QPushButton*>("Command1")->click();
        ASSERT_EQ(ends(), QList<int>{0});
    }

    int run(QStringList arguments, QByteArray* output = nullptr) {
        return RunSettings(arguments << QStringLiteral("--prefix") << prefix.root(), output);
    }

    QByteArray viaTool(bool slope, const Values& values) {
        QStringList arguments{QStringLiteral("set"), QStringLiteral("--dialog"), QLatin1String(slope ? "slope" : "general")};
        for (const auto& [key, value] : values) arguments.append(QLatin1String(key) + '=' + QString::fromUtf8(value));
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
    for (const ParityCase& c : kCases) {
        if (c.decimal && QLocale::system().decimalPoint() != QLatin1Char(c.decimal)) continue;
        SCOPED_TRACE(c.name);
        resetFiles(c.storedIni);
        if (c.slope) slopeDialog(c.values);
        else generalDialog(c.values);
        const QByteArray dialog = files();
        resetFiles(c.storedIni);
        EXPECT_EQ(viaTool(c.slope, c.values), dialog);
    }
}

// Three commits by both programs, each kept in the history with its program
// and keys; restore 1 brings both files back to their bytes before the first,
// and is kept in turn.
TEST_F(SettingsParityTest, HistoryKeepsEveryCommitAndRestoreGoesBack) {
    writeBrimoIni("[Brimo_Gene]\r\nx_nom_bureau=Avant\r\nx_chtxt=1\r\n");
    prefix.write(kLispPath, "(setq x_nom_bureau \"Avant\") ;Nom de votre bureau\r\n");
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
    EXPECT_EQ(history(), three + QStringList{"4 brimo-settings restore 1 Brimo_Gene/x_nom_bureau"});
    EXPECT_EQ(run({QStringLiteral("restore"), QStringLiteral("9")}), 3);
}

} // namespace
} // namespace brimo::test
