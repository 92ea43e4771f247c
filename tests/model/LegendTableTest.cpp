#include "model/LegendTable.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

namespace brimo {
namespace {

using test::ScratchPrefix;

class RecordingQuestion : public LegendFailureQuestion {
public:
    bool answerYes = false;
    int asked = 0;
    int ended = 0;
    QString text, title;
    bool ask(const QString& t, const QString& ti) override {
        ++asked;
        text = t;
        title = ti;
        return answerYes;
    }
    void endProgram() override { ++ended; }
};

const QString kFolder = QStringLiteral("C:\\Zorel\\Lang");

struct Loaded {
    int result;
    LegendTable table;
    RecordingQuestion question;
};

void load(Loaded& out, const QByteArray& bytes, const QString& folder = kFolder) {
    ScratchPrefix prefix;
    prefix.write(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_FRA.txt"), bytes);
    out.result = out.table.LoadLegends(WinePrefix::FromEnvironment(), folder, QStringLiteral("FRA"), out.question);
}

TEST(LegendTable, LinesAreNumberedFromOneAndLookedUpByNumber) {
    Loaded l;
    load(l, "0001 un\r\n0002  deux  \r\n0001 trois\r\n");
    EXPECT_EQ(l.result, 3);
    EXPECT_EQ(l.question.asked, 0);
    const std::pair<int, const char*> cases[] = {{1, "un"}, {2, "deux"}, {3, "trois"}, {0, ""}, {-1, ""}, {4, ""}};
    for (const auto& [n, text] : cases) EXPECT_EQ(l.table.GetLegends(n), QString::fromUtf8(text)) << n;
}

TEST(LegendTable, LineEndsAndColumns) {
    struct Case {
        QByteArray file;
        int entries;
        int number;
        const char* text;
        const char* code;
    };
    const Case cases[] = {
        {"A\rB\rC", 3, 3, "", "C   "},                     // CR alone ends a line; last line without end
        {"0001 a\r\n\r\n0003 c\r\n", 3, 3, "c", "0003"},    // an empty line keeps its number
        {"0001 a\r\n\r\n", 2, 2, "", "    "},
        {"abc", 1, 1, "", "abc "},                          // 3 characters: code and a blank
        {"abcde", 1, 1, "", "abcd"},
        {"0001x\tx\r\n", 1, 1, "\tx", "0001"},              // column 5 is skipped unread; tabs are not trimmed
        {"0001 a\nb\r\n", 1, 1, "a\nb", "0001"},            // a lone LF is no line end
        {"\xe9t\xe9 caf\xe9\r\n", 1, 1, "af\xc3\xa9", "\xc3\xa9t\xc3\xa9 "},
    };
    for (const Case& c : cases) {
        Loaded l;
        load(l, c.file);
        EXPECT_EQ(l.result, c.entries) << c.file.toStdString();
        EXPECT_EQ(l.table.GetLegends(c.number), QString::fromUtf8(c.text)) << c.file.toStdString();
        EXPECT_EQ(l.table.entry(c.number).code, QString::fromUtf8(c.code)) << c.file.toStdString();
    }
}

TEST(LegendTable, TextIsCutAt255Characters) {
    Loaded l;
    load(l, "0001 " + QByteArray(300, 'x') + "\r\n0002 " + QByteArray(250, ' ') + "yz   " + "\r\n" +
                QByteArray(10 * 1024 * 1024, 'L'));
    EXPECT_EQ(l.result, 3);
    EXPECT_EQ(l.table.GetLegends(1), QString(255, QLatin1Char('x')));
    EXPECT_EQ(l.table.GetLegends(2), QStringLiteral("yz"));
    EXPECT_EQ(l.table.entry(1).text.size(), 255);
    EXPECT_EQ(l.table.GetLegends(3).size(), 255);
}

TEST(LegendTable, FailedLoadsAskAndLeaveOneEmptyEntry) {
    Loaded missing;
    missing.table.LoadLegends(WinePrefix::FromEnvironment(), kFolder, QStringLiteral("DEU"), missing.question);
    for (Loaded* l : {&missing}) {
        EXPECT_EQ(l->question.asked, 1);
        EXPECT_EQ(l->question.title, QStringLiteral("MainModule"));
        EXPECT_EQ(l->question.text, QStringLiteral("Une erreur non gérée est survenue dans la procédure LoadLegends().\r\n"
                                                   "Voulez-vous déboguer le code maintenant ?"));
        EXPECT_EQ(l->question.ended, 0);
        EXPECT_EQ(l->table.size(), 1);
        EXPECT_EQ(l->table.GetLegends(1), QString());
    }

    Loaded empty;
    load(empty, QByteArray());
    EXPECT_EQ(empty.result, -1);
    EXPECT_EQ(empty.question.asked, 1);

    Loaded folder; // a folder where the file should be
    {
        ScratchPrefix prefix;
        prefix.makeFolder(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_FRA.txt"));
        EXPECT_EQ(folder.table.LoadLegends(WinePrefix::FromEnvironment(), kFolder, QStringLiteral("FRA"), folder.question), -1);
    }
    EXPECT_EQ(folder.question.asked, 1);

    Loaded yes;
    yes.question.answerYes = true;
    load(yes, QByteArray());
    EXPECT_EQ(yes.question.ended, 1);

    // A good table is lost on a failed reload.
    Loaded reload;
    load(reload, "0001 un\r\n");
    EXPECT_EQ(reload.table.LoadLegends(WinePrefix::FromEnvironment(), kFolder, QStringLiteral("ITA"), reload.question), -1);
    EXPECT_EQ(reload.table.GetLegends(1), QString());
}

TEST(LegendTable, FolderGetsOneBackslashAndNamesMatchWithoutCase) {
    ScratchPrefix prefix;
    prefix.write(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_FRA.txt"), "0001 un\r\n");
    RecordingQuestion question;
    LegendTable table;
    EXPECT_EQ(table.LoadLegends(WinePrefix::FromEnvironment(), QStringLiteral("C:\\Zorel\\Lang\\"), QStringLiteral("FRA"), question), 1);
    EXPECT_EQ(table.LoadLegends(WinePrefix::FromEnvironment(), QStringLiteral("c:\\zorel\\lang"), QStringLiteral("fra"), question), 1);
    EXPECT_EQ(table.LoadLegends(WinePrefix::FromEnvironment(), QStringLiteral("C:\\Zorel"), QStringLiteral("FRA"), question), -1);
    EXPECT_EQ(question.asked, 1);
}

} // namespace
} // namespace brimo
