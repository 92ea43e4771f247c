// The conversions between text and numbers, case by case, under the locale of
// the test process: in the texts below 'D' stands for the regional decimal
// symbol, 'G' for the grouping symbol and 'C' for the currency symbol. CTest
// runs them under C.UTF-8 and again under de_DE.UTF-8 (decimal comma).
// tests/platform/wine compares the same code with oleaut32 on a larger corpus.

#include "platform/RegionalNumbers.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <ostream>

namespace brimo {
namespace {

QString regional(const char* text) {
    QString out = QString::fromUtf8(text);
    out.replace(QLatin1Char('D'), RegionalDecimalSymbol());
    out.replace(QLatin1Char('G'), RegionalGroupSymbol());
    out.replace(QLatin1Char('C'), RegionalCurrencySymbol());
    return out;
}

// The symbols come from LC_ALL, LC_NUMERIC or LANG, as the test runs.
TEST(RegionalSymbols, FollowTheEnvironment) {
    const QByteArray locale = qgetenv("LC_ALL");
    if (locale.startsWith("de_DE")) {
        EXPECT_EQ(RegionalDecimalSymbol(), QLatin1Char(','));
        EXPECT_EQ(RegionalGroupSymbol(), QStringLiteral("."));
    } else if (locale.startsWith("C") || locale.startsWith("en_US")) {
        EXPECT_EQ(RegionalDecimalSymbol(), QLatin1Char('.'));
        EXPECT_EQ(RegionalGroupSymbol(), QStringLiteral(","));
    }
}

struct TextCase {
    const char* text;
    int doubleError; // 0, TypeMismatch or Overflow
    int singleError;
    double value;    // when the double converts
};

// Shown as "text" with \xNN for the bytes that are no printable ASCII.
void PrintTo(const TextCase& c, std::ostream* os) {
    *os << '"';
    for (const char* p = c.text; *p; ++p) {
        const auto byte = static_cast<unsigned char>(*p);
        if (byte > 0x20 && byte < 0x7F && byte != '"' && byte != '\\') {
            *os << *p;
        } else {
            char hex[5];
            std::snprintf(hex, sizeof hex, "\\x%02X", byte);
            *os << hex;
        }
    }
    *os << '"';
}

constexpr int TM = TypeMismatch;
constexpr int OV = Overflow;

class TextToNumber : public ::testing::TestWithParam<TextCase> {};

TEST_P(TextToNumber, ReadsTheTextAsOleautDoes) {
    const TextCase& c = GetParam();
    const QString text = regional(c.text);
    const Conversion d = TextToDouble(text), s = TextToSingle(text);
    EXPECT_EQ(d.error, c.doubleError) << c.text;
    EXPECT_EQ(s.error, c.singleError) << c.text;
    if (c.doubleError == 0) EXPECT_EQ(d.value, c.value) << c.text;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, TextToNumber,
    ::testing::Values(
        // Plain numbers.
        TextCase{"0", 0, 0, 0}, TextCase{"12", 0, 0, 12}, TextCase{"-12", 0, 0, -12}, TextCase{"+3", 0, 0, 3},
        TextCase{"2D50", 0, 0, 2.5}, TextCase{"D5", 0, 0, 0.5}, TextCase{"-D5", 0, 0, -0.5},
        TextCase{"5D", 0, 0, 5}, TextCase{"1e-5", 0, 0, 1e-5}, TextCase{"1E+05", 0, 0, 1e5},
        TextCase{"0D7", 0, 0, 0.7},
        // Blanks: any space of Unicode, before and after, and after the sign.
        TextCase{" 12", 0, 0, 12}, TextCase{"12 ", 0, 0, 12}, TextCase{"\t5\n", 0, 0, 5},
        TextCase{"\u00A05", 0, 0, 5}, TextCase{"\u30005", 0, 0, 5}, TextCase{"- 1", 0, 0, -1},
        TextCase{"\u200B5", TM, TM, 0}, TextCase{"1 2", TM, TM, 0},
        // Grouping symbols: anywhere once the number has begun, not before.
        TextCase{"1G234D5", 0, 0, 1234.5}, TextCase{"1GG2", 0, 0, 12}, TextCase{"1G", 0, 0, 1},
        TextCase{"1 G", 0, 0, 1}, TextCase{"DG5", 0, 0, 0.5}, TextCase{"1DG5", 0, 0, 1.5},
        TextCase{"1D2G5", 0, 0, 1.25}, TextCase{"1eG5", 0, 0, 1e5}, TextCase{"1e5G", 0, 0, 1e5},
        TextCase{"G5", TM, TM, 0}, TextCase{"-G5", TM, TM, 0}, TextCase{"G", TM, TM, 0},
        // Signs: one of each before the number, several in the exponent.
        TextCase{"+-1", 0, 0, -1}, TextCase{"-+1", 0, 0, -1}, TextCase{"--1", TM, TM, 0},
        TextCase{"1e+-5", 0, 0, 1e-5}, TextCase{"1e--5", 0, 0, 1e-5},
        // Not numbers.
        TextCase{"", TM, TM, 0}, TextCase{" ", TM, TM, 0}, TextCase{"D", TM, TM, 0}, TextCase{"-", TM, TM, 0},
        TextCase{"abc", TM, TM, 0}, TextCase{"1x", TM, TM, 0}, TextCase{"1e", TM, TM, 0},
        TextCase{"1e+", TM, TM, 0}, TextCase{"De5", TM, TM, 0}, TextCase{"1D2D3", TM, TM, 0},
        TextCase{"1e5e3", TM, TM, 0}, TextCase{"1e5D", TM, TM, 0}, TextCase{"1d5", TM, TM, 0},
        // A sign after, parentheses, currency, &H and &O; digits after a complete exponent.
        TextCase{"8D-", 0, 0, -8}, TextCase{"75 +", 0, 0, 75}, TextCase{"-5-", TM, TM, 0}, TextCase{"(5)", 0, 0, -5},
        TextCase{"(5", TM, TM, 0}, TextCase{"-C1G234D5", 0, 0, -1234.5}, TextCase{"5 C", 0, 0, 5},
        TextCase{"C1e5", TM, TM, 0}, TextCase{"&H10", 0, 0, 16}, TextCase{"&O17", 0, 0, 15},
        TextCase{"&H80000000", 0, 0, -2147483648.0}, TextCase{"&HFFFFFFFF", OV, OV, 0}, TextCase{"1e5G3", TM, TM, 0},
        // Range.
        TextCase{"1e39", 0, OV, 1e39}, TextCase{"-1e39", 0, OV, -1e39}, TextCase{"1E+400", OV, OV, 0},
        TextCase{"-1e309", OV, OV, 0}, TextCase{"3D40282356779733e38", 0, 0, 3.40282356779733e38},
        TextCase{"3D402823567797337e38", 0, OV, 3.402823567797337e38}, TextCase{"1e-44", 0, 0, 1e-44},
        TextCase{"1e-46", 0, OV, 1e-46}, TextCase{"1e-400", 0, 0, 0}, TextCase{"0e-50", 0, 0, 0}));

struct NumberCase {
    double number;
    const char* text;
};

void PrintTo(const NumberCase& c, std::ostream* os) {
    char number[32];
    std::snprintf(number, sizeof number, "%.17g", c.number);
    *os << number << " as " << c.text;
}

class NumberText : public ::testing::TestWithParam<NumberCase> {};

TEST_P(NumberText, WritesTheNumberAsOleautDoes) {
    EXPECT_EQ(NumberToText(GetParam().number), regional(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, NumberText,
    ::testing::Values(NumberCase{0.7, "0D7"}, NumberCase{1.5, "1D5"}, NumberCase{860.0, "860"},
                      NumberCase{-2.5, "-2D5"}, NumberCase{0.1 + 0.2, "0D3"}, NumberCase{2.675, "2D675"},
                      NumberCase{1e14, "100000000000000"}, NumberCase{0.0001, "0D0001"}, NumberCase{0.0, "0"},
                      NumberCase{-0.0, "0"}, NumberCase{1.0 / 3, "0D333333333333333"},
                      // The exponent forms, with the regional symbol too.
                      NumberCase{1e15, "1E+15"}, NumberCase{1e20, "1E+20"}, NumberCase{1e-5, "1E-05"},
                      NumberCase{-1.5e-7, "-1D5E-07"}, NumberCase{123456789012345678.0, "1D23456789012346E+17"},
                      NumberCase{1e-300, "1E-300"},
                      // Halves of the last digit round away from zero.
                      NumberCase{383559499639296.5, "383559499639297"},
                      NumberCase{-383559499639296.5, "-383559499639297"},
                      NumberCase{5223246344905265.0, "5D22324634490527E+15"},
                      NumberCase{999999999999999.9, "1E+15"}));

} // namespace
} // namespace brimo
