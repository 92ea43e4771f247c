// The language files shipped with the program: their bytes, and what the
// legend table makes of them.

#include "model/LegendNumbers.h"
#include "model/LegendTable.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <set>

namespace brimo {
namespace {

const QString kFolder = QStringLiteral(BRIMO_LEGEND_DIR);
const char* const kLanguages[] = {"FRA", "ENG", "DEU", "ITA"};
constexpr int kHighestNumberRead = 174;
constexpr qsizetype kMaxLineLength = 260; // 4 code columns, 1 skipped, 255 of text

class NoQuestion : public LegendFailureQuestion {
public:
    bool ask(const QString&, const QString&) override {
        ADD_FAILURE() << "the legend file did not load";
        return false;
    }
    void endProgram() override { ADD_FAILURE() << "endProgram"; }
};

// The four files copied to C:\Zorel\Lang\ of a scratch prefix, where the
// program finds them; loads one of them.
class InstalledLegends {
public:
    InstalledLegends() {
        for (const char* language : kLanguages) {
            const QString name = QStringLiteral("ZorelMsg_%1.txt").arg(QLatin1String(language));
            QFile file(kFolder + QLatin1Char('/') + name);
            if (file.open(QIODevice::ReadOnly)) prefix_.write(QStringLiteral("C:\\Zorel\\Lang\\") + name, file.readAll());
        }
    }
    int load(LegendTable& table, const QString& language) {
        NoQuestion question;
        return table.LoadLegends(WinePrefix::FromEnvironment(), QStringLiteral("C:\\Zorel\\Lang\\"), language, question);
    }

private:
    test::ScratchPrefix prefix_;
};

QByteArray fileBytes(const QString& language) {
    QFile file(kFolder + QStringLiteral("/ZorelMsg_") + language + QStringLiteral(".txt"));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return file.readAll();
}

// Every number the program passes to GetLegends, read from the header that
// names them, so that the list here cannot fall behind the program.
std::set<int> numbersTheProgramReads() {
    QFile header(QStringLiteral(BRIMO_LEGEND_NUMBERS_HEADER));
    if (!header.open(QIODevice::ReadOnly)) return {};
    const QString text = QString::fromUtf8(header.readAll());
    std::set<int> numbers;
    static const QRegularExpression constant(QStringLiteral(R"(constexpr\s+int\s+\w+\s*=\s*(\d+)\s*;)"));
    for (auto it = constant.globalMatch(text); it.hasNext();) numbers.insert(it.next().captured(1).toInt());
    return numbers;
}

class LegendFile : public ::testing::TestWithParam<const char*> {
protected:
    QString language() const { return QString::fromLatin1(GetParam()); }
};

TEST_P(LegendFile, LinesEndInCrLfAndKeepTheColumns) {
    const QByteArray bytes = fileBytes(language());
    ASSERT_FALSE(bytes.isEmpty()) << "missing or empty file";
    ASSERT_TRUE(bytes.endsWith("\r\n")) << "the last line has no CR LF";

    int lineNumber = 0;
    qsizetype begin = 0;
    while (begin < bytes.size()) {
        const qsizetype cr = bytes.indexOf('\r', begin);
        ASSERT_GE(cr, 0);
        const QByteArray line = bytes.mid(begin, cr - begin);
        ++lineNumber;
        SCOPED_TRACE(testing::Message() << "line " << lineNumber);

        ASSERT_LT(cr + 1, bytes.size());
        EXPECT_EQ(bytes.at(cr + 1), '\n') << "CR without LF";
        EXPECT_FALSE(line.contains('\n')) << "LF without CR";
        EXPECT_LE(line.size(), kMaxLineLength);
        EXPECT_GT(line.size(), 5) << "no text behind the code";
        for (qsizetype i = 0; i < 4 && i < line.size(); ++i)
            EXPECT_NE(line.at(i), ' ') << "code shorter than 4 characters";
        if (line.size() > 4) EXPECT_EQ(line.at(4), ' ') << "column 5 is not the separator";
        // The shipped files number their lines in the code: a line dropped or
        // doubled, which would shift every later legend, shows here.
        EXPECT_EQ(line.left(4), QByteArray::number(lineNumber).rightJustified(4, '0'));
        begin = cr + 2;
    }
    EXPECT_GE(lineNumber, kHighestNumberRead);
}

TEST_P(LegendFile, IsWindows1252Text) {
    const QByteArray bytes = fileBytes(language());
    ASSERT_FALSE(bytes.isEmpty());
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes.at(i));
        SCOPED_TRACE(testing::Message() << "byte offset " << i);
        // Bytes that Windows-1252 leaves undefined.
        EXPECT_TRUE(byte != 0x81 && byte != 0x8D && byte != 0x8F && byte != 0x90 && byte != 0x9D);
        EXPECT_TRUE(byte >= 0x20 || byte == '\r' || byte == '\n') << "control byte " << int(byte);
        // "Ã" followed by a continuation byte: UTF-8 text written as if it were Windows-1252.
        if (byte == 0xC3 && i + 1 < bytes.size()) {
            const auto next = static_cast<unsigned char>(bytes.at(i + 1));
            EXPECT_FALSE(next >= 0x80 && next <= 0xBF) << "UTF-8 sequence";
        }
    }
}

TEST_P(LegendFile, ServesEveryNumberTheProgramReads) {
    const std::set<int> numbers = numbersTheProgramReads();
    // The header is read as text: make sure it was found and understood.
    ASSERT_TRUE(numbers.count(Legend::GeneralTitle) && numbers.count(Legend::ProgramFilter) &&
                numbers.count(Legend::AcrobatDialogTitle));

    LegendTable table;
    const int count = InstalledLegends().load(table, language());
    EXPECT_GE(count, kHighestNumberRead);
    for (int n : numbers) EXPECT_FALSE(table.GetLegends(n).isEmpty()) << "legend " << n;
    // The lines that the program does not read still hold a text.
    for (int n = 1; n <= count; ++n) EXPECT_FALSE(table.GetLegends(n).isEmpty()) << "legend " << n;
}

TEST_P(LegendFile, ProgramFilterPairsNamesWithPatterns) {
    LegendTable table;
    InstalledLegends().load(table, language());
    const QStringList parts = table.GetLegends(Legend::ProgramFilter).split(QLatin1Char('|'));
    EXPECT_EQ(parts.size() % 2, 0) << parts.join(QLatin1Char('|')).toStdString();
    for (qsizetype i = 0; i < parts.size(); ++i) EXPECT_FALSE(parts.at(i).trimmed().isEmpty()) << "part " << i;
    for (qsizetype i = 1; i < parts.size(); i += 2) EXPECT_TRUE(parts.at(i).contains(QLatin1Char('*'))) << "pattern " << i;
}

INSTANTIATE_TEST_SUITE_P(Languages, LegendFile, ::testing::ValuesIn(kLanguages),
                         [](const auto& info) { return std::string(info.param); });

// A few legends per language, through the loader: the French ones are the
// captions the forms carry at design time; the others show that accents and
// umlauts come through Windows-1252.
TEST(LegendFiles, GiveTheExpectedTexts) {
    const struct {
        const char* language;
        int number;
        const char* text;
    } cases[] = {
        {"FRA", Legend::GeneralTitle, "Général"},
        {"FRA", Legend::FontType, "Type de police"},
        {"FRA", Legend::French, "Français"},
        {"FRA", Legend::DevelopedBy, "Ce produit a été développé par"},
        {"FRA", Legend::TextAfterStyle, "Texte après l'appel du style"},
        {"FRA", Legend::UserDimension, "Dimension [user] en mm."},
        {"FRA", Legend::ShowSlides, "Affichage des slides lors du chargement des modules Morlak"},
        {"FRA", Legend::AcrobatReader, "Acrobat Reader"},
        {"ENG", Legend::GeneralTitle, "General"},
        {"ENG", Legend::English, "English"},
        {"DEU", Legend::UserDimension, "Größe [Benutzer] in mm"},
        {"DEU", Legend::AboutButton, "Über"},
        {"DEU", Legend::German, "Deutsch"},
        {"ITA", Legend::Town, "Località"},
        {"ITA", Legend::Italian, "Italiano"},
    };
    InstalledLegends legends;
    for (const auto& c : cases) {
        LegendTable table;
        legends.load(table, QString::fromLatin1(c.language));
        EXPECT_EQ(table.GetLegends(c.number), QString::fromUtf8(c.text)) << c.language << " " << c.number;
    }
}

} // namespace
} // namespace brimo
