// The legend table: the loader on the files of data/legend-lines.tsv, its
// failed loads, and the language files shipped with the program.

#include "Tsv.h"
#include "model/LegendNumbers.h"
#include "model/LegendTable.h"
#include "support/ScratchPrefix.h"

#include <QMap>
#include <QRegularExpression>

namespace brimo {
namespace {

using test::ScratchPrefix;

struct Question : LegendFailureQuestion {
    bool yes = false;
    int asked = 0, ended = 0;
    QString text, title;
    bool ask(const QString& t, const QString& ti) override { return ++asked, text = t, title = ti, yes; }
    void endProgram() override { ++ended; }
};

const QString kLang = QStringLiteral("C:\\Zorel\\Lang\\");

int load(LegendTable& table, Question& question, const QString& language, const QString& folder = kLang) {
    return table.LoadLegends(WinePrefix::FromEnvironment(), folder, language, question);
}

// Each row: the file's bytes, the entries loaded, a number, its code ("-"
// when out of range) and its trimmed text; and a last line of 10 MB, cut at
// 255 characters.
TEST(LegendTable, LoadsLinesOfFixedColumns) {
    QList<QList<QByteArray>> rows = test::TsvRows("legend-lines.tsv");
    rows.append({"0001 x\r\n" + QByteArray(10 * 1024 * 1024, 'L'), "2", "2", "LLLL", QByteArray(255, 'L')});
    for (const QList<QByteArray>& row : rows) {
        SCOPED_TRACE(row.join('\t').left(80).toStdString());
        ASSERT_EQ(row.size(), 5);
        ScratchPrefix prefix;
        prefix.write(kLang + QStringLiteral("ZorelMsg_FRA.txt"), row[0]);
        LegendTable table;
        Question question;
        EXPECT_EQ(load(table, question, QStringLiteral("FRA")), row[1].toInt());
        EXPECT_EQ(question.asked, row[1].toInt() < 0 ? 1 : 0);
        const int n = row[2].toInt();
        EXPECT_EQ(table.GetLegends(n), QString::fromUtf8(row[4]));
        if (row[3] == "-") continue;
        EXPECT_EQ(table.entry(n).code, QString::fromUtf8(row[3]));
        EXPECT_EQ(table.entry(n).text.size(), 255);
    }
}

// A missing file, a folder in its way, a folder without it: the question is
// put, Yes ends the program, and the table loaded before is lost. The folder
// needs no final backslash and names match without regard to case.
TEST(LegendTable, FailedLoadsAskAndLeaveOneEmptyEntry) {
    ScratchPrefix prefix;
    prefix.write(kLang + QStringLiteral("ZorelMsg_FRA.txt"), "0001 un\r\n");
    prefix.makeFolder(kLang + QStringLiteral("ZorelMsg_ITA.txt"));
    const std::pair<const char*, const char*> failures[] = {{"DEU", "C:\\Zorel\\Lang"}, {"ITA", "C:\\Zorel\\Lang"}, {"FRA", "C:\\Zorel"}};
    for (const auto& [language, folder] : failures) {
        for (const bool yes : {false, true}) {
            SCOPED_TRACE(testing::Message() << language << " in " << folder << (yes ? ", Yes" : ", No"));
            LegendTable table;
            Question question;
            question.yes = yes;
            ASSERT_EQ(load(table, question, QStringLiteral("fra"), QStringLiteral("c:\\zorel\\lang")), 1);
            EXPECT_EQ(load(table, question, QLatin1String(language), QLatin1String(folder)), -1);
            EXPECT_EQ(question.asked, 1);
            EXPECT_EQ(question.ended, yes ? 1 : 0);
            EXPECT_EQ(question.title, QStringLiteral("MainModule"));
            EXPECT_EQ(question.text, QStringLiteral("Une erreur non gérée est survenue dans la procédure LoadLegends().\r\n"
                                                    "Voulez-vous déboguer le code maintenant ?"));
            EXPECT_EQ(table.size(), 1);
            EXPECT_EQ(table.GetLegends(1), QString());
        }
    }
}

// Every legend number the program reads, by name, from the header that
// names them, so that the checks here cannot fall behind the program.
QMap<QByteArray, int> legendNumbers() {
    QFile header(QStringLiteral(BRIMO_LEGEND_NUMBERS_HEADER));
    EXPECT_TRUE(header.open(QIODevice::ReadOnly));
    QMap<QByteArray, int> numbers;
    static const QRegularExpression constant(QStringLiteral(R"(constexpr\s+int\s+(\w+)\s*=\s*(\d+)\s*;)"));
    for (auto it = constant.globalMatch(QString::fromUtf8(header.readAll())); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        numbers.insert(m.captured(1).toUtf8(), m.captured(2).toInt());
    }
    return numbers;
}

class ShippedLegends : public ::testing::TestWithParam<const char*> {};

TEST_P(ShippedLegends, KeepTheirLayoutAndServeEveryLegendRead) {
    const QString name = QStringLiteral("ZorelMsg_%1.txt").arg(QLatin1String(GetParam()));
    QFile file(QStringLiteral(BRIMO_LEGEND_DIR "/") + name);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    ASSERT_TRUE(bytes.endsWith("\r\n"));
    // Windows-1252: no control byte, none that the code page leaves
    // undefined, and no "Ã" with a continuation byte (UTF-8 written as 1252).
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto b = static_cast<uchar>(bytes[i]), next = static_cast<uchar>(bytes.at(std::min(i + 1, bytes.size() - 1)));
        EXPECT_TRUE((b >= 0x20 || b == '\r' || b == '\n') && b != 0x81 && b != 0x8D && b != 0x8F && b != 0x90 && b != 0x9D) << "byte " << i;
        EXPECT_FALSE(b == 0xC3 && next >= 0x80 && next <= 0xBF) << "UTF-8 at byte " << i;
    }
    // CR LF ends each line; the code in columns 1 to 4 numbers it (a line
    // dropped or doubled would shift every later legend), column 5 is blank,
    // then 1 to 255 characters of text.
    QList<QByteArray> lines = bytes.split('\n');
    lines.removeLast(); // after the last CR LF
    for (int n = 1; n <= lines.size(); ++n) {
        const QByteArray& raw = lines[n - 1];
        const QByteArray line = raw.left(raw.size() - 1);
        EXPECT_TRUE(raw.endsWith('\r') && !line.contains('\r')) << "line " << n << ": no CR LF";
        EXPECT_EQ(line.left(5), QByteArray::number(n).rightJustified(4, '0') + ' ') << "line " << n;
        EXPECT_TRUE(line.size() > 5 && line.size() <= 260) << "line " << n;
    }

    ScratchPrefix prefix;
    prefix.write(kLang + name, bytes);
    LegendTable table;
    Question question;
    const int count = load(table, question, QLatin1String(GetParam()));
    EXPECT_EQ(count, lines.size());
    for (int n = 1; n <= count; ++n) EXPECT_FALSE(table.GetLegends(n).isEmpty()) << "legend " << n;
    const QMap<QByteArray, int> numbers = legendNumbers();
    ASSERT_TRUE(numbers.value("GeneralTitle") == Legend::GeneralTitle && numbers.value("AcrobatDialogTitle") == Legend::AcrobatDialogTitle)
        << "the header was not understood";
    for (auto it = numbers.begin(); it != numbers.end(); ++it) EXPECT_LE(it.value(), count) << it.key().toStdString();
    // The program filter pairs names with patterns.
    const QStringList parts = table.GetLegends(Legend::ProgramFilter).split(QLatin1Char('|'));
    EXPECT_EQ(parts.size() % 2, 0);
    for (qsizetype i = 0; i < parts.size(); ++i) EXPECT_TRUE(!parts[i].trimmed().isEmpty() && (i % 2 == 0 || parts[i].contains(u'*'))) << i;
    // Legends of data/legend-texts.tsv, by the header's name.
    for (const QList<QByteArray>& row : test::TsvRows("legend-texts.tsv"))
        if (row[0] == GetParam()) EXPECT_EQ(table.GetLegends(numbers.value(row[1], -1)), QString::fromUtf8(row[2])) << row[1].toStdString();
}

INSTANTIATE_TEST_SUITE_P(Languages, ShippedLegends, ::testing::Values("FRA", "ENG", "DEU", "ITA"),
                         [](const auto& info) { return std::string(info.param); });

} // namespace
} // namespace brimo
