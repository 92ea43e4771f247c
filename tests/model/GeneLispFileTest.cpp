// The Lisp file written from the default values, against the file composed
// by hand (tests/golden), and the line forms on values of every kind; the rows
// of data/lisp-lines.tsv hold the doubled backslashes of the program paths.

#include "Tsv.h"
#include "model/GeneLispCatalogue.h"
#include "model/GeneralVariables.h"
#include "support/Golden.h"

namespace brimo {
namespace {

TEST(GeneLispFile, DefaultsGiveTheFileByteForByte) {
    const GeneralVariables variables;
    QStringList lines;
    for (const GeneLispRow& row : kGeneLispCatalogue) {
        const auto line = GeneLispLine(row, variables.text(QLatin1String(row.variable)));
        ASSERT_TRUE(line.has_value()) << row.lispName;
        lines.append(*line);
    }
    const QByteArray written = ComposeLispFile(lines);
    ASSERT_EQ(written.count('\n'), 51);
    EXPECT_EQ(written, test::Golden(QStringLiteral("Brimo_Gene-defaults.lsp")));
}

TEST(GeneLispFile, LineFormsKeepTheirValuesAsGiven) {
    for (const QList<QByteArray>& row : test::TsvRows("lisp-lines.tsv")) {
        const auto line = GeneLispLine(kGeneLispCatalogue[static_cast<size_t>(row[0].toInt() - 1)], QString::fromUtf8(row[1]));
        EXPECT_EQ(line.value_or(QStringLiteral("-")), QString::fromUtf8(row[2])) << row.join('\t').toStdString();
    }
}

TEST(LispFile, CharactersOutsideTheCodePageBecomeQuestionMarks) {
    EXPECT_EQ(ComposeLispFile({QStringLiteral("a\u20ACb\u4E2D")}), QByteArray("a\x80" "b?\r\n"));
}

} // namespace
} // namespace brimo
