#include "platform/RegionalNumbers.h"

#include <QByteArray>
#include <QLocale>

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace brimo {

QChar RegionalDecimalSymbol() {
    const QString point = QLocale::system().decimalPoint();
    return point.isEmpty() ? QChar('.') : point.at(0);
}

QString RegionalGroupSymbol() { return QLocale::system().groupSeparator(); }

namespace {

bool isBlank(QChar c) { return c.isSpace(); }
bool isDigit(QChar c) { return c.unicode() >= '0' && c.unicode() <= '9'; }
bool isSpaceLike(QChar c) { return c == QChar(0x00A0) || c == QChar(0x202F); }

// The regional symbols as the scanner uses them.
struct Symbols {
    QChar decimal;
    QChar group; // null when there is none
    // A no-break space groups digits: a narrow no-break space and a space
    // do too, as a user types them.
    bool groupIsSpace = false;

    Symbols() : decimal(RegionalDecimalSymbol()) {
        const QString g = RegionalGroupSymbol();
        if (!g.isEmpty() && g.at(0) != decimal) group = g.at(0);
        groupIsSpace = isSpaceLike(group);
    }
    bool isGroup(QChar c) const {
        if (group.isNull()) return false;
        if (groupIsSpace) return isSpaceLike(c) || c == QLatin1Char(' ');
        return c == group;
    }
};

// Reads the text into a C-locale number text; empty when it is no number.
//
// The reading follows oleaut32: blanks and a sign (at most one '+' and one
// '-') may come before the number; grouping symbols are ignored anywhere
// after its first digit or its decimal symbol, but may not come before them;
// the exponent's sign may be repeated; blanks and grouping symbols may follow
// the number. Refused, where oleaut32 takes them: currency symbols,
// parentheses, signs after the number, &H and &O numbers, and digits after a
// complete exponent.
QByteArray canonicalNumber(const QString& text) {
    const Symbols symbols;
    const qsizetype n = text.size();
    qsizetype i = 0;

    bool plus = false, minus = false, decimalSeen = false;
    while (i < n) {
        const QChar c = text.at(i);
        if (c == symbols.decimal) {
            decimalSeen = true;
            ++i;
            break;
        }
        if (isBlank(c)) {
            ++i;
        } else if (symbols.isGroup(c)) {
            return {};
        } else if (c == QLatin1Char('+') && !plus) {
            plus = true;
            ++i;
        } else if (c == QLatin1Char('-') && !minus) {
            minus = true;
            ++i;
        } else {
            break;
        }
    }

    QByteArray out = minus ? "-" : "";
    if (decimalSeen) out += '.';
    bool digits = false;
    enum { NoExponent, ExponentSign, ExponentDone } exponent = NoExponent;
    bool negativeExponent = false;
    QByteArray exponentDigits;
    while (i < n) {
        const QChar c = text.at(i);
        if (isDigit(c)) {
            if (exponent == ExponentDone) return {};
            if (exponent == ExponentSign) {
                while (i < n && isDigit(text.at(i))) exponentDigits += char(text.at(i++).unicode());
                exponent = ExponentDone;
                continue;
            }
            out += char(c.unicode());
            digits = true;
        } else if (symbols.isGroup(c)) {
            // ignored
        } else if (c == symbols.decimal && !decimalSeen && exponent == NoExponent) {
            decimalSeen = true;
            out += '.';
        } else if ((c == QLatin1Char('e') || c == QLatin1Char('E')) && exponent == NoExponent) {
            exponent = ExponentSign;
        } else if (exponent == ExponentSign && (c == QLatin1Char('+') || c == QLatin1Char('-'))) {
            if (c == QLatin1Char('-')) negativeExponent = true;
        } else {
            break;
        }
        ++i;
    }
    if (!digits || exponent == ExponentSign) return {};
    while (i < n && (isBlank(text.at(i)) || symbols.isGroup(text.at(i)))) ++i;
    if (i != n) return {};
    if (exponent == ExponentDone) out += (negativeExponent ? "e-" : "e+") + exponentDigits;
    return out;
}

// The smallest single above zero; a smaller number does not fit a single.
constexpr double kSmallestSingle = 1.40129846432481707e-45;

Conversion convert(const QString& text, bool single) {
    const QByteArray canonical = canonicalNumber(text);
    if (canonical.isEmpty()) return {0.0, TypeMismatch};
    const double value = std::strtod(canonical.constData(), nullptr);
    if (std::isinf(value)) return {value, Overflow};
    if (single && (std::isinf(static_cast<float>(value)) || (value != 0 && std::fabs(value) < kSmallestSingle)))
        return {value, Overflow};
    return {value, 0};
}

// The significant digits of `number` (not zero, finite) rounded to at most 15,
// halves away from zero, without trailing zeros; `exponent` is the power of
// ten of the first digit.
QByteArray significantDigits(double number, int& exponent) {
    // Forty digits decide the rounding unless the rest is exactly a half, as
    // far as they go; then the exact expansion (at most 767 digits) decides.
    char buffer[840];
    std::snprintf(buffer, sizeof buffer, "%.39e", std::fabs(number));
    // buffer: the first digit, the point, then digits 2 to 40 at their index.
    bool half = buffer[16] == '5';
    for (int k = 17; k <= 40 && half; ++k) half = buffer[k] == '0';
    if (half) std::snprintf(buffer, sizeof buffer, "%.780e", std::fabs(number));

    exponent = std::atoi(std::strchr(buffer, 'e') + 1);
    QByteArray digits = buffer[0] + QByteArray(buffer + 2, 14);
    if (buffer[16] >= '5') {
        int k = static_cast<int>(digits.size()) - 1;
        while (k >= 0 && digits[k] == '9') digits[k--] = '0';
        if (k >= 0) {
            ++digits[k];
        } else {
            digits.prepend('1');
            digits.chop(1);
            ++exponent;
        }
    }
    while (digits.size() > 1 && digits.endsWith('0')) digits.chop(1);
    return digits;
}

} // namespace

Conversion TextToSingle(const QString& text) { return convert(text, true); }

Conversion TextToDouble(const QString& text) { return convert(text, false); }

// As oleaut32 renders a double: 15 significant digits, halves rounded away
// from zero, no negative zero; fixed notation for powers of ten from -4 to 14,
// otherwise "1.5E+20"; always with the regional decimal symbol, so that the
// text reads back as the same number.
QString NumberToText(double number) {
    if (number == 0) return QStringLiteral("0");
    if (!std::isfinite(number)) return QString::number(number);
    int exponent = 0;
    const QByteArray digits = significantDigits(number, exponent);
    QByteArray out = number < 0 ? "-" : "";
    if (exponent < -4 || exponent >= 15) {
        out += digits.first(1);
        QString text = QString::fromLatin1(out);
        if (digits.size() > 1) text += RegionalDecimalSymbol() + QString::fromLatin1(digits.sliced(1));
        char power[16];
        std::snprintf(power, sizeof power, "E%c%02d", exponent < 0 ? '-' : '+', std::abs(exponent));
        return text + QString::fromLatin1(power);
    }
    QString text = QString::fromLatin1(out);
    if (exponent < 0) {
        text += QLatin1Char('0') + RegionalDecimalSymbol() + QString(-exponent - 1, QLatin1Char('0')) +
                QString::fromLatin1(digits);
    } else if (digits.size() <= exponent + 1) {
        text += QString::fromLatin1(digits) + QString(exponent + 1 - digits.size(), QLatin1Char('0'));
    } else {
        text += QString::fromLatin1(digits.first(exponent + 1)) + RegionalDecimalSymbol() +
                QString::fromLatin1(digits.sliced(exponent + 1));
    }
    return text;
}

} // namespace brimo
