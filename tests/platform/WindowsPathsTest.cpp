#include "platform/WindowsPaths.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

namespace brimo {
namespace {

using test::ScratchPrefix;

TEST(WindowsPaths, TextMapping) {
    ScratchPrefix prefix;
    const QString p = prefix.root();
    const std::pair<const char*, QString> cases[] = {
        {"C:\\windows\\zorel.ini", p + "/dosdevices/c:/windows/zorel.ini"},
        {"d:\\X\\\\y", p + "/dosdevices/d:/X//y"},
        {"\\Lang\\ZorelMsg_FRA.txt", "/Lang/ZorelMsg_FRA.txt"},
        {"/opt/brimo/file", "/opt/brimo/file"},
        {"rel\\file", "rel/file"},
        {"\\\\Brimo.ini", ""},
        {"\\\\server\\share\\x", ""},
    };
    for (const auto& [text, native] : cases) EXPECT_EQ(MapWindowsPathText(QString::fromUtf8(text)), native) << text;
    EXPECT_EQ(GetWindowsFolder(), QStringLiteral("C:\\windows"));
}

TEST(WindowsPaths, NamesAreFoundWithoutRegardToCase) {
    ScratchPrefix prefix;
    prefix.write(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_FRA.txt"), "x");
    EXPECT_EQ(ToNativePath(QStringLiteral("C:\\zorel\\LANG\\ZorelMsg_fra.txt")),
              prefix.root() + "/dosdevices/c:/Zorel/Lang/ZorelMsg_FRA.txt");
    // A missing file keeps the program's spelling; its folder is still found.
    EXPECT_EQ(ToNativePath(QStringLiteral("C:\\ZOREL\\New.lsp")), prefix.root() + "/dosdevices/c:/Zorel/New.lsp");
    // Doubled separators are left to the file system.
    EXPECT_EQ(ToNativePath(QStringLiteral("C:\\Zorel\\\\lang")), prefix.root() + "/dosdevices/c:/Zorel//Lang");
}

TEST(WindowsPaths, PrefixDefaultsToDotWineInHome) {
    ScratchPrefix prefix;
    const QByteArray saved = qgetenv("WINEPREFIX");
    qunsetenv("WINEPREFIX");
    EXPECT_EQ(WinePrefix(), qEnvironmentVariable("HOME") + "/.wine");
    qputenv("WINEPREFIX", "");
    EXPECT_EQ(WinePrefix(), qEnvironmentVariable("HOME") + "/.wine");
    qputenv("WINEPREFIX", saved);
}

} // namespace
} // namespace brimo
