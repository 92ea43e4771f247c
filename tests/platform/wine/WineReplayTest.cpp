// The profile functions and the number conversions give the answers Wine gave
// to the same requests (tools/wine-oracle/record.py recorded them), or the
// other answer that known-differences.tsv lists with its reason. Fields are
// escaped: '%' and two hex digits for a byte, "%-" for the empty field, "%!"
// for a file that is not there.

#include "platform/Cp1252.h"
#include "platform/ProfileFile.h"
#include "platform/RegionalNumbers.h"
#include "platform/WindowsPaths.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <charconv>
#include <map>

namespace brimo {
namespace {

using Row = QList<QByteArray>;

QList<Row> table(const QString& name) {
    QFile file(QStringLiteral(BRIMO_WINE_ANSWERS "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    QList<Row> rows;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (!line.isEmpty() && !line.startsWith('#')) rows.append(line.split('\t'));
    return rows;
}

QByteArray decode(const QByteArray& field) { return field == "%-" ? QByteArray() : QByteArray::fromPercentEncoding(field); }

// Every printable ASCII character but the blank and '%' stands for itself.
QByteArray encode(const QByteArray& bytes) {
    return bytes.isEmpty() ? "%-" : bytes.toPercentEncoding("!\"#$&'()*+,/:;<=>?@[\\]^`{|}");
}

// Compares the program's answers with the expected ones; the mismatches are
// reported as rows of known-differences.tsv.
class Replay {
public:
    Replay() {
        for (const Row& r : table("known-differences.tsv")) known_[r[0] + '\t' + r[1] + '\t' + r[2]] = {r[3], r[4]};
    }
    void check(const QByteArray& kind, const QByteArray& locale, const QByteArray& request, const QByteArray& wine,
               const QByteArray& ours) {
        QByteArray expected = wine;
        if (auto it = known_.find(kind + '\t' + locale + '\t' + request); it != known_.end()) {
            EXPECT_EQ(it->second.first, wine) << "Wine's answer changed for a known difference: " << request.data();
            expected = it->second.second;
        }
        if (expected != ours)
            mismatches_.append(kind + '\t' + locale + '\t' + request + '\t' + wine + '\t' + ours);
        ++count_;
    }
    ~Replay() {
        EXPECT_GT(count_, 0);
        EXPECT_TRUE(mismatches_.isEmpty()) << mismatches_.size() << " of " << count_ << " answers differ:\n"
                                           << mismatches_.mid(0, 40).join('\n').data();
    }

private:
    std::map<QByteArray, std::pair<QByteArray, QByteArray>> known_;
    QList<QByteArray> mismatches_;
    int count_ = 0;
};

// Wine's drive Z: is the root, for the files of both sides.
struct DriveZ {
    QTemporaryDir dir;
    DriveZ() {
        QDir().mkpath(dir.path() + "/dosdevices");
        QFile::link("/", dir.path() + "/dosdevices/z:");
    }
    WinePrefix prefix() const { return {dir.path()}; }
    static QString path(QString native) { return "Z:" + native.replace('/', '\\'); }
    QByteArray read(const QString& file, const Row& r) const {
        QString buffer;
        const int n =
            GetPrivateProfileString(prefix(), fromCp1252(decode(r[1])), fromCp1252(decode(r[2])), buffer, 255, path(file));
        return QByteArray::number(n) + ' ' + encode(toCp1252(buffer));
    }
};

TEST(WineReplay, ProfileReads) {
    DriveZ z;
    Replay replay;
    for (const Row& r : table("reads.tsv"))
        replay.check("read", "-", r[0] + ' ' + r[1] + ' ' + r[2], r[3], z.read(BRIMO_WINE_ANSWERS "/profiles/" + r[0], r));
}

TEST(WineReplay, ProfileWritesAndTheirReadsBack) {
    DriveZ z;
    Replay replay;
    const QString folder = z.dir.path() + "/writes/";
    QDir().mkpath(folder);
    for (const Row& r : table("write-cases.tsv")) {
        QFile file(folder + r[0]);
        if (r[1] != "%!" && !file.exists() && file.open(QIODevice::WriteOnly)) file.write(decode(r[1]));
        file.close();
        const bool ok = WritePrivateProfileString(z.prefix(), fromCp1252(decode(r[2])), fromCp1252(decode(r[3])),
                                                  fromCp1252(decode(r[4])), DriveZ::path(folder + r[0]));
        replay.check("put", "-", r[0] + ' ' + r[2] + ' ' + r[3] + ' ' + r[4], r[5], ok ? "1" : "0");
    }
    for (const Row& r : table("write-files.tsv")) {
        QFile file(folder + r[0]);
        replay.check("write", "-", r[0], r[1], file.open(QIODevice::ReadOnly) ? encode(file.readAll()) : "%!");
    }
    for (const Row& r : table("write-reads.tsv"))
        replay.check("read", "-", r[0] + ' ' + r[1] + ' ' + r[2], r[3], z.read(folder + r[0], r));
}

template <typename T>
QByteArray shortest(T value) {
    char text[40];
    return QByteArray(text, std::to_chars(text, text + sizeof text, value).ptr - text);
}

QByteArray conversion(const Conversion& c, bool single) {
    if (c.error) return c.error == TypeMismatch ? "mismatch" : c.error == Overflow ? "overflow" : "error";
    return single ? shortest(static_cast<float>(c.value)) : shortest(c.value);
}

// The locale of the run names its column of the number tables.
class WineReplayNumbers : public ::testing::Test {
protected:
    const QByteArray locale = qgetenv("LC_ALL").left(5);
    const int column = locale == "en_US" ? 1 : locale == "de_DE" ? 2 : 0;
    void SetUp() override {
        if (!column) GTEST_SKIP() << "answers are recorded for LC_ALL=en_US.UTF-8 and de_DE.UTF-8";
    }
};

TEST_F(WineReplayNumbers, TextsToNumbers) {
    Replay replay;
    for (const Row& r : table("number-texts.tsv")) {
        // A byte-order mark is a character of the text here.
        QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
        const QString text = utf8(decode(r[0]));
        replay.check("text", locale, r[0], r[column],
                     conversion(TextToDouble(text), false) + ' ' + conversion(TextToSingle(text), true));
    }
}

TEST_F(WineReplayNumbers, NumbersToTexts) {
    Replay replay;
    for (const Row& r : table("number-to-text.tsv"))
        replay.check("number", locale, r[0], r[column], encode(NumberToText(r[0].toDouble()).toUtf8()));
}

} // namespace
} // namespace brimo
