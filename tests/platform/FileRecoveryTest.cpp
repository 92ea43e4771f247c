// What a start finds after a commit of two files was killed at each step.

#include "platform/CommitJournal.h"
#include "platform/FileAccess.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace brimo {
namespace {

const QList<JournalEntry> kPair = {{"a.lsp.brimo-new", "a.lsp"}, {"b.ini.brimo-new", "b.ini"}};

struct KilledCommit {
    const char* what;
    QByteArray journal;            // empty: none on the disk
    QList<QByteArray> stagedLeft;  // the staged copies still there
    Recovery expected;
    QByteArray a, b;               // the pair afterwards
};

void expectRecovered(const KilledCommit& c) {
    QTemporaryDir dir;
    const auto put = [&](const QString& name, const QByteArray& bytes) {
        QFile f(dir.filePath(name));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    };
    const auto get = [&](const char* name) {
        QFile f(dir.filePath(QString::fromLatin1(name)));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("missing");
    };
    put("a.lsp", "old a");
    put("b.ini", "old b");
    put("outside", "keep");
    for (const QByteArray& name : c.stagedLeft) put(QString::fromLatin1(name), "new " + name.left(1));
    const QString journal = dir.filePath("journal");
    if (!c.journal.isEmpty()) put("journal", c.journal);

    EXPECT_EQ(RecoverFilesTogether(journal), c.expected) << c.what;
    EXPECT_EQ(get("a.lsp"), c.a) << c.what;
    EXPECT_EQ(get("b.ini"), c.b) << c.what;
    EXPECT_EQ(get("outside"), QByteArray("keep")) << c.what;
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList({"a.lsp", "b.ini", "outside"})) << c.what;
}

const QByteArray kJournal = ComposeCommitJournal(kPair);
const QList<QByteArray> kBoth = {"a.lsp.brimo-new", "b.ini.brimo-new"};

TEST(Kills, RecoveryLeavesThePairWholeAndNoStagedFile) {
    const KilledCommit kills[] = {
        {"before anything was staged", {}, {}, Recovery::Nothing, "old a", "old b"},
        {"while staging", {}, {"a.lsp.brimo-new"}, Recovery::RolledBack, "old a", "old b"},
        {"while the journal was written", kJournal.left(40), kBoth, Recovery::RolledBack, "old a", "old b"},
        {"before the first move", kJournal, kBoth, Recovery::RolledForward, "new a", "new b"},
        {"between the moves", kJournal, {"b.ini.brimo-new"}, Recovery::RolledForward, "old a", "new b"},
        {"before the journal was removed", kJournal, {}, Recovery::RolledForward, "old a", "old b"},
        {"a journal whose checksum fails", QByteArray(kJournal).replace("b.ini", "b.ino"), kBoth,
         Recovery::Ignored, "old a", "old b"},
        {"a journal that names a file outside its folder",
         ComposeCommitJournal({{"../outside.brimo-new", "../outside"}}), kBoth, Recovery::Ignored,
         "old a", "old b"},
        {"a journal that moves another file of the folder", ComposeCommitJournal({{"outside", "b.ini"}}),
         kBoth, Recovery::Ignored, "old a", "old b"}};
    for (const KilledCommit& kill : kills) expectRecovered(kill);
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
