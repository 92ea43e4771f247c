// The leaving rule of every kind of field on the rows of data/field-rules.tsv.
// CTest runs this program under a point-decimal and under a comma-decimal
// locale; each row gives what the field holds afterwards under both.

#include "Tsv.h"
#include "model/FieldRules.h"
#include "model/GeneralVariables.h"
#include "platform/RegionalNumbers.h"

namespace brimo {
namespace {

TEST(FieldRules, LeavingRuleOnEveryRow) {
    const bool comma = RegionalDecimalSymbol() == QLatin1Char(',');
    for (const QList<QByteArray>& row : test::TsvRows("field-rules.tsv")) {
        ASSERT_EQ(row.size(), 5) << row.join('\t').toStdString();
        const FieldRule* rule = FindFieldRule(row[0] == "slope" ? SlopeFieldRules() : GeneralFieldRules(), row[1]);
        ASSERT_NE(rule, nullptr) << row[1].toStdString();
        const QString typed = QString::fromUtf8(row[2]);
        const bool refused = row[comma ? 4 : 3] == "<refused>";
        const LeaveOutcome outcome = ApplyLeavingRule(*rule, typed);
        EXPECT_EQ(outcome.refused, refused) << row.join('\t').toStdString();
        EXPECT_EQ(outcome.text, refused ? typed : QString::fromUtf8(row[comma ? 4 : 3])) << row.join('\t').toStdString();
    }
}

TEST(FieldRules, TablesCoverTheirFieldsOnce) {
    EXPECT_EQ(GeneralFieldRules().size(), 38u);
    EXPECT_EQ(SlopeFieldRules().size(), 6u);
    // An emptied field takes its variable's default, but for the layer name.
    const GeneralVariables defaults;
    for (const FieldRule& rule : GeneralFieldRules()) {
        EXPECT_EQ(FindFieldRule(GeneralFieldRules(), QLatin1String(rule.control)), &rule) << rule.control;
        if (QLatin1String(rule.control) != "Val4")
            EXPECT_EQ(ApplyLeavingRule(rule, QString()).text, defaults.text(QLatin1String(rule.key))) << rule.control;
    }
    EXPECT_EQ(DefaultTextOf(*FindFieldRule(GeneralFieldRules(), u"Val4")), QStringLiteral("CADRE"));
}

} // namespace
} // namespace brimo
