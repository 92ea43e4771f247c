#include "platform/RegionalNumbers.h"

#include <QByteArray>
#include <QLocale>

#include <cfloat>
#include <cstdint>
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

// Settings without a currency symbol read "$", as oleaut32 does.
QString RegionalCurrencySymbol() {
    const QString symbol = QLocale::system().currencySymbol(QLocale::CurrencySymbol);
    return symbol.isEmpty() ? QStringLiteral("$") : symbol;
}

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

// What a text reads as: a decimal number as a C-locale text for strtod, or
// the value of a hexadecimal or octal one; nothing when it is no number.
struct Reading {
    bool number = false;
    QByteArray decimal;      // empty for a hexadecimal or octal number
    double basedValue = 0.0; // a hexadecimal or octal number
    bool basedOverflow = false;
};

bool startsWithAt(const QString& text, qsizetype i, const QString& part) {
    return !part.isEmpty() && QStringView(text).sliced(i).startsWith(part);
}

// The digits of a hexadecimal (shift 4) or octal (shift 3) number. Beyond
// 32 bits the value follows oleaut32: what fits a 32-bit integer read as
// negative stands, the rest overflows.
void readBased(const QString& text, qsizetype& i, int shift, Reading& reading) {
    quint64 value = 0;
    bool overflow = false;
    for (; i < text.size(); ++i) {
        const QChar c = text.at(i);
        int digit;
        if (isDigit(c)) digit = c.unicode() - '0';
        else if (shift == 4 && c.toLower() >= QLatin1Char('a') && c.toLower() <= QLatin1Char('f'))
            digit = c.toLower().unicode() - 'a' + 10;
        else break;
        if (digit >= (1 << shift)) break;
        if (value > (~quint64(0) >> shift) - quint64(digit)) overflow = true;
        value = (value << shift) + quint64(digit);
        reading.number = true;
    }
    const auto negative = static_cast<qint64>(quint64(0) - value);
    if (value <= quint64(INT32_MAX)) reading.basedValue = double(value);
    else if (negative >= INT32_MIN) reading.basedValue = double(negative);
    else overflow = true;
    reading.basedOverflow = overflow;
}

// Reads the text as oleaut32 does (VarParseNumFromStr with every form allowed).
//
// Before the number: blanks, one '+', one '-', the currency symbol once and
// one '(' in any order, and possibly the decimal symbol that begins it;
// grouping symbols may not come before the number. Then either "&H" or "&O"
// and hexadecimal or octal digits (not after a currency symbol or a decimal
// symbol; a sign is ignored there, as oleaut32 ignores it), or digits with
// grouping symbols anywhere after the first digit or decimal symbol, one
// decimal symbol and an exponent (E or e, signs that may repeat, digits; not
// after a currency symbol). After the number: blanks, grouping symbols (not
// after a hexadecimal or octal number), '+' unless one came before, '-'
// unless one came before, ')' when '(' came before, and the currency symbol
// (not after a hexadecimal or octal number). A '-' or a closing ')' makes the
// number negative; a '(' without ')' or '-' is no number. Refused where
// oleaut32 takes them: digits after a complete exponent ("1e5,3").
Reading readNumber(const QString& text) {
    const Symbols symbols;
    const QString currency = RegionalCurrencySymbol();
    const qsizetype n = text.size();
    qsizetype i = 0;
    Reading reading;

    bool plus = false, minus = false, currencySeen = false, parens = false, decimalSeen = false;
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
        } else if (!currencySeen && startsWithAt(text, i, currency)) {
            currencySeen = true;
            i += currency.size();
        } else if (c == QLatin1Char('(') && !parens) {
            parens = true;
            ++i;
        } else {
            break;
        }
    }

    const bool based = !currencySeen && !decimalSeen && i + 1 < n && text.at(i) == QLatin1Char('&') &&
                       QStringLiteral("HhOo").contains(text.at(i + 1));
    if (based) {
        const int shift = text.at(i + 1).toLower() == QLatin1Char('h') ? 4 : 3;
        i += 2;
        readBased(text, i, shift, reading);
    } else {
        QByteArray out = decimalSeen ? "." : "";
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
                reading.number = true;
            } else if (symbols.isGroup(c)) {
                // ignored
            } else if (c == symbols.decimal && !decimalSeen && exponent == NoExponent) {
                decimalSeen = true;
                out += '.';
            } else if ((c == QLatin1Char('e') || c == QLatin1Char('E')) && exponent == NoExponent && !currencySeen) {
                exponent = ExponentSign;
            } else if (exponent == ExponentSign && (c == QLatin1Char('+') || c == QLatin1Char('-'))) {
                if (c == QLatin1Char('-')) negativeExponent = true;
            } else {
                break;
            }
            ++i;
        }
        if (exponent == ExponentSign) return {};
        if (exponent == ExponentDone) out += (negativeExponent ? "e-" : "e+") + exponentDigits;
        reading.decimal = out;
    }

    bool negative = minus;
    while (i < n) {
        const QChar c = text.at(i);
        if (symbols.isGroup(c)) {
            if (based) break;
            ++i;
        } else if (isBlank(c)) {
            ++i;
        } else if (c == QLatin1Char('+') && !plus) {
            ++i;
        } else if (c == QLatin1Char('-') && !minus) {
            negative = true;
            ++i;
        } else if (c == QLatin1Char(')') && parens) {
            negative = true;
            ++i;
        } else if (!based && startsWithAt(text, i, currency)) {
            i += currency.size();
        } else {
            break;
        }
    }
    if (i != n || !reading.number || (parens && !negative)) return {};
    if (negative && !based) reading.decimal.prepend('-');
    return reading;
}

// The smallest single above zero; a smaller number does not fit a single.
constexpr double kSmallestSingle = 1.40129846432481707e-45;

Conversion convert(const QString& text, bool single) {
    const Reading reading = readNumber(text);
    if (!reading.number) return {0.0, TypeMismatch};
    if (reading.decimal.isEmpty()) return {reading.basedValue, reading.basedOverflow ? Overflow : 0};
    const double value = std::strtod(reading.decimal.constData(), nullptr);
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
