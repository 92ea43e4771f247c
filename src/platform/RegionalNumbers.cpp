#include "platform/RegionalNumbers.h"

#include <QByteArray>
#include <QLocale>

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace brimo {

QChar RegionalDecimalSymbol() {
    const QString point = QLocale::system().decimalPoint();
    return point.isEmpty() ? QChar('.') : point.at(0);
}

QString RegionalGroupSymbol() { return QLocale::system().groupSeparator(); }

namespace {

bool isBlank(QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QChar(0x00A0); }

// Reads the text into a C-locale number text; empty when it is no number.
QByteArray canonicalNumber(const QString& text) {
    const QChar decimal = RegionalDecimalSymbol();
    QString group = RegionalGroupSymbol();
    // A narrow no-break space and a no-break space are one symbol to a user.
    const bool groupIsSpace = group == QString(QChar(0x202F)) || group == QString(QChar(0x00A0));

    qsizetype i = 0;
    const qsizetype n = text.size();
    while (i < n && isBlank(text.at(i))) ++i;

    QByteArray out;
    if (i < n && (text.at(i) == QLatin1Char('+') || text.at(i) == QLatin1Char('-'))) {
        if (text.at(i) == QLatin1Char('-')) out += '-';
        ++i;
    }
    bool digits = false;
    auto isGroup = [&](qsizetype at) {
        if (group.isEmpty() || at >= n) return false;
        if (groupIsSpace && (text.at(at) == QChar(0x202F) || text.at(at) == QChar(0x00A0))) return true;
        return text.mid(at, group.size()) == group && text.at(at) != decimal;
    };
    while (i < n) {
        if (text.at(i).isDigit() && text.at(i).unicode() < 128) {
            out += char(text.at(i).unicode());
            digits = true;
            ++i;
        } else if (digits && isGroup(i) && i + group.size() < n && text.at(i + group.size()).isDigit()) {
            i += group.size();
        } else {
            break;
        }
    }
    if (i < n && text.at(i) == decimal) {
        out += '.';
        ++i;
        while (i < n && text.at(i).isDigit() && text.at(i).unicode() < 128) {
            out += char(text.at(i).unicode());
            digits = true;
            ++i;
        }
    }
    if (!digits) return {};
    if (i < n && (text.at(i) == QLatin1Char('e') || text.at(i) == QLatin1Char('E'))) {
        qsizetype j = i + 1;
        QByteArray exponent = "e";
        if (j < n && (text.at(j) == QLatin1Char('+') || text.at(j) == QLatin1Char('-'))) {
            exponent += char(text.at(j).unicode());
            ++j;
        }
        bool expDigits = false;
        while (j < n && text.at(j).isDigit() && text.at(j).unicode() < 128) {
            exponent += char(text.at(j).unicode());
            expDigits = true;
            ++j;
        }
        if (!expDigits) return {};
        out += exponent;
        i = j;
    }
    while (i < n && isBlank(text.at(i))) ++i;
    if (i != n) return {};
    return out;
}

Conversion convert(const QString& text, double limit) {
    const QByteArray canonical = canonicalNumber(text);
    if (canonical.isEmpty()) return {0.0, TypeMismatch};
    errno = 0;
    const double value = std::strtod(canonical.constData(), nullptr);
    if (std::isinf(value) || std::fabs(value) > limit) return {value, Overflow};
    return {value, 0};
}

} // namespace

Conversion TextToSingle(const QString& text) { return convert(text, FLT_MAX); }

Conversion TextToDouble(const QString& text) { return convert(text, DBL_MAX); }

QString NumberToText(double number) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.15G", number);
    QString out = QString::fromLatin1(buffer);
    out.replace(QLatin1Char('.'), RegionalDecimalSymbol());
    return out;
}

} // namespace brimo
