#include "Tsv.h"
#include "model/InstallInfo.h"
#include "support/ScratchPrefix.h"

namespace brimo {
namespace {

using test::ScratchPrefix;

TEST(InstallInfo, ReadsSixValuesFromZorelIni) {
    QList<QList<QByteArray>> rows = test::TsvRows("zorel-ini.tsv");
    rows.append({QByteArray(1 << 20, '['), "", "", "", "", "", "", "\\Lang\\"});
    for (const QList<QByteArray>& row : rows) {
        ASSERT_EQ(row.size(), 8) << row[0].left(60).toStdString();
        SCOPED_TRACE(row[0].left(60).toStdString());
        ScratchPrefix prefix;
        if (!row[0].isEmpty()) prefix.write(QStringLiteral("C:\\windows\\zorel.ini"), row[0]);
        InstallInfo info;
        LoadInstallInfo(WinePrefix::FromEnvironment(), info);
        const QStringList read = {info.Zorel, info.Variables, info.actuel, info.No_version_Zorel,
                                  info.No_version_acad, info.No_serie_acad, LegendFolder(info)};
        for (qsizetype i = 0; i < read.size(); ++i) EXPECT_EQ(read[i], QString::fromUtf8(row[i + 1])) << "column " << i + 2;
    }
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
}

} // namespace
} // namespace brimo
