#pragma once
// Conversions between text and numbers under the user's regional settings
// (decimal symbol, digit grouping) read at the moment of each conversion.

#include <QString>

namespace brimo {

// The error number of a text that is no number.
constexpr int TypeMismatch = 13;
// The error number of a number too large for its type; not a refusal.
constexpr int Overflow = 6;

struct Conversion {
    double value = 0.0;
    int error = 0; // 0, TypeMismatch or Overflow
    bool ok() const { return error == 0; }
};

// Read as oleaut32 reads a number (readNumber in the source has the details):
//  - blanks, a sign, digits with grouping symbols after the first digit, one
//    decimal symbol, an exponent (E or e, a sign, digits), blanks: "-1.234,5"
//    under a decimal comma;
//  - a sign after the number instead of before it: "5-", "8.-", "75 +";
//  - parentheses around a negative number: "(5)" is -5;
//  - the regional currency symbol before or after the number, "$" where the
//    settings name none: "$5", "5 €" (then without an exponent);
//  - a hexadecimal or octal whole number, "&H10" (16) and "&O17" (15), read
//    as a 32-bit integer: "&H80000000" is -2147483648, a sign before it is
//    ignored.
// A single overflows when it rounds to infinity (about 3.4028235E+38) or when
// it is not zero and below the smallest single (about 1.4E-45).
Conversion TextToSingle(const QString& text);
Conversion TextToDouble(const QString& text);

// The shortest rendering with at most 15 significant digits (halves rounded
// away from zero), the regional decimal symbol, no grouping, a leading 0
// before the decimal symbol, never "-0"; below 1E-04 and from 1E+15 on the
// forms 1E-05 and 1.5E+20, which keep a point as oleaut32 writes them.
QString NumberToText(double number);

// The regional symbols in force now.
QChar RegionalDecimalSymbol();
QString RegionalGroupSymbol();
QString RegionalCurrencySymbol();

} // namespace brimo
