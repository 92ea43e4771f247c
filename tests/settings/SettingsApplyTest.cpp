// One user's values exported and applied to other prefixes: the same files,
// 0 for every success, Puppet's detailed statuses on request, and a JSON
// report per prefix, so that a configuration tool can run the command again
// and again.
#include "SettingsRun.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

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
    ASSERT_EQ(RunSettings({"set", "--prefix", office.prefix.root(), "x_nom_bureau=Bureau Nord", "x_ht_gc1=2"}).status, 0);
    // The slope dialog opens with its own values whatever is stored: export takes those.
    ASSERT_EQ(RunSettings({"set", "--dialog", "slope", "--prefix", office.prefix.root()}).status, 0);
    const QString standard = office.prefix.native(QStringLiteral("C:\\standard.ini"));
    ASSERT_EQ(RunSettings({"export", standard, "--prefix", office.prefix.root()}).status, 0);

    const QString missing = office.prefix.root() + QStringLiteral("/nowhere");
    const QStringList everywhere = {"--prefix", first.prefix.root(), "--prefix", missing, "--prefix", second.prefix.root()};
    const QStringList detailed = {"--detailed-exitcodes", "--json"};
    const struct {
        const char* what;
        QStringList options;
        int status;
        const char* summary; // the last line, or the JSON's status
        QList<bool> changed; // with --json: each prefix's "changed"
    } runs[] = {
        {"check", {"--check"}, 3, "would change 2, already so 0, failed 1"},
        {"check, detailed", QStringList{"--check"} + detailed, 6, "failed", {true, false, true}},
        {"apply", {}, 3, "changed 2, already so 0, failed 1"},
        {"again, detailed", detailed, 4, "failed", {false, false, false}},
        {"again, without the missing prefix", {"--prefix", first.prefix.root()}, 0, "changed 0, already so 1, failed 0"},
        {"the same, detailed", QStringList{"--prefix", first.prefix.root()} + detailed, 0, "already so", {false}},
    };
    const QByteArray before = first.files();
    for (const auto& run : runs) {
        SCOPED_TRACE(run.what);
        const QStringList prefixes = run.options.contains("--prefix") ? QStringList{} : everywhere;
        const SettingsRun result = RunSettings(QStringList{"apply", standard} + prefixes + run.options);
        EXPECT_EQ(result.status, run.status) << result.errors.toStdString();
        if (run.options.contains("--json")) {
            const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
            EXPECT_EQ(json["status"].toString(), QLatin1String(run.summary));
            const QJsonArray prefixes = json["prefixes"].toArray();
            ASSERT_EQ(prefixes.size(), run.changed.size()) << result.output.toStdString();
            for (qsizetype i = 0; i < prefixes.size(); ++i) {
                const QJsonObject prefix = prefixes[i].toObject();
                EXPECT_EQ(prefix["changed"].toBool(), run.changed[i]);
                EXPECT_EQ(prefix.contains("error"), prefix["prefix"].toString() == missing);
                EXPECT_EQ(prefix["files"].toArray().size(), run.changed[i] ? 3 : 0);
            }
            if (run.changed.first()) {
                const QJsonArray keys = prefixes.first()["keys"].toArray();
                EXPECT_TRUE(keys.contains(QJsonObject{{"section", "Brimo_Gene"}, {"key", "x_nom_bureau"},
                                                      {"old", "Ancien"}, {"new", "Bureau Nord"}}));
                EXPECT_EQ(prefixes.first()["user"].toString(), "jo");
            }
        } else {
            EXPECT_TRUE(result.output.contains(QLatin1String(run.summary))) << result.output.toStdString();
        }
        if (run.options.contains("--check")) EXPECT_EQ(first.files(), before);
        else {
            EXPECT_TRUE(first.prefix.read(kDir + "Brimo.ini").contains("x_chtxt=7")) << "keys of no dialog stay";
            EXPECT_EQ(first.prefix.read(kDir + "Brimo_Gene.lsp"), office.prefix.read(kDir + "Brimo_Gene.lsp"));
            EXPECT_EQ(second.files(), office.files());
        }
    }
}

// What the dialogs open with: get shows the slope dialog's own values, never
// stored ones; export writes what the general dialog's OK would write from
// odd stored forms, and apply takes it without a refusal.
TEST(SettingsApplyTest, GetAndExportGiveWhatTheDialogsWouldCommit) {
    User office, other;
    office.prefix.write(kDir + "Brimo.ini", "[Brimo_Gene]\r\nx_def_ounit=5\r\nx_chttt=7\r\nAffiProfil=2\r\nx_lang=xx\r\n"
                                            "[Brimo_Talus]\r\nx_QZ_tal_dh=9\r\n");
    const auto slope = [](const User& user) { return RunSettings({"get", "--dialog", "slope", "--prefix", user.prefix.root()}).output; };
    EXPECT_EQ(slope(office), slope(other));
    const QString standard = office.prefix.native(QStringLiteral("C:\\standard.ini"));
    ASSERT_EQ(RunSettings({"export", standard, "--prefix", office.prefix.root()}).status, 0);
    const SettingsRun apply = RunSettings({"apply", standard, "--prefix", other.prefix.root()});
    EXPECT_EQ(apply.status, 0) << apply.errors.toStdString();
    const QByteArray ini = other.prefix.read(kDir + "Brimo.ini");
    for (const char* line : {"affiprofil=1\r\n", "x_chttt=2\r\n", "x_lang=FRA\r\n", "x_def_ounit=1\r\n"})
        EXPECT_TRUE(ini.contains(line)) << line << "\n" << ini.toStdString();
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
