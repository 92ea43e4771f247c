// The program's conversions between text and numbers against oleaut32's
// VarR8FromStr, VarR4FromStr and VarBstrFromR8 as Wine runs them, under a
// locale with a decimal point (en_US: '.' and ',' for grouping) and one with
// a decimal comma (de_DE: ',' and '.'). The regional settings come from the
// environment, so the program's side runs as a child process of this one
// with the locale set (see main.cpp).
//
// Compared: refusal (type mismatch), overflow or success, the value, and the
// text of a number. Values are compared to within a few units in the last
// place: Wine builds a double from the digits by repeated scaling and can miss
// the nearest double by an ulp or two, where the program rounds correctly.
// Nothing in the program depends on the last bit: a number is converted from
// a text only to test the text.
//
// The corpus holds a sign after the number, parentheses, the currency symbol
// of each locale ("$", "€") and "&H10" and "&O17" forms too.
//
// Known differences, kept out of the compared corpus on purpose:
//  - oleaut32 reads digits that follow a grouping symbol after a complete
//    exponent as more digits of the number ("1e5,3" is 1300000); the program
//    refuses such a text, which no one types for a number. A grouping symbol
//    alone after the exponent ("1e5,") is accepted by both.
//  - Doubles within about 1e-13 of the largest double (1.797693134862315E308
//    and above): Wine's scaling overflows before it reaches them.
//  - Under a decimal comma, oleaut32 writes the exponent form of a number
//    with a point ("1.5E+20"), which its own reading takes for a grouping
//    symbol; the program writes the regional symbol there too ("1,5E+20").
//    Wine's texts are compared with their point read as the decimal symbol.
//  - Texts far below the smallest normal double, such as "4.9e-324": Wine's
//    scaling may lose them to 0 where the program finds the nearest
//    subnormal double, which is then too small for a single (an overflow).

#include "WineOracle.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>

namespace brimo::winetest {
namespace {

constexpr quint32 kTypeMismatch = 0x80020005u;
constexpr quint32 kOverflow = 0x8002000Au;

struct Locale {
    const char* name;
    char decimal;
    char group;
};

const Locale kLocales[] = {{"en_US.UTF-8", '.', ','}, {"de_DE.UTF-8", ',', '.'}};

// The texts named in the program's notes and the corners around them, one a
// line of number-texts.txt in the protocol's escapes ("%20" a blank, "%-" the
// empty text): signs, symbols, blanks of every kind, exponents, the forms of
// oleaut32 (trailing signs, parentheses, currency, &H and &O), the ranges of a
// single and a double, many digits.
QList<QByteArray> numberTexts() {
    QFile file(QStringLiteral(BRIMO_WINE_NUMBER_TEXTS));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QList<QByteArray> texts;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (!line.isEmpty() && !line.startsWith('#')) texts.append(decodeField(line));
    EXPECT_GT(texts.size(), 150);
    return texts;
}

// Numbers for NumberToText.
const double kNumbers[] = {
    0.7, 1.5, 860, 1e20, 1e-5, 123456789012345678.0, 0.1 + 0.2, -2.5, 1e15, 1e14, 0.0001, 0.0, -0.0, 1.234e-5,
    123456789012345.6, 999999999999999.9, 99999999999999.99, 1e16, 1e-300, 5e-324, DBL_MAX, -DBL_MAX, 0.5, 100,
    1e21, 12345678901234567890.0, 3.0000000000000004, 2.675, 1.0 / 3, -1e-7, 1.5e-5, 2.5e-10, 1.5e20, -1.5e20,
    0.001, 0.00999, 1e100, 1e-100, 123.456, -0.5, 65535, 4294967296.0, FLT_MAX, FLT_MIN,
};

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isExponent(char c) { return c == 'e' || c == 'E'; }

// A digit after an exponent's digits have ended.
bool hasDigitAfterExponent(const QByteArray& t) {
    qsizetype i = 0;
    while (i < t.size() && !isExponent(t[i])) ++i;
    while (i < t.size() && !isDigit(t[i])) ++i;
    while (i < t.size() && isDigit(t[i])) ++i;
    for (; i < t.size(); ++i)
        if (isDigit(t[i])) return true;
    return false;
}

// Distance in units of the last place; both zeros are one point.
qint64 ulps64(quint64 a, quint64 b) {
    auto ordered = [](quint64 bits) {
        const qint64 magnitude = static_cast<qint64>(bits & 0x7FFFFFFFFFFFFFFFull);
        return (bits >> 63) ? -magnitude : magnitude;
    };
    return std::llabs(ordered(a) - ordered(b));
}
qint64 ulps32(quint32 a, quint32 b) {
    auto ordered = [](quint32 bits) {
        const qint64 magnitude = bits & 0x7FFFFFFFu;
        return (bits >> 31) ? -magnitude : magnitude;
    };
    return std::llabs(ordered(a) - ordered(b));
}

QList<QByteArray> runOurs(const QByteArray& input, const Locale& locale) {
    QProcess child;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove("LC_NUMERIC");
    env.insert("LC_ALL", locale.name);
    env.insert("LANG", locale.name);
    child.setProcessEnvironment(env);
    child.start(QCoreApplication::applicationFilePath(), {"--numbers"});
    child.write(input);
    child.closeWriteChannel();
    if (!child.waitForFinished(120000) || child.exitCode() != 0) return {};
    QByteArray out = child.readAllStandardOutput();
    if (out.endsWith('\n')) out.chop(1);
    return out.split('\n');
}

QList<QByteArray> runWine(const QByteArray& input, const Locale& locale) {
    QString error;
    const QList<QByteArray> out = WineSession::instance().run(numberOracle(), input, locale.name, &error);
    EXPECT_TRUE(error.isEmpty()) << error.toStdString();
    return out;
}

std::string report(const QList<QByteArray>& lines) {
    std::string out;
    for (qsizetype i = 0; i < lines.size() && i < 60; ++i) out += lines[i].toStdString() + "\n";
    if (lines.size() > 60) out += "... " + std::to_string(lines.size() - 60) + " more\n";
    return out;
}

QList<QByteArray> corpusOfTexts() {
    QList<QByteArray> texts;
    texts += numberTexts();
    // Every text of up to five characters over the characters of a number.
    const char alphabet[] = " +-07,.e";
    QList<QByteArray> layer{QByteArray()};
    for (int length = 1; length <= 5; ++length) {
        QList<QByteArray> next;
        for (const QByteArray& t : layer)
            for (char c : std::string_view(alphabet)) next.append(t + c);
        texts += next;
        layer = next;
    }
    // Every text of up to four pieces over the pieces of the other forms.
    const QList<QByteArray> pieces{"5", "-", "+", "(", ")", " ", ".", ",", "$", "\xe2\x82\xac", "&H", "&O", "e"};
    layer = {QByteArray()};
    for (int length = 1; length <= 4; ++length) {
        QList<QByteArray> next;
        for (const QByteArray& t : layer)
            for (const QByteArray& piece : pieces) next.append(t + piece);
        texts += next;
        layer = next;
    }
    return texts;
}

class WineNumbers : public ::testing::TestWithParam<Locale> {};

TEST_P(WineNumbers, TextsConvertAlike) {
    const Locale& locale = GetParam();
    const QList<QByteArray> texts = corpusOfTexts();
    QByteArray input;
    for (const QByteArray& t : texts) input += "T " + encodeField(t) + '\n';
    const QList<QByteArray> wine = runWine(input, locale);
    const QList<QByteArray> ours = runOurs(input, locale);
    ASSERT_EQ(wine.size(), texts.size());
    ASSERT_EQ(ours.size(), texts.size());

    QList<QByteArray> differences;
    int excused = 0;
    qint64 worst8 = 0, worst4 = 0;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const QList<QByteArray> w = wine[i].split(' '), o = ours[i].split(' ');
        ASSERT_EQ(w.size(), 4) << wine[i].toStdString();
        ASSERT_EQ(o.size(), 4) << ours[i].toStdString();
        const quint32 wh8 = w[0].toUInt(nullptr, 16), oh8 = o[0].toUInt(nullptr, 16);
        const quint32 wh4 = w[2].toUInt(nullptr, 16), oh4 = o[2].toUInt(nullptr, 16);
        const bool refusedHereOnly =
            oh8 == kTypeMismatch && wh8 != kTypeMismatch && oh4 == kTypeMismatch && wh4 != kTypeMismatch;
        if (refusedHereOnly && hasDigitAfterExponent(texts[i])) {
            ++excused;
            continue;
        }
        const qint64 d8 = ulps64(w[1].toULongLong(nullptr, 16), o[1].toULongLong(nullptr, 16));
        const qint64 d4 = ulps32(w[3].toUInt(nullptr, 16), o[3].toUInt(nullptr, 16));
        if (wh8 == 0 && oh8 == 0) worst8 = std::max(worst8, d8);
        if (wh4 == 0 && oh4 == 0) worst4 = std::max(worst4, d4);
        if (wh8 != oh8 || wh4 != oh4 || d8 > 4 || d4 > 1)
            differences.append('"' + encodeField(texts[i]) + "\": Wine " + wine[i] + ", ours " + ours[i]);
    }
    std::printf("%s: %lld texts, %d excused, worst distance %lld ulps (double), %lld (single)\n", locale.name,
                static_cast<long long>(texts.size()), excused, static_cast<long long>(worst8),
                static_cast<long long>(worst4));
    EXPECT_TRUE(differences.isEmpty()) << differences.size() << " texts differ:\n" << report(differences);
}

TEST_P(WineNumbers, NumbersReadAlike) {
    const Locale& locale = GetParam();
    QList<double> numbers(std::begin(kNumbers), std::end(kNumbers));
    // Values as a user types them, and values of every size.
    for (int n = -2000; n <= 2000; n += 7) numbers << n / 100.0 << n / 1000.0 << n / 8.0;
    quint64 seed = 88172645463325252ull;
    for (int i = 0; i < 3000; ++i) {
        seed ^= seed << 13, seed ^= seed >> 7, seed ^= seed << 17;
        const double mantissa = 1.0 + static_cast<double>(seed >> 11) / 9007199254740992.0 * 9.0;
        numbers << (seed & 1 ? -1 : 1) * mantissa * std::pow(10.0, static_cast<int>((seed >> 3) % 61) - 30);
    }
    QByteArray input;
    for (double v : numbers) {
        quint64 bits;
        std::memcpy(&bits, &v, 8);
        input += "N " + QByteArray::number(bits, 16) + '\n';
    }
    const QList<QByteArray> wine = runWine(input, locale);
    const QList<QByteArray> ours = runOurs(input, locale);
    ASSERT_EQ(wine.size(), numbers.size());
    ASSERT_EQ(ours.size(), numbers.size());
    QList<QByteArray> differences;
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        QByteArray expected = wine[i];
        if (expected.contains('E')) expected.replace('.', locale.decimal);
        if (expected != ours[i])
            differences.append(QByteArray::number(numbers[i], 'g', 17) + ": Wine " + wine[i] + ", ours " + ours[i]);
    }
    std::printf("%s: %lld numbers\n", locale.name, static_cast<long long>(numbers.size()));
    EXPECT_TRUE(differences.isEmpty()) << differences.size() << " numbers differ:\n" << report(differences);
}

INSTANTIATE_TEST_SUITE_P(Locales, WineNumbers, ::testing::ValuesIn(kLocales),
                         [](const auto& info) { return std::string(info.param.name).substr(0, 5); });

} // namespace
} // namespace brimo::winetest
