#include "model/FailureText.h"
#include "model/ProgramLanguage.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace brimo::test {
namespace {

// Every failure said in each of the four languages: a sentence of that
// language (not the English one), with the details it names.
TEST(ProgramLanguageTest, EveryFailureIsSaidInEachLanguageWithItsDetails) {
    int argc = 1;
    char name[] = "brimo_core_tests";
    char* argv[] = {name, nullptr};
    QCoreApplication app(argc, argv);
    const struct {
        Failure failure;
        const char* names; // what the sentence must carry
    } rows[] = {
        {{FailureKind::System, EIO, 0, {}}, ""},
        {{FailureKind::NoSpace, ENOSPC, 0, {}}, ""},
        {{FailureKind::ReadOnlyDisk, EROFS, 0, {}}, ""},
        {{FailureKind::ReadOnlyFile, 0, 0, {}}, ""},
        {{FailureKind::NoPermission, EACCES, 0, {}}, ""},
        {{FailureKind::SizeLimit, EFBIG, 0, {}}, ""},
        {{FailureKind::Missing, ENOENT, 0, {}}, ""},
        {{FailureKind::TooLargeToRead, 0, 0, {}}, "536870912"},
        {{FailureKind::NotRegularFile, 0, 0, {}}, ""},
        {{FailureKind::FolderInTheWay, 0, 0, {}}, ""},
        {{FailureKind::FolderMissing, 0, 0, "/p/Var/jo"}, "/p/Var/jo"},
        {{FailureKind::NoFolder, 0, 0, {}}, ""},
        {{FailureKind::LinkLoop, ELOOP, 0, {}}, ""},
        {{FailureKind::LockHeld, 0, 4242, "brimo-settings"}, "4242 (brimo-settings)"},
        {{FailureKind::LockHeld, 0, 0, {}}, ""},
        {{FailureKind::LockUnusable, EACCES, 0, "/p/Brimo.ini.lock"}, "/p/Brimo.ini.lock"},
        {{FailureKind::NotOwner, EPERM, 1000, {}}, "1000"},
        {{FailureKind::CannotPutBack, EACCES, 0, {}}, ""},
        {{FailureKind::SplitFolders, 0, 0, {}}, ""},
    };
    for (const auto& row : rows) {
        const QString english = FailureText(row.failure, Wording::English);
        for (const char* language : {"ENG", "FRA", "DEU", "ITA"}) {
            SetProgramLanguage(QLatin1String(language));
            const QString text = FailureText(row.failure);
            SCOPED_TRACE(language + (": " + text.toStdString()));
            EXPECT_FALSE(text.isEmpty());
            EXPECT_TRUE(text.contains(QLatin1String(row.names)));
            EXPECT_EQ(text == english, QLatin1String(language) == QLatin1String("ENG"));
        }
    }
    SetProgramLanguage(QStringLiteral("ENG"));
}

// brimo-settings speaks the locale's language when it is one of the four.
TEST(ProgramLanguageTest, TheLocaleChoosesTheLanguageAsTheCLibraryDoes) {
    const struct {
        const char *all, *messages, *lang, *code;
    } rows[] = {
        {"", "", "de_DE.UTF-8", "DEU"},     {"", "it_IT", "de_DE.UTF-8", "ITA"}, {"fr_CA.UTF-8", "it_IT", "", "FRA"},
        {"", "", "en_GB.UTF-8", "ENG"},     {"", "", "es_ES.UTF-8", "ENG"},      {"C.UTF-8", "", "de_DE.UTF-8", "ENG"},
        {"", "", "", "ENG"},                {"", "", "fr", "FRA"},               {"", "", "fur_IT.UTF-8", "ENG"},
    };
    for (const auto& row : rows) {
        qputenv("LC_ALL", row.all);
        qputenv("LC_MESSAGES", row.messages);
        qputenv("LANG", row.lang);
        EXPECT_EQ(LanguageOfEnvironment(), QLatin1String(row.code)) << row.all << "|" << row.messages << "|" << row.lang;
    }
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LC_MESSAGES");
    qunsetenv("LANG");
}

} // namespace
} // namespace brimo::test
