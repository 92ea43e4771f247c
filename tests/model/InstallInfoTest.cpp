#include "Tsv.h"
#include "model/InstallInfo.h"
#include "support/ScratchPrefix.h"

namespace brimo {
namespace {

using test::cp1252;
using test::ScratchPrefix;

TEST(InstallInfo, ReadsSixValuesAndHoldsDefaultAsTheEmptyUser) {
    ScratchPrefix prefix;
    prefix.write(QStringLiteral("C:\\windows\\zorel.ini"),
                 cp1252("[chemins]\r\nzorel = C:\\Zorel\\\r\nVariables=\"C:\\Zorel\\Var\"\r\n"
                        "[Users]\r\nactuel=Default\r\n[VZorel]\r\nNo_version_Zorel=2010\r\n"
                        "No_version_acad=\r\nNo_serie_acad=123-é\r\n"));
    InstallInfo info;
    LoadInstallInfo(WinePrefix::FromEnvironment(), info);
    EXPECT_EQ(info.Zorel, QStringLiteral("C:\\Zorel\\"));
    EXPECT_EQ(info.Variables, QStringLiteral("C:\\Zorel\\Var"));
    EXPECT_EQ(info.actuel, QString());
    EXPECT_EQ(info.No_version_Zorel, QStringLiteral("2010"));
    EXPECT_EQ(info.No_version_acad, QString());
    EXPECT_EQ(info.No_serie_acad, QStringLiteral("123-é"));
    EXPECT_EQ(LegendFolder(info), QStringLiteral("C:\\Zorel\\\\Lang\\"));
}

TEST(InstallInfo, PathsAreJoinedWithoutTouchingSeparators) {
    for (const QList<QByteArray>& row : test::TsvRows("user-folders.tsv")) {
        InstallInfo info;
        info.Variables = QString::fromUtf8(row[0]);
        info.actuel = QString::fromUtf8(row[1]);
        const QString folder = QString::fromUtf8(row[2]);
        EXPECT_EQ(BrimoIniPath(info), folder + QStringLiteral("Brimo.ini"));
        EXPECT_EQ(GeneLispPath(info), folder + QStringLiteral("Brimo_Gene.lsp"));
        EXPECT_EQ(TalusLispPath(info), folder + QStringLiteral("Brimo_Talus.lsp"));
    }
    EXPECT_EQ(LegendFolder(InstallInfo()), QStringLiteral("\\Lang\\"));
}

TEST(InstallInfo, OnlyTheExactWordDefaultIsTheEmptyUser) {
    const std::pair<const char*, const char*> cases[] = {{"Default", ""}, {"default", "default"}, {"DEFAULT", "DEFAULT"}};
    for (const auto& [stored, held] : cases) {
        ScratchPrefix prefix;
        prefix.writeZorelIni(QStringLiteral("C:\\Z"), QStringLiteral("C:\\V"), QString::fromUtf8(stored));
        InstallInfo info;
        LoadInstallInfo(WinePrefix::FromEnvironment(), info);
        EXPECT_EQ(info.actuel, QString::fromUtf8(held));
    }
}

TEST(InstallInfo, MissingEmptyOrBinaryZorelIniGivesEmptyValues) {
    const QByteArray files[] = {QByteArray(), QByteArray("\0\x01\x02\xff[Chemins]\0Zorel=x", 19), QByteArray(1 << 20, '[')};
    for (const QByteArray& bytes : files) {
        ScratchPrefix prefix;
        if (!bytes.isEmpty()) prefix.write(QStringLiteral("C:\\windows\\zorel.ini"), bytes);
        InstallInfo info;
        LoadInstallInfo(WinePrefix::FromEnvironment(), info);
        EXPECT_EQ(info.Zorel, QString());
        EXPECT_EQ(info.Variables, QString());
    }
}

} // namespace
} // namespace brimo
