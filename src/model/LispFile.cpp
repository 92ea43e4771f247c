#include "model/LispFile.h"

#include "platform/Cp1252.h"

namespace brimo {

QString EscapeBackslashes(const QString& text) {
    QString out;
    out.reserve(text.size() * 2);
    for (const QChar c : text) {
        out += c;
        if (c == QLatin1Char('\\')) out += c;
    }
    return out;
}

QString NumericLine(const QString& name, const QString& value, const QString& closing) {
    return QStringLiteral("(setq ") + name + QLatin1Char(' ') + value + closing;
}

QString QuotedLine(const QString& name, const QString& value, const QString& closing) {
    return QStringLiteral("(setq ") + name + QStringLiteral(" \"") + value + QLatin1Char('"') + closing;
}

QString PathLine(const QString& name, const QString& value, const QString& closing) {
    return QuotedLine(name, EscapeBackslashes(value), closing);
}

QString ValueLine(LispLineForm form, const QString& name, const QString& value, const QString& closing) {
    switch (form) {
    case LispLineForm::Numeric: return NumericLine(name, value, closing);
    case LispLineForm::Path: return PathLine(name, value, closing);
    case LispLineForm::Quoted:
    case LispLineForm::Language:
    case LispLineForm::Fixed: break;
    }
    return QuotedLine(name, value, closing);
}

QByteArray ComposeLispFile(const QStringList& lines) {
    QByteArray out;
    for (const QString& line : lines) {
        out += toCp1252(line);
        out += "\r\n";
    }
    return out;
}

} // namespace brimo
