#include "model/GeneLispCatalogue.h"

namespace brimo {

std::optional<QString> GeneLispLine(const GeneLispRow& row, const QString& value) {
    const QString name = QString::fromLatin1(row.lispName);
    switch (row.form) {
    case LispLineForm::Fixed:
        for (const GeneFixedLine& fixed : kGeneFixedLines)
            if (fixed.row == row.row && QString::number(fixed.value) == value) return QString::fromUtf8(fixed.line);
        return std::nullopt;
    case LispLineForm::Language:
        for (const GeneLanguageClosing& language : kGeneLanguageClosings)
            if (value == QLatin1String(language.code))
                return QuotedLine(name, value, QString::fromUtf8(language.closing));
        return std::nullopt;
    case LispLineForm::Numeric:
    case LispLineForm::Quoted:
    case LispLineForm::Path: break;
    }
    return ValueLine(row.form, name, value, QString::fromUtf8(row.closing));
}

} // namespace brimo
