// The reading and writing contract of profile files, pinned case by case.
// tests/platform/wine compares the same code with Wine on a larger corpus.

#include "platform/ProfileDocument.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string_view>

namespace brimo {
namespace {

using namespace std::string_view_literals;

QByteArray b(std::string_view bytes) { return QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())); }

struct ReadCase {
    const char* what;
    std::string file;
    const char* section;
    const char* key;
    QByteArray expected;
};

void PrintTo(const ReadCase& c, std::ostream* os) { *os << c.what; }

const QByteArray k300 = QByteArray("0123456789").repeated(30);

class ProfileRead : public ::testing::TestWithParam<ReadCase> {};

TEST_P(ProfileRead, GivesTheValueAsTheProfileFunctionsDo) {
    const ReadCase& c = GetParam();
    EXPECT_EQ(ProfileDocument(b(c.file)).getString(c.section, c.key), c.expected) << c.what;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ProfileRead,
    ::testing::Values(
        ReadCase{"names without regard to case", "[Brimo_Gene]\r\nX_Lang=FRA\r\n", "BRIMO_gene", "x_lang", "FRA"},
        ReadCase{"only A-Z fold", "[\xC9t\xE9]\r\n\xE9=1\r\n", "\xC9T\xC9", "\xE9", ""},
        ReadCase{"other letters match as they are", "[\xC9t\xE9]\r\n\xE9=1\r\n", "\xC9t\xE9", "\xE9", "1"},
        ReadCase{"blanks around the asked names", "[S]\r\nk=1\r\n", " S\t", "\tk ", "1"},
        ReadCase{"the first section wins", "[A]\r\nk=1\r\n[a]\r\nk=2\r\nonly=3\r\n", "a", "k", "1"},
        ReadCase{"later sections of the same name are not read", "[A]\r\nk=1\r\n[a]\r\nonly=3\r\n", "A", "only", ""},
        ReadCase{"the first key wins", "[A]\r\nk=1\r\nK=2\r\n", "A", "k", "1"},
        ReadCase{"a line without '=' ends the search", "[A]\r\nk\r\nk=2\r\n", "A", "k", ""},
        ReadCase{"blanks around name and value", "[S]\r\n \t k \t= \x0b v w \x1a\r\n", "S", "k", "v w"},
        ReadCase{"0xA0 is no blank", "[S]\r\nk=\xA0v\xA0\r\n", "S", "k", "\xA0v\xA0"},
        ReadCase{"a pair of double quotes", "[S]\r\nk= \"a b\" \r\n", "S", "k", "a b"},
        ReadCase{"a pair of single quotes", "[S]\r\nk='a'\r\n", "S", "k", "a"},
        ReadCase{"only one pair", "[S]\r\nk=\"\"a\"\"\r\n", "S", "k", "\"a\""},
        ReadCase{"quotes that do not pair", "[S]\r\nk=\"a'\r\n", "S", "k", "\"a'"},
        ReadCase{"one quote alone", "[S]\r\nk=\"\r\n", "S", "k", "\""},
        ReadCase{"an empty pair", "[S]\r\nk=\"\"\r\n", "S", "k", ""},
        ReadCase{"a '=' in the value", "[S]\r\nk = a = b\r\n", "S", "k", "a = b"},
        ReadCase{"an empty value", "[S]\r\nk=\r\n", "S", "k", ""},
        ReadCase{"keys before any section", "k=0\r\nbefore=1\r\n[S]\r\nk=1\r\n", "S", "before", ""},
        ReadCase{"a missing section", "[S]\r\nk=1\r\n", "T", "k", ""},
        ReadCase{"an empty file", "", "S", "k", ""},
        ReadCase{"CR alone ends a line", "[S]\rk=1\r[T]\rk=3\r", "T", "k", "3"},
        ReadCase{"LF alone ends a line", "[S]\nk=1\n[T]\nk=3", "T", "k", "3"},
        ReadCase{"a CR after a line of 10000 characters", "[S]\rk=" + k300.repeated(34).toStdString() + "\rj=2\r", "S",
                 "j", "2"},
        ReadCase{"blanks inside the brackets", "[ S ]\r\nk=1\r\n", "S", "k", "1"},
        ReadCase{"text after the brackets", "[S] note\r\nk=1\r\n", "S", "k", "1"},
        ReadCase{"the last ']' closes the name", "[S]x]\r\nk=1\r\n", "S]x", "k", "1"},
        ReadCase{"no ']': no section", "[S]\r\nk=1\r\n[T\r\nk2=2\r\n", "S", "k2", "2"},
        ReadCase{"a comment is a key like any other", "[S]\r\n;k=1\r\nk=2\r\n", "S", "k", "2"},
        ReadCase{"a NUL ends the value", std::string("[S]\r\nk=ab\0cd\r\n"sv), "S", "k", "ab"},
        ReadCase{"a NUL ends the key", std::string("[S]\r\nna\0me=2\r\n"sv), "S", "na", "2"},
        ReadCase{"a NUL ends the section name", std::string("[T\0U]\r\nk=3\r\n"sv), "T", "k", "3"},
        ReadCase{"quotes are looked for before the NUL", std::string("[S]\r\nk=\"a\0\"\r\n"sv), "S", "k", "\"a"},
        ReadCase{"254 characters of a longer value", "[S]\r\nk=" + k300.toStdString() + "\r\n", "S", "k",
                 k300.first(254)},
        ReadCase{"a quoted value cut loses its closing quote", "[S]\r\nk=\"" + k300.toStdString() + "\"\r\n", "S",
                 "k", k300.first(254)},
        ReadCase{"a quoted value that just fits loses one more character",
                 "[S]\r\nk=\"" + k300.first(254).toStdString() + "\"\r\n", "S", "k", k300.first(253)},
        ReadCase{"a quoted value of 253 characters", "[S]\r\nk=\"" + k300.first(253).toStdString() + "\"\r\n", "S",
                 "k", k300.first(253)}));

struct WriteCase {
    const char* what;
    std::string_view before;
    const char *section, *key, *value;
    std::string_view after;
};

void PrintTo(const WriteCase& c, std::ostream* os) { *os << c.what; }

class ProfileWrite : public ::testing::TestWithParam<WriteCase> {};

TEST_P(ProfileWrite, ChangesOnlyWhatItMust) {
    const WriteCase& c = GetParam();
    ProfileDocument document(b(c.before));
    const bool changed = document.setString(c.section, c.key, c.value);
    EXPECT_EQ(document.bytes(), b(c.after)) << c.what;
    EXPECT_EQ(changed, c.before != c.after) << c.what;
    EXPECT_EQ(document.getString(c.section, c.key), QByteArray(c.value).trimmed()) << c.what;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ProfileWrite,
    ::testing::Values(
        WriteCase{"a replaced value keeps every other byte",
                  "; c\r\n\r\n  [S]  \r\n  k  =  1  \r\n\r\n[T]\r\nk=3\r\n", "S", "k", "new",
                  "; c\r\n\r\n  [S]  \r\n  k  =  new  \r\n\r\n[T]\r\nk=3\r\n"},
        WriteCase{"the same value again changes nothing", " [S]\r\n k = 1 \r\n", "s", "K", "1",
                  " [S]\r\n k = 1 \r\n"},
        WriteCase{"the key's spelling stays", "[S]\r\nKey=1\r\n", "S", "KEY", "2", "[S]\r\nKey=2\r\n"},
        WriteCase{"a new key ends its section, before its blank lines", "[S]\r\nk=1\r\n\r\n\r\n[T]\r\nk=2\r\n",
                  "S", "n", "v", "[S]\r\nk=1\r\nn=v\r\n\r\n\r\n[T]\r\nk=2\r\n"},
        WriteCase{"a new key after a closing comment", "[S]\r\nk=1\r\n;note\r\n[T]\r\n", "S", "n", "v",
                  "[S]\r\nk=1\r\n;note\r\nn=v\r\n[T]\r\n"},
        WriteCase{"a new key in an empty section", "[S]\r\n[T]\r\n", "S", "k", "v", "[S]\r\nk=v\r\n[T]\r\n"},
        WriteCase{"a new key behind a header without line end", "[S]", "S", "k", "v", "[S]\r\nk=v\r\n"},
        WriteCase{"a new key behind a last line without line end", "[S]\r\nk=1", "S", "n", "v",
                  "[S]\r\nk=1\r\nn=v\r\n"},
        WriteCase{"a new section at the end", "[S]\r\nk=1\r\n", "T", "k", "v", "[S]\r\nk=1\r\n[T]\r\nk=v\r\n"},
        WriteCase{"a new section behind a last line without line end", "[S]\r\nk=1", "T", "k", "v",
                  "[S]\r\nk=1\r\n[T]\r\nk=v\r\n"},
        WriteCase{"a new file", "", "S", "k", "v", "[S]\r\nk=v\r\n"},
        WriteCase{"new lines end in CR LF in an LF file", "[S]\nk=1\n", "S", "n", "v", "[S]\nk=1\nn=v\r\n"},
        WriteCase{"and in a CR file", "[S]\rk=1\r[T]\r", "S", "n", "v", "[S]\rk=1\rn=v\r\n[T]\r"},
        WriteCase{"a line without '=' gets the value", "[S]\r\nflag\r\n", "S", "flag", "on", "[S]\r\nflag=on\r\n"},
        WriteCase{"names and value lose their blanks", "", " S\t", "\tk ", "  v  ", "[S]\r\nk=v\r\n"},
        WriteCase{"the first of two sections", "[A]\r\nk=1\r\n[a]\r\nk=2\r\n", "a", "k", "x",
                  "[A]\r\nk=x\r\n[a]\r\nk=2\r\n"},
        WriteCase{"keys before any section stay", "k=0\r\n[S]\r\nk=1\r\n", "S", "k", "2", "k=0\r\n[S]\r\nk=2\r\n"},
        WriteCase{"a value after a NUL", "[S]\r\nk=a\0b\r\n"sv, "S", "k", "c", "[S]\r\nk=c\r\n"}));

// Bytes that are no profile file at all: reads find nothing, a write adds its
// section and reads back.
TEST(ProfileGarbage, ReadsNothingAndTakesAWrite) {
    quint32 seed = 7;
    for (int round = 0; round < 200; ++round) {
        QByteArray bytes;
        const int size = round % 50 == 0 ? 0 : 1 + static_cast<int>(seed % 4000);
        for (int i = 0; i < size; ++i) {
            seed = seed * 1664525u + 1013904223u;
            const unsigned r = seed >> 24;
            // Many NULs, line ends, brackets and '=' among the bytes.
            bytes += r < 40 ? '\0' : r < 60 ? "\r\n[]=\"'"[r % 7] : static_cast<char>(r);
        }
        if (round % 7 == 0) bytes = QByteArray(size, '\0');
        ProfileDocument document(bytes);
        EXPECT_EQ(document.getString("Brimo_Gene", "x_lang"), "");
        EXPECT_EQ(document.getString("Chemins", "Zorel"), "");
        document.setString("Brimo_Gene", "x_lang", "ENG");
        EXPECT_EQ(document.getString("Brimo_Gene", "x_lang"), "ENG");
        EXPECT_TRUE(document.bytes().startsWith(bytes));
    }
}

} // namespace
} // namespace brimo
