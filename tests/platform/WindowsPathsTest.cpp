#include "model/Tsv.h"
#include "platform/WindowsPaths.h"
#include "support/ScratchPrefix.h"

namespace brimo {
namespace {

using test::ScratchPrefix;

TEST(WindowsPaths, MapsTextAndFindsNamesWithoutRegardToCase) {
    ScratchPrefix prefix;
    prefix.write(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_FRA.txt"), "x");
    const WinePrefix wine = WinePrefix::FromEnvironment();
    for (const QList<QByteArray>& row : test::TsvRows("windows-paths.tsv")) {
        ASSERT_EQ(row.size(), 3) << row.join('\t').toStdString();
        const QString text = QString::fromUtf8(row[1]);
        const QString native = row[2].isEmpty() ? QString() : prefix.root() + "/dosdevices/" + QString::fromUtf8(row[2]);
        EXPECT_EQ(row[0] == "disk" ? ToNativePath(wine, text) : MapWindowsPathText(wine, text), native) << row[1].toStdString();
    }
    EXPECT_EQ(GetWindowsFolder(), QStringLiteral("C:\\windows"));
}

TEST(WindowsPaths, PrefixDefaultsToDotWineInHome) {
    ScratchPrefix prefix;
    const QByteArray saved = qgetenv("WINEPREFIX");
    qunsetenv("WINEPREFIX");
    EXPECT_EQ(WinePrefix::FromEnvironment().folder, qEnvironmentVariable("HOME") + "/.wine");
    qputenv("WINEPREFIX", "");
    EXPECT_EQ(WinePrefix::FromEnvironment().folder, qEnvironmentVariable("HOME") + "/.wine");
    qputenv("WINEPREFIX", saved);
}

} // namespace
} // namespace brimo
