#include "platform/WindowsPaths.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

namespace brimo {
namespace {

using test::ScratchPrefix;

TEST(WindowsPaths, TextMapping) {
    ScratchPrefix prefix;
    const QString p = prefix.root();
    const QString c = p + "/dosdevices/c:";
    const std::pair<const char*, QString> cases[] = {
        {"C:\\windows\\zorel.ini", c + "/windows/zorel.ini"},
        {"d:\\X\\\\y", p + "/dosdevices/d:/X//y"},
        {"D:rel", p + "/dosdevices/d:/rel"},
        {"\\Lang\\ZorelMsg_FRA.txt", c + "/Lang/ZorelMsg_FRA.txt"},
        {"/opt/brimo/file", c + "/opt/brimo/file"},
        {"rel\\file", c + "/rel/file"},
        {"\\\\Brimo.ini", ""},
        {"\\\\server\\share\\x", ""},
        {"//server/share", ""},
        {"", ""},
        {"C:\\Zorel\\..\\..\\..\\..\\tmp\\x", c + "/tmp/x"},
        {"C:\\Zorel\\Var\\..\\..\\..\\tmp\\x\\Brimo.ini", c + "/tmp/x/Brimo.ini"},
        {"..\\..\\tmp/./x\\", c + "/tmp/x/"},
        {"C:\\a\\b\\\\..\\c", c + "/a/c"},
        {"C:..", c + "/"},
        {"\xc3\xa9:\\x", c + "/\xc3\xa9:/x"},
    };
    for (const auto& [text, native] : cases) EXPECT_EQ(MapWindowsPathText(WinePrefix::FromEnvironment(), QString::fromUtf8(text)), native) << text;
    EXPECT_EQ(GetWindowsFolder(), QStringLiteral("C:\\windows"));
}

TEST(WindowsPaths, NamesAreFoundWithoutRegardToCase) {
    ScratchPrefix prefix;
    prefix.write(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_FRA.txt"), "x");
    EXPECT_EQ(ToNativePath(WinePrefix::FromEnvironment(), QStringLiteral("C:\\zorel\\LANG\\ZorelMsg_fra.txt")),
              prefix.root() + "/dosdevices/c:/Zorel/Lang/ZorelMsg_FRA.txt");
    // A missing file keeps the program's spelling; its folder is still found.
    EXPECT_EQ(ToNativePath(WinePrefix::FromEnvironment(), QStringLiteral("C:\\ZOREL\\New.lsp")), prefix.root() + "/dosdevices/c:/Zorel/New.lsp");
    // Doubled separators are left to the file system.
    EXPECT_EQ(ToNativePath(WinePrefix::FromEnvironment(), QStringLiteral("C:\\Zorel\\\\lang")), prefix.root() + "/dosdevices/c:/Zorel//Lang");
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
