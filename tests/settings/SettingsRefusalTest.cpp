// Every value that brimo-settings refuses leaves both files as they were,
// exits with status 2 and names the key.
#include "SettingsRun.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace brimo::test {
namespace {

const QString kDir = QStringLiteral("C:\\Zorel\\Var\\jo\\");
const QByteArray kIni = "[Brimo_Gene]\r\nx_nom_bureau=Avant\r\n[Brimo_Talus]\r\nx_QZ_tal_dh=9\r\n";
const QByteArray kLisp = "(setq x_nom_bureau \"Avant\") ;Nom de votre bureau\r\n";

struct Refusal {
    const char* what;
    QStringList arguments;
    const char* named; // the key the message names
};

const QList<Refusal> kRefusals = {
    {"no number", {"set", "x_ht_gc1=abc"}, "x_ht_gc1"},
    {"a blank is no number", {"set", "cadre_usery= "}, "cadre_usery"},
    {"unknown key", {"set", "x_nom_bureau=B", "x_inconnu=1"}, "x_inconnu"},
    {"a slope key in the general settings", {"set", "x_QZ_tal_dh=3"}, "x_QZ_tal_dh"},
    {"unit out of its choices", {"set", "x_def_ounit=3"}, "x_def_ounit"},
    {"language in lower case", {"set", "x_lang=fra"}, "x_lang"},
    {"check box beyond its states", {"set", "affilogoKVO=3"}, "affilogoKVO"},
    {"quote in a text", {"set", "x_nom_bureau=Le \"Nord\""}, "x_nom_bureau"},
    {"quote in a path", {"set", "Path_Win1=C:\\\"x\".exe"}, "Path_Win1"},
    {"slope field no number", {"set", "--dialog", "slope", "x_QZ_tal_dv=x"}, "x_QZ_tal_dv"},
    {"slope drawing out of its choices", {"set", "--dialog", "slope", "x_QZ_asp_dess=ligne"}, "x_QZ_asp_dess"},
    {"one good value, one bad", {"set", "x_ht_gc2=3", "x_ht_gc3=.5x"}, "x_ht_gc3"},
    {"unknown key to get", {"get", "x_inconnu"}, "x_inconnu"},
};

TEST(SettingsRefusalTest, RefusedValuesWriteNothing) {
    ScratchPrefix prefix;
    prefix.writeZorelIni(QStringLiteral("C:\\Zorel"), QStringLiteral("C:\\Zorel\\Var"), QStringLiteral("jo"));
    for (const Refusal& refusal : kRefusals) {
        SCOPED_TRACE(refusal.what);
        prefix.write(kDir + "Brimo.ini", kIni);
        prefix.write(kDir + "Brimo_Gene.lsp", kLisp);
        const SettingsRun run = RunSettings(refusal.arguments + QStringList{QStringLiteral("--prefix"), prefix.root()});
        EXPECT_EQ(run.status, 2);
        EXPECT_TRUE(run.errors.contains(QLatin1String(refusal.named))) << run.errors.toStdString();
        EXPECT_EQ(prefix.read(kDir + "Brimo.ini"), kIni);
        EXPECT_EQ(prefix.read(kDir + "Brimo_Gene.lsp"), kLisp);
        EXPECT_FALSE(prefix.exists(kDir + "Brimo_Talus.lsp"));
    }
}

// A profile file with one bad key is refused whole, for every prefix; with
// Puppet's statuses the refusal is 1, and --json names it.
TEST(SettingsRefusalTest, ApplyOfAFileWithABadValueWritesNothing) {
    ScratchPrefix prefix;
    prefix.writeZorelIni(QStringLiteral("C:\\Zorel"), QStringLiteral("C:\\Zorel\\Var"), QStringLiteral("jo"));
    prefix.write(kDir + "Brimo.ini", kIni);
    prefix.write(QStringLiteral("C:\\office.ini"), "[Brimo_Gene]\r\nx_nom_bureau=Nord\r\n[Brimo_Talus]\r\nx_QZ_rech_360=abc\r\n");
    for (const auto& [options, status] : {std::pair{QStringList{}, 2}, {QStringList{"--json", "--detailed-exitcodes"}, 1}}) {
        const SettingsRun run = RunSettings(QStringList{QStringLiteral("apply"), prefix.native(QStringLiteral("C:\\office.ini")),
                                                        QStringLiteral("--prefix"), prefix.root()} + options);
        EXPECT_EQ(run.status, status);
        EXPECT_TRUE(run.errors.contains(QLatin1String("x_QZ_rech_360")));
        if (!options.isEmpty()) {
            const QJsonObject json = QJsonDocument::fromJson(run.output.toUtf8()).object();
            EXPECT_EQ(json["status"].toString(), "refused");
            EXPECT_TRUE(json["refusals"].toArray().first().toString().contains("x_QZ_rech_360"));
        }
        EXPECT_EQ(prefix.read(kDir + "Brimo.ini"), kIni);
        EXPECT_FALSE(prefix.exists(kDir + "Brimo_Gene.lsp"));
    }
}

} // namespace
} // namespace brimo::test
