// One user's values exported and applied to other prefixes: the same files,
// and statuses that tell changed from already so, so that a configuration
// tool can run the command again and again.
#include "SettingsRun.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

#include <QFile>

namespace brimo::test {
namespace {

const QString kDir = QStringLiteral("C:\\Zorel\\Var\\jo\\");
const QStringList kFiles = {QStringLiteral("Brimo.ini"), QStringLiteral("Brimo_Gene.lsp"), QStringLiteral("Brimo_Talus.lsp")};

struct User {
    ScratchPrefix prefix;
    User() {
        prefix.writeZorelIni(QStringLiteral("C:\\Zorel"), QStringLiteral("C:\\Zorel\\Var"), QStringLiteral("jo"));
        prefix.makeFolder(kDir);
    }
    QByteArray files() const {
        QByteArray all;
        for (const QString& file : kFiles) all += prefix.read(kDir + file) + "\n--\n";
        return all;
    }
};

TEST(SettingsApplyTest, ExportedValuesApplyToEveryPrefixAndOnlyOnce) {
    User office, first, second;
    first.prefix.write(kDir + "Brimo.ini", "[Brimo_Gene]\r\nx_nom_bureau=Ancien\r\nx_chtxt=7\r\n");
    ASSERT_EQ(RunSettings({"set", "--prefix", office.prefix.root(), "x_nom_bureau=Bureau Nord", "x_ht_gc1=2"}).status, 1);
    ASSERT_EQ(RunSettings({"set", "--dialog", "slope", "--prefix", office.prefix.root(), "x_QZ_des_tal=3"}).status, 1);
    const QString standard = office.prefix.native(QStringLiteral("C:\\standard.ini"));
    ASSERT_EQ(RunSettings({"export", standard, "--prefix", office.prefix.root()}).status, 1);

    const QString missing = office.prefix.root() + QStringLiteral("/nowhere");
    const QStringList everywhere = {"--prefix", first.prefix.root(), "--prefix", missing, "--prefix", second.prefix.root()};
    const struct {
        const char* what;
        QStringList options;
        int status;
        const char* summary;
    } runs[] = {
        {"check", {"--check"}, 3, "would change 2, already so 0, failed 1"},
        {"apply", {}, 3, "changed 2, already so 0, failed 1"},
        {"again", {}, 3, "changed 0, already so 2, failed 1"},
        {"again, without the missing prefix", {"--prefix", first.prefix.root()}, 0, "changed 0, already so 1, failed 0"},
    };
    const QByteArray before = first.files();
    for (const auto& run : runs) {
        SCOPED_TRACE(run.what);
        const QStringList prefixes = run.options.contains("--prefix") ? QStringList{} : everywhere;
        const SettingsRun result = RunSettings(QStringList{"apply", standard} + prefixes + run.options);
        EXPECT_EQ(result.status, run.status) << result.errors.toStdString();
        EXPECT_TRUE(result.output.contains(QLatin1String(run.summary))) << result.output.toStdString();
        if (run.options.contains("--check")) EXPECT_EQ(first.files(), before);
        else {
            EXPECT_TRUE(first.prefix.read(kDir + "Brimo.ini").contains("x_chtxt=7")) << "keys of no dialog stay";
            EXPECT_EQ(first.prefix.read(kDir + "Brimo_Gene.lsp"), office.prefix.read(kDir + "Brimo_Gene.lsp"));
            EXPECT_EQ(second.files(), office.files());
        }
    }
}

// A commit cut short by a kill is dropped before the tool reads the user's files.
TEST(SettingsApplyTest, ACommitCutShortIsUndoneBeforeAnyRead) {
    User user;
    user.prefix.write(kDir + "Brimo.ini.brimo-new", "[Brimo_Gene]\r\nx_incli=9\r\n");
    const SettingsRun result = RunSettings({"get", "x_incli", "--prefix", user.prefix.root()});
    EXPECT_EQ(result.status, 0) << result.errors.toStdString();
    EXPECT_TRUE(result.output.contains("x_incli=0")) << result.output.toStdString();
    EXPECT_FALSE(user.prefix.exists(kDir + "Brimo.ini.brimo-new"));
}

} // namespace
} // namespace brimo::test
