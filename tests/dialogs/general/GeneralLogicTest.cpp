// The parts of the general dialog that need no window: stored values to
// options, the quote that OK refuses, the file dialog's filter and answer.
#include "model/GeneralLoad.h"
#include "dialogs/general/ProgramLocations.h"
#include "forms/CommitFailureReport.h"
#include "model/GeneralCommit.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

namespace brimo::test {
namespace {

TEST(GeneralLoadTest, StoredValuesSelectTheirOptionsAsNumbersOrExactCodes) {
    struct Case {
        const char* key;
        const char* stored;
        QStringList selected;
    };
    const Case cases[] = {
        {"x_def_ounit", "0", {"Option1(0)", "Option2(0)", "Option4(4)", "Option5(0)"}},
        {"x_def_ounit", "2.0", {"Option1(2)", "Option2(0)", "Option4(4)", "Option5(0)"}},
        {"x_def_ounit", "5", {"Option2(0)", "Option4(4)", "Option5(0)"}},
        {"x_def_punit", "cm", {"Option1(1)", "Option4(4)", "Option5(0)"}},
        {"x_chttt", "0", {"Option1(1)", "Option2(0)", "Option4(3)", "Option5(0)"}},
        {"x_chttt", "1", {"Option1(1)", "Option2(0)", "Option4(5)", "Option5(0)"}},
        {"x_chttt", "3", {"Option1(1)", "Option2(0)", "Option4(6)", "Option5(0)"}},
        {"x_chttt", "7", {"Option1(1)", "Option2(0)", "Option5(0)"}},
        {"x_lang", "DEU", {"Option1(1)", "Option2(0)", "Option4(4)", "Option5(2)"}},
        {"x_lang", "ITA", {"Option1(1)", "Option2(0)", "Option4(4)", "Option5(3)"}},
        {"x_lang", "fra", {"Option1(1)", "Option2(0)", "Option4(4)"}},
        {"x_lang", "FRA ", {"Option1(1)", "Option2(0)", "Option4(4)"}},
    };
    for (const Case& c : cases) {
        GeneralVariables variables;
        variables.setText(QString::fromLatin1(c.key), QString::fromLatin1(c.stored));
        EXPECT_EQ(StoredSelections(variables), c.selected) << c.key << "=" << c.stored;
    }
}

TEST(GeneralLoadTest, StoredFlagsGiveCheckStatesInRangeOnly) {
    const std::pair<const char*, std::optional<int>> cases[] = {
        {"0", 0}, {"1", 1}, {"2", 2}, {"3", std::nullopt}, {"-1", std::nullopt}, {"oui", std::nullopt},
    };
    for (const auto& [stored, state] : cases) EXPECT_EQ(StoredCheckState(QString::fromLatin1(stored)), state) << stored;
}

TEST(GeneralCommitLogicTest, AQuoteIsRefusedInStringRowsOnlyTheFirstInRowOrder) {
    GeneralControlState state;
    state.texts["Val0"] = "8\"6";
    EXPECT_FALSE(FindUnwritableQuote(state)) << "a number line has no string to end";
    state.texts["Text15"] = "C:\\a\"b";
    state.texts["Text2"] = "RO\"MANS";
    const std::optional<UnwritableField> field = FindUnwritableQuote(state);
    ASSERT_TRUE(field);
    EXPECT_EQ(field->control, "Text2");
    EXPECT_EQ(field->key, "x_style_cot");
    EXPECT_EQ(field->comment, "Polices pour le style cote");
    EXPECT_TRUE(UnwritableQuoteMessage(*field).contains("x_style_cot"));
}

TEST(ProgramLocationsTest, WindowsFiltersBecomeToolkitFilters) {
    const std::pair<const char*, const char*> cases[] = {
        {"Programs (*.exe)|*.exe|All (*.*)|*.*", "Programs (*.exe);;All (*.*)"},
        {"Programmes|*.exe;*.com", "Programmes (*.exe *.com)"},
        {"Programmes (*.exe)|*.exe|Incomplet", "Programmes (*.exe)"},
        {"", ""},
        {"FRA 173", ""},
    };
    for (const auto& [windows, toolkit] : cases) EXPECT_EQ(ToolkitFileFilter(windows), toolkit) << windows;
}

TEST(ProgramLocationsTest, AChosenFileInsideThePrefixBecomesAWindowsPath) {
    ScratchPrefix prefix;
    prefix.write("C:\\Outils\\a.exe", "");
    const std::pair<QString, QString> cases[] = {
        {prefix.root() + "/drive_c/Outils/a.exe", "C:\\Outils\\a.exe"},
        {prefix.root() + "/dosdevices/c:/Outils/a.exe", "C:\\Outils\\a.exe"},
        {prefix.root() + "/drive_c/Neuf/b.exe", "C:\\Neuf\\b.exe"},
        {prefix.root() + "/dosdevices/d:/b.exe", "D:\\b.exe"},
        {"/usr/bin/env", "/usr/bin/env"},
        {prefix.root() + "/drive_cx/b.exe", prefix.root() + "/drive_cx/b.exe"},
    };
    for (const auto& [native, text] : cases) EXPECT_EQ(FieldTextForChosenFile(WinePrefix::FromEnvironment(), native), text) << native.toStdString();
}

} // namespace
} // namespace brimo::test
