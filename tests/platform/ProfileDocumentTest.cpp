// Writes to profile files, byte for byte, on the rows of
// model/data/profile-writes.tsv. tests/platform/wine replays Wine's recorded
// answers to reads on a corpus of files and to writes.

#include "model/Tsv.h"
#include "platform/ProfileDocument.h"

namespace brimo {
namespace {

TEST(ProfileWrite, ChangesOnlyWhatItMust) {
    for (const QList<QByteArray>& row : test::TsvRows("profile-writes.tsv")) {
        ASSERT_EQ(row.size(), 6) << row[0].toStdString();
        SCOPED_TRACE(row[0].toStdString());
        ProfileDocument document(row[1]);
        EXPECT_EQ(document.setString(row[2], row[3], row[4]), row[1] != row[5]);
        EXPECT_EQ(document.bytes(), row[5]);
        EXPECT_EQ(document.getString(row[2], row[3]), row[4].trimmed());
    }
}

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
