// What a start finds after a commit of two files was killed at each step, on
// the rows of model/data/killed-commits.tsv.

#include "model/Tsv.h"
#include "platform/CommitJournal.h"
#include "platform/FileAccess.h"
#include "support/ScratchPrefix.h"

#include <QDir>

namespace brimo {
namespace {

using test::ScratchPrefix;

const QList<JournalEntry> kPair = {{"a.lsp.brimo-new", "a.lsp"}, {"b.ini.brimo-new", "b.ini"}};
const QByteArray kJournal = ComposeCommitJournal(kPair);

TEST(Kills, RecoveryLeavesThePairWholeAndNoStagedFile) {
    const QMap<QByteArray, QByteArray> journals = {
        {"-", {}}, {"whole", kJournal}, {"cut", kJournal.left(40)}, {"badsum", QByteArray(kJournal).replace("b.ini", "b.ino")},
        {"outside", ComposeCommitJournal({{"../outside.brimo-new", "../outside"}})},
        {"other", ComposeCommitJournal({{"outside", "b.ini"}})}, {"removes", ComposeCommitJournal({kPair[0], {{}, "b.ini"}})}};
    const QMap<QByteArray, Recovery> recoveries = {{"Nothing", Recovery::Nothing}, {"RolledBack", Recovery::RolledBack},
                                                   {"RolledForward", Recovery::RolledForward}, {"Ignored", Recovery::Ignored}};
    for (const QList<QByteArray>& row : test::TsvRows("killed-commits.tsv")) {
        ASSERT_EQ(row.size(), 6) << row[0].toStdString();
        ASSERT_TRUE(journals.contains(row[1]) && recoveries.contains(row[3])) << row[0].toStdString();
        SCOPED_TRACE(row[0].toStdString());
        ScratchPrefix prefix; // the pair lies in C:\, beside a file that is not theirs
        const auto put = [&](const QByteArray& name, const QByteArray& bytes) { prefix.write("C:\\" + name, bytes); };
        put("a.lsp", "old a");
        put("b.ini", "old b");
        put("outside", "keep");
        for (const QByteArray& name : row[2].split(' '))
            if (!name.isEmpty()) put(name, "new " + name.left(1));
        if (!journals[row[1]].isEmpty()) put("journal", journals[row[1]]);

        EXPECT_EQ(RecoverFilesTogether(prefix.native("C:\\journal")), recoveries[row[3]]);
        QStringList left = {"a.lsp", "b.ini", "outside"}; // a file whose row says "-" is gone
        for (int column : {4, 5}) {
            const QString name = column == 4 ? "a.lsp" : "b.ini";
            EXPECT_EQ(prefix.read("C:\\" + name), row[column] == "-" ? QByteArray() : row[column]) << name.toStdString();
            if (row[column] == "-") left.removeOne(name);
        }
        EXPECT_EQ(prefix.read("C:\\outside"), QByteArray("keep"));
        EXPECT_EQ(QDir(prefix.native("C:")).entryList(QDir::Files), left);
    }
}

TEST(CommitJournal, ReadsBackWhatItWroteAndEveryCutAsIncomplete) {
    const JournalReading whole = ReadCommitJournal(kJournal);
    EXPECT_EQ(whole.kind, JournalReading::Complete);
    EXPECT_EQ(whole.entries, kPair);
    for (qsizetype n = 0; n < kJournal.size(); ++n)
        EXPECT_EQ(ReadCommitJournal(kJournal.left(n)).kind, JournalReading::Incomplete) << n;
}

} // namespace
} // namespace brimo
