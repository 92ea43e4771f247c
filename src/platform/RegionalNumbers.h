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

// Optional blanks, an optional sign, digits with grouping symbols between
// them, one decimal symbol, an optional exponent (E or e, optional sign,
// digits), optional blanks. Single precision overflows above 3.4E+38.
Conversion TextToSingle(const QString& text);
Conversion TextToDouble(const QString& text);

// The shortest rendering with at most 15 significant digits, the regional
// decimal symbol, no grouping, a leading 0 before the decimal symbol, and the
// forms 1E+20 and 1E-05 beyond that.
QString NumberToText(double number);

// The regional symbols in force now.
QChar RegionalDecimalSymbol();
QString RegionalGroupSymbol();

} // namespace brimo
