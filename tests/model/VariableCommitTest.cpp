#include "model/VariableCommit.h"
#include "platform/CommitJournal.h"
#include "support/ScratchPrefix.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace brimo {
namespace {

using test::ScratchPrefix;

const QString kLisp = QStringLiteral("C:\\Var\\U\\Brimo_Gene.lsp");
const QString kIni = QStringLiteral("C:\\Var\\U\\Brimo.ini");

const QList<CommittedRow> kRows = {
    {QStringLiteral("(setq a 1) ;A"), QStringLiteral("a"), QStringLiteral("1")},
    {QStringLiteral("(setq b \"é\") ;B"), QStringLiteral("b"), QStringLiteral("é")},
};

TEST(VariableCommit, WritesBothFilesAndKeepsTheRestOfTheProfile) {
    ScratchPrefix prefix;
    const QByteArray before = "; comment\r\n[Brimo_Talus]\r\nx=1\r\n\r\n[Brimo_Gene]\r\nB = old\r\nx_chtxt=7\r\n";
    prefix.write(kIni, before);
    prefix.write(kLisp, "old lisp content that must go\r\n");
    // A read-only staged copy that a killed commit left does not stop this one.
    prefix.write(kIni + ".brimo-new", "left by a kill");
    QFile::setPermissions(prefix.native(kIni + ".brimo-new"), QFileDevice::ReadOwner);
    const CommitOutcome outcome = CommitVariables(WinePrefix::FromEnvironment(), kLisp, kIni, QStringLiteral("Brimo_Gene"), kRows);
    ASSERT_TRUE(outcome.ok) << outcome.reason.toStdString();
    EXPECT_EQ(prefix.read(kLisp), QByteArray("(setq a 1) ;A\r\n(setq b \"\xe9\") ;B\r\n"));
    EXPECT_EQ(prefix.read(kIni),
              QByteArray("; comment\r\n[Brimo_Talus]\r\nx=1\r\n\r\n[Brimo_Gene]\r\nB = \xe9\r\nx_chtxt=7\r\na=1\r\n"));
    EXPECT_EQ(QDir(prefix.native(QStringLiteral("C:\\Var\\U"))).entryList(QDir::Files | QDir::Hidden),
              QStringList({"Brimo.ini", "Brimo_Gene.lsp"})); // no journal, no staged copy
}

TEST(VariableCommit, CreatesTheProfileWhenTheFolderExists) {
    ScratchPrefix prefix;
    prefix.makeFolder(QStringLiteral("C:\\Var\\U"));
    ASSERT_TRUE(CommitVariables(WinePrefix::FromEnvironment(), kLisp, kIni, QStringLiteral("Brimo_Gene"), kRows).ok);
    EXPECT_EQ(prefix.read(kIni), QByteArray("[Brimo_Gene]\r\na=1\r\nb=\xe9\r\n"));
}

// A Brimo.ini kept elsewhere behind a link: written through, the link stays,
// and a start after a kill finishes the commit beside the link's target.
TEST(VariableCommit, WritesThroughALinkAndRecoversThroughIt) {
    ScratchPrefix prefix;
    const QString shared = QStringLiteral("C:\\Shared\\office.ini");
    prefix.write(shared, "[Brimo_Gene]\r\nB=old\r\n");
    prefix.makeFolder(QStringLiteral("C:\\Var\\U"));
    ASSERT_TRUE(QFile::link(prefix.native(shared), prefix.native(kIni)));
    ASSERT_TRUE(CommitVariables(WinePrefix::FromEnvironment(), kLisp, kIni, QStringLiteral("Brimo_Gene"), kRows).ok);
    EXPECT_TRUE(QFileInfo(prefix.native(kIni)).isSymLink());
    EXPECT_EQ(prefix.read(shared), QByteArray("[Brimo_Gene]\r\nB=\xe9\r\na=1\r\n"));
    EXPECT_EQ(QDir(prefix.native(QStringLiteral("C:\\Shared"))).entryList(QDir::Files | QDir::Hidden),
              QStringList({"office.ini"}));

    // Killed after the journal: the staged copy lies beside the target.
    prefix.write(shared + ".brimo-new", "new");
    prefix.write(QStringLiteral("C:\\Var\\U\\Brimo.commit-journal"),
                 ComposeCommitJournal({{"Brimo.ini.brimo-new", "Brimo.ini"}}));
    InstallInfo info;
    info.prefix = WinePrefix::FromEnvironment();
    info.Variables = QStringLiteral("C:\\Var");
    info.actuel = QStringLiteral("U");
    EXPECT_EQ(RecoverInterruptedCommit(info), Recovery::RolledForward);
    EXPECT_TRUE(QFileInfo(prefix.native(kIni)).isSymLink());
    EXPECT_EQ(prefix.read(shared), QByteArray("new"));
    EXPECT_FALSE(prefix.exists(shared + ".brimo-new"));
}

TEST(VariableCommit, AFailureChangesNothingAndNamesTheFile) {
    {
        ScratchPrefix prefix; // an empty Variables and user: "\\Brimo_Gene.lsp" names nothing
        const CommitOutcome outcome = CommitVariables(WinePrefix::FromEnvironment(), QStringLiteral("\\\\Brimo_Gene.lsp"), QStringLiteral("\\\\Brimo.ini"),
                                                      QStringLiteral("Brimo_Gene"), kRows);
        EXPECT_FALSE(outcome.ok);
        EXPECT_EQ(outcome.file, QStringLiteral("\\\\Brimo_Gene.lsp"));
        EXPECT_FALSE(QFileInfo::exists(QStringLiteral("/Brimo_Gene.lsp")));
    }
    {
        ScratchPrefix prefix; // the folder is missing
        const CommitOutcome outcome = CommitVariables(WinePrefix::FromEnvironment(), kLisp, kIni, QStringLiteral("Brimo_Gene"), kRows);
        EXPECT_FALSE(outcome.ok);
        EXPECT_EQ(outcome.file, kLisp);
        EXPECT_FALSE(prefix.exists(kIni));
    }
    {
        ScratchPrefix prefix; // a folder named Brimo.ini: the Lisp file must stay as it was
        prefix.write(kLisp, "old\r\n");
        prefix.makeFolder(kIni);
        const CommitOutcome outcome = CommitVariables(WinePrefix::FromEnvironment(), kLisp, kIni, QStringLiteral("Brimo_Gene"), kRows);
        EXPECT_FALSE(outcome.ok);
        EXPECT_EQ(outcome.file, kIni);
        EXPECT_FALSE(outcome.reason.isEmpty());
        EXPECT_EQ(prefix.read(kLisp), QByteArray("old\r\n"));
    }
}

} // namespace
} // namespace brimo
