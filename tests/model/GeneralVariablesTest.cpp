#include "model/GeneralVariables.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

namespace brimo {
namespace {

using test::cp1252;
using test::ScratchPrefix;

InstallInfo userInfo() {
    InstallInfo info;
    info.prefix = WinePrefix::FromEnvironment();
    info.Variables = QStringLiteral("C:\\Zorel\\Var");
    info.actuel = QStringLiteral("Bureau1");
    return info;
}

const QString kIni = QStringLiteral("C:\\Zorel\\Var\\Bureau1\\Brimo.ini");

TEST(GeneralVariables, MissingFileGivesEveryDefaultWithItsKind) {
    ScratchPrefix prefix;
    GeneralVariables vars;
    vars.setText(u"x_lang", QStringLiteral("DEU"));
    LoadGeneralVariables(userInfo(), vars);
    EXPECT_EQ(std::get<qint16>(vars.value(u"cadre_usery")), 860);
    EXPECT_EQ(std::get<double>(vars.value(u"x_compress")), 0.7);
    EXPECT_EQ(std::get<QString>(vars.value(u"x_lang")), QStringLiteral("FRA"));
    EXPECT_EQ(vars.text(u"x_ht_gc1"), QStringLiteral("1.5"));
    EXPECT_EQ(vars.text(u"x_ht_gc15"), QStringLiteral("15"));
    EXPECT_EQ(vars.text(u"x_tel_bureau"), QStringLiteral("No de téléphone"));
    EXPECT_EQ(vars.text(u"Path_Win5"), QString());
    EXPECT_FALSE(prefix.exists(kIni)); // loading never creates the file
}

TEST(GeneralVariables, FileValuesStayTextAsReadAndOnlyEmptyTakesTheDefault) {
    ScratchPrefix prefix;
    prefix.write(kIni, cp1252("[Other]\r\nx_ht_gc1=99\r\n"
                              "[brimo_gene]\r\n"
                              "x_ht_gc1=abc\r\n"
                              "cadre_usery=0\r\n"
                              "x_compress=  \r\n"
                              "x_incli=\"\"\r\n"
                              "affiprofil=0\r\n"
                              "path_win1=D:\\Tools\\x.exe\r\n"
                              "x_nom_bureau=Büro \"Nord\"\r\n"
                              "x_lang=ENG\r\n"
                              "x_chtxt=kept\r\n"));
    GeneralVariables vars;
    LoadGeneralVariables(userInfo(), vars);
    EXPECT_EQ(std::get<QString>(vars.value(u"x_ht_gc1")), QStringLiteral("abc"));
    EXPECT_EQ(std::get<QString>(vars.value(u"cadre_usery")), QStringLiteral("0"));
    EXPECT_EQ(std::get<double>(vars.value(u"x_compress")), 0.7);
    EXPECT_EQ(std::get<qint16>(vars.value(u"x_incli")), 0);
    EXPECT_EQ(vars.text(u"AffiProfil"), QStringLiteral("0"));
    EXPECT_EQ(vars.text(u"Path_Win1"), QStringLiteral("D:\\Tools\\x.exe"));
    EXPECT_EQ(vars.text(u"x_nom_bureau"), QStringLiteral("Büro \"Nord\""));
    EXPECT_EQ(vars.text(u"x_lang"), QStringLiteral("ENG"));
}

TEST(GeneralVariables, LongValuesAreCutTo254Characters) {
    ScratchPrefix prefix;
    prefix.write(kIni, "[Brimo_Gene]\r\nx_nom_bureau=" + QByteArray(300, 'n') + "\r\n");
    GeneralVariables vars;
    LoadGeneralVariables(userInfo(), vars);
    EXPECT_EQ(vars.text(u"x_nom_bureau"), QString(254, QLatin1Char('n')));
}

TEST(GeneralVariables, GarbageFilesAndFoldersGiveDefaults) {
    const QByteArray garbage[] = {
        QByteArray("\0\0\0[Brimo_Gene\0]\0x_lang=DEU", 27),
        QByteArray(10 * 1024 * 1024, 'x'),
        QByteArray("\xff\xfe[\0B\0", 6),
    };
    for (const QByteArray& bytes : garbage) {
        ScratchPrefix prefix;
        prefix.write(kIni, bytes);
        GeneralVariables vars;
        LoadGeneralVariables(userInfo(), vars);
        EXPECT_EQ(vars.text(u"x_lang"), QStringLiteral("FRA"));
    }
    ScratchPrefix prefix;
    prefix.makeFolder(kIni); // a folder where the file should be
    GeneralVariables vars;
    LoadGeneralVariables(userInfo(), vars);
    EXPECT_EQ(vars.text(u"cadre_userx"), QStringLiteral("1600"));
}

} // namespace
} // namespace brimo
