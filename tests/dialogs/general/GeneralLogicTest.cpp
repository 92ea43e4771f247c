// The parts of the general dialog that need no window: stored values to
// options and check states, the file dialog's filter and answer (rows of
// tests/golden/general-logic.tsv), and the quote that OK refuses.
#include "model/GeneralLoad.h"
#include "dialogs/general/ProgramLocations.h"
#include "forms/CommitFailureReport.h"
#include "model/GeneralCommit.h"
#include "support/Golden.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

namespace brimo::test {
namespace {

TEST(GeneralLogicTest, EveryRowOfTheTable) {
    ScratchPrefix prefix;
    prefix.write("C:\\Outils\\a.exe", "");
    for (const QByteArray& line : Golden(QStringLiteral("general-logic.tsv")).split('\n')) {
        if (line.isEmpty() || line.startsWith('#')) continue;
        const QStringList row = QString::fromUtf8(line).replace(u'$', prefix.root()).split(u'\t');
        ASSERT_EQ(row.size(), 3) << line.constData();
        SCOPED_TRACE(line.constData());
        if (row[0] == u"selections") {
            GeneralVariables variables;
            variables.setText(row[1].section(u'=', 0, 0), row[1].section(u'=', 1));
            EXPECT_EQ(StoredSelections(variables), row[2].split(u' ', Qt::SkipEmptyParts));
        } else if (row[0] == u"check") {
            const std::optional<int> state = StoredCheckState(row[1]);
            EXPECT_EQ(state ? QString::number(*state) : QStringLiteral("-"), row[2]);
        } else if (row[0] == u"filter") EXPECT_EQ(ToolkitFileFilter(row[1]), row[2]);
        else if (row[0] == u"chosen") EXPECT_EQ(FieldTextForChosenFile(WinePrefix::FromEnvironment(), row[1]), row[2]);
        else ADD_FAILURE() << "no such table";
    }
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
}

} // namespace
} // namespace brimo::test
