// Writes to profile files, byte for byte: a write changes the line of its key
// or adds one, and keeps every other byte. tests/platform/wine replays Wine's
// recorded answers to reads on a corpus of files and to writes.

#include "platform/ProfileDocument.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string_view>

namespace brimo {
namespace {

using namespace std::string_view_literals;

QByteArray b(std::string_view bytes) { return QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())); }

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
