// The leaving rule of every kind on a table of inputs. The program runs
// twice, under a point-decimal and under a comma-decimal locale; each row
// gives what the field holds afterwards in both.

#include "model/FieldRules.h"
#include "model/GeneralVariables.h"
#include "platform/RegionalNumbers.h"

#include <gtest/gtest.h>

namespace brimo {
namespace {

constexpr const char* kRefused = "<refused>";

struct Case {
    const char* control;
    const char* typed;
    const char* underPoint; // en: decimal '.', grouping ','
    const char* underComma; // de: decimal ',', grouping '.'
};

const Case kCases[] = {
    // Empty texts take the default; a blank is no empty text.
    {"Val0", "", "860", "860"},
    {"Val4", "", "CADRE", "CADRE"},
    {"Val6", "", "0.7", "0,7"},
    {"Val0", " ", kRefused, kRefused},
    {"Val15", "", "Nom du bureau", "Nom du bureau"},
    {"Val15", "a \"quote\"", "a \"quote\"", "a \"quote\""},
    // Letters are refused and stay.
    {"Val7", "abc", kRefused, kRefused},
    {"Val7", "1x", kRefused, kRefused},
    // A leading point: the point itself, whatever the decimal symbol.
    {"Val7", ".5", "0.5", kRefused},
    {"Val7", ".50", "0.5", kRefused},
    {"Val7", ".", kRefused, kRefused},
    {"Val7", ".5x", kRefused, kRefused},
    {"Val7", "-.5", "0.5", kRefused},
    {"Val7", " .5", " .5", kRefused},
    {"Val5", "-12", "-12", "-12"},
    {"Val5", ".5", "0.5", kRefused},
    {"Val5", "-.5", "-.5", kRefused},
    {"Text5", ".5", ".5", kRefused},
    // Values keep the form typed unless a step rewrites them.
    {"Val3", "2.50", "2.50", "2.50"},
    {"Val3", "2,50", "2,50", "2,50"},
    {"Val3", "-2.50", "2.5", "250"},
    {"Val3", "-2,50", "250", "2,5"},
    {"Val3", "0", "0", "0"},
    {"Val3", "-0", "-0", "-0"},
    {"Val3", "+3", "+3", "+3"},
    // Colours: two groups of limits and replacements.
    {"Text5", "255", "255", "255"},
    {"Text5", "255.5", "1", "1"},
    {"Text5", "300", "1", "1"},
    {"Text5", "-300", "1", "1"},
    {"Text10", "256", "6", "6"},
    {"Val2", "256", "256", "256"},
    {"Val2", "256.5", "255", "255"},
    {"Val2", "257", "255", "255"},
    {"Val2", "-300", "255", "255"},
    {"Val2", "2.5", "2.5", "2.5"},
    {"Text19", "1e3", "255", "255"},
    // Overflow is no refusal.
    {"Val7", "1e39", "1e39", "1e39"},
    {"Val5", "1e400", "1e400", "1e400"},
    {"Val7", "1e400", "1e400", "1e400"},
    {"Text5", "1e39", "1", "1"},
    {"Val2", "1e400", "255", "255"},
};

TEST(FieldRules, LeavingRuleOnEveryKind) {
    const bool comma = RegionalDecimalSymbol() == QLatin1Char(',');
    for (const Case& c : kCases) {
        const FieldRule* rule = FindFieldRule(GeneralFieldRules(), QLatin1String(c.control));
        ASSERT_NE(rule, nullptr) << c.control;
        const LeaveOutcome outcome = ApplyLeavingRule(*rule, QString::fromUtf8(c.typed));
        const QString expected = QString::fromUtf8(comma ? c.underComma : c.underPoint);
        if (expected == QLatin1String(kRefused)) {
            EXPECT_TRUE(outcome.refused) << c.control << " '" << c.typed << "'";
            EXPECT_EQ(outcome.text, QString::fromUtf8(c.typed)) << c.control << " '" << c.typed << "'";
        } else {
            EXPECT_FALSE(outcome.refused) << c.control << " '" << c.typed << "'";
            EXPECT_EQ(outcome.text, expected) << c.control << " '" << c.typed << "'";
        }
    }
}

TEST(FieldRules, SlopeFieldsHaveNoLeadingPointStepNorLimit) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "360"}, {".5", ".5"}, {"-3", "3"}, {"0", "0"}, {"12.5", "12.5"}, {"999", "999"}};
    const FieldRule* text4 = FindFieldRule(SlopeFieldRules(), u"Text4");
    ASSERT_NE(text4, nullptr);
    const bool comma = RegionalDecimalSymbol() == QLatin1Char(',');
    for (const auto& [typed, after] : cases) {
        if (comma && QByteArray(typed).contains('.')) continue;
        EXPECT_EQ(ApplyLeavingRule(*text4, QString::fromUtf8(typed)).text, QString::fromUtf8(after)) << typed;
    }
    EXPECT_TRUE(ApplyLeavingRule(*text4, QStringLiteral("abc")).refused);
}

TEST(FieldRules, TablesCoverTheirFieldsOnce) {
    EXPECT_EQ(GeneralFieldRules().size(), 38u);
    EXPECT_EQ(SlopeFieldRules().size(), 6u);
    for (const FieldRule& rule : GeneralFieldRules())
        EXPECT_EQ(FindFieldRule(GeneralFieldRules(), QLatin1String(rule.control)), &rule) << rule.control;
    // An emptied field takes its variable's default, but for the layer name.
    const GeneralVariables defaults;
    for (const FieldRule& rule : GeneralFieldRules())
        if (QLatin1String(rule.control) != "Val4")
            EXPECT_EQ(ApplyLeavingRule(rule, QString()).text, defaults.text(QLatin1String(rule.key))) << rule.control;
    EXPECT_EQ(DefaultTextOf(*FindFieldRule(GeneralFieldRules(), u"Val4")), QStringLiteral("CADRE"));
}

} // namespace
} // namespace brimo
