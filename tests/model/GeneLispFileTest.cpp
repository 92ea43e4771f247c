// The Lisp file written from the default values, against the file composed
// by hand (tests/golden), and the line forms on values of every kind.

#include "Tsv.h"
#include "model/GeneLispCatalogue.h"
#include "model/GeneralVariables.h"
#include "platform/Cp1252.h"
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

TEST(GeneLispFile, FrenchLanguageLineBytes) {
    const QByteArray expected = QByteArray::fromHex(
        QByteArray("28736574712078 5F6C616E672022 4652412229 3B204C616E67756520 6672616EE7616973200D0A").replace(" ", ""));
    const auto line = GeneLispLine(kGeneLispCatalogue[41], QStringLiteral("FRA"));
    ASSERT_TRUE(line.has_value());
    EXPECT_EQ(ComposeLispFile({*line}), expected);
}

TEST(GeneLispFile, LineFormsKeepTheirValuesAsGiven) {
    for (const QList<QByteArray>& row : test::TsvRows("lisp-lines.tsv")) {
        const auto line = GeneLispLine(kGeneLispCatalogue[static_cast<size_t>(row[0].toInt() - 1)], QString::fromUtf8(row[1]));
        EXPECT_EQ(line.value_or(QStringLiteral("-")), QString::fromUtf8(row[2])) << row.join('\t').toStdString();
    }
}

TEST(EscapeBackslashes, DoublesEachBackslashOnce) {
    EXPECT_EQ(EscapeBackslashes(QString()), QString());
    EXPECT_EQ(EscapeBackslashes(QStringLiteral("abc")), QStringLiteral("abc"));
    EXPECT_EQ(EscapeBackslashes(QStringLiteral("C:\\WINNT\\NOTEPAD.EXE")), QStringLiteral("C:\\\\WINNT\\\\NOTEPAD.EXE"));
    EXPECT_EQ(EscapeBackslashes(QStringLiteral("\\\\")), QStringLiteral("\\\\\\\\"));
}

TEST(LispFile, CharactersOutsideTheCodePageBecomeQuestionMarks) {
    EXPECT_EQ(ComposeLispFile({QStringLiteral("a\u20ACb\u4E2D")}), QByteArray("a\x80" "b?\r\n"));
}

} // namespace
} // namespace brimo
