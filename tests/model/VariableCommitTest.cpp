#include "model/FailureText.h"
#include "model/VariableCommit.h"
#include "platform/CommitJournal.h"
#include "support/ScratchPrefix.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace brimo {
namespace {

using test::ScratchPrefix;

const QString kLisp = QStringLiteral("C:\\Var\\U\\Brimo_Gene.lsp");
const QString kIni = QStringLiteral("C:\\Var\\U\\Brimo.ini");

CommitOutcome commit(const QString& lisp = kLisp, const QString& ini = kIni) {
    const QList<CommittedRow> rows = {{QStringLiteral("(setq a 1) ;A"), QStringLiteral("a"), QStringLiteral("1")},
                                      {QStringLiteral("(setq b \"é\") ;B"), QStringLiteral("b"), QStringLiteral("é")}};
    return CommitVariables(WinePrefix::FromEnvironment(), lisp, ini, QStringLiteral("Brimo_Gene"), rows);
}

// Every file and folder under the prefix with its bytes.
QMap<QString, QByteArray> filesUnder(const QString& root) {
    QMap<QString, QByteArray> files;
    for (QDirIterator it(root, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories); it.hasNext();) {
        QFile file(it.next());
        files.insert(it.filePath(), file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<folder>"));
    }
    return files;
}

// Into a Brimo.ini that keeps every other byte, and into a new one; a
// read-only staged copy that a killed commit left does not stop the commit.
TEST(VariableCommit, WritesBothFilesAndKeepsTheRestOfTheProfile) {
    const std::pair<QByteArray, QByteArray> inis[] = {
        {"; comment\r\n[Brimo_Talus]\r\nx=1\r\n\r\n[Brimo_Gene]\r\nB = old\r\nx_chtxt=7\r\n",
         "; comment\r\n[Brimo_Talus]\r\nx=1\r\n\r\n[Brimo_Gene]\r\nB = \xe9\r\nx_chtxt=7\r\na=1\r\n"},
        {"", "[Brimo_Gene]\r\na=1\r\nb=\xe9\r\n"}};
    for (const auto& [before, after] : inis) {
        ScratchPrefix prefix;
        prefix.makeFolder(QStringLiteral("C:\\Var\\U"));
        if (!before.isEmpty()) {
            prefix.write(kIni, before);
            prefix.write(kLisp, "old lisp content that must go\r\n");
            prefix.write(kIni + ".brimo-new", "left by a kill");
            QFile::setPermissions(prefix.native(kIni + ".brimo-new"), QFileDevice::ReadOwner);
        }
        const CommitOutcome outcome = commit();
        ASSERT_TRUE(outcome.ok) << FailureText(outcome.reason).toStdString();
        EXPECT_EQ(prefix.read(kLisp), QByteArray("(setq a 1) ;A\r\n(setq b \"\xe9\") ;B\r\n"));
        EXPECT_EQ(prefix.read(kIni), after);
        EXPECT_EQ(QDir(prefix.native(QStringLiteral("C:\\Var\\U"))).entryList(QDir::Files | QDir::Hidden),
                  QStringList({"Brimo.ini", "Brimo_Gene.lsp"})); // no journal, no staged copy
    }
}

// A Brimo.ini kept elsewhere behind a link: written through, the link stays,
// and a start after a kill finishes the commit beside the link's target.
TEST(VariableCommit, WritesThroughALinkAndRecoversThroughIt) {
    ScratchPrefix prefix;
    const QString shared = QStringLiteral("C:\\Shared\\office.ini");
    prefix.write(shared, "[Brimo_Gene]\r\nB=old\r\n");
    prefix.makeFolder(QStringLiteral("C:\\Var\\U"));
    ASSERT_TRUE(QFile::link(prefix.native(shared), prefix.native(kIni)));
    ASSERT_TRUE(commit().ok);
    EXPECT_TRUE(QFileInfo(prefix.native(kIni)).isSymLink());
    EXPECT_EQ(prefix.read(shared), QByteArray("[Brimo_Gene]\r\nB=\xe9\r\na=1\r\n"));
    EXPECT_EQ(QDir(prefix.native(QStringLiteral("C:\\Shared"))).entryList(QDir::Files | QDir::Hidden),
              QStringList({"office.ini"}));

    // Killed after the journal: the staged copy lies beside the target.
    prefix.write(shared + ".brimo-new", "new");
    prefix.write(QStringLiteral("C:\\Var\\U\\Brimo.commit-journal"),
                 ComposeCommitJournal({{"Brimo.ini.brimo-new", "Brimo.ini"}}));
    const InstallInfo info{WinePrefix::FromEnvironment(), {}, QStringLiteral("C:\\Var"), QStringLiteral("U")};
    EXPECT_EQ(RecoverInterruptedCommit(info).recovery, Recovery::RolledForward);
    EXPECT_TRUE(QFileInfo(prefix.native(kIni)).isSymLink());
    EXPECT_EQ(prefix.read(shared), QByteArray("new"));
    EXPECT_FALSE(prefix.exists(shared + ".brimo-new"));
}

// A network path (an empty Variables and user give "\\Brimo_Gene.lsp"), a
// missing folder, a folder named Brimo.ini: the commit fails, names the file,
// and leaves every file as it was, the Lisp file first of all.
TEST(VariableCommit, AFailureChangesNothingAndNamesTheFile) {
    const struct {
        QString lisp, ini, failing;
        bool iniIsFolder;
    } failures[] = {{QStringLiteral("\\\\Brimo_Gene.lsp"), QStringLiteral("\\\\Brimo.ini"), QStringLiteral("\\\\Brimo_Gene.lsp"), false},
                    {kLisp, kIni, kLisp, false},
                    {kLisp, kIni, kIni, true}};
    for (const auto& c : failures) {
        SCOPED_TRACE(c.failing.toStdString());
        ScratchPrefix prefix;
        if (c.iniIsFolder) prefix.write(kLisp, "old\r\n"), prefix.makeFolder(kIni);
        const QMap<QString, QByteArray> before = filesUnder(prefix.root());
        const CommitOutcome outcome = commit(c.lisp, c.ini);
        EXPECT_FALSE(outcome.ok);
        EXPECT_EQ(outcome.file, c.failing);
        EXPECT_TRUE(outcome.reason);
        EXPECT_EQ(filesUnder(prefix.root()), before);
        EXPECT_FALSE(QFileInfo::exists(QStringLiteral("/Brimo_Gene.lsp")));
    }
}

} // namespace
} // namespace brimo
