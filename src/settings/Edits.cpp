#include "settings/Edits.h"

#include "platform/Cp1252.h"
#include "platform/RegionalNumbers.h"
#include "settings/Commands.h"

namespace brimo {

namespace {

QString quoted(const QString& text) { return QLatin1Char('"') + text + QLatin1Char('"'); }

} // namespace

std::optional<Edit> ParseEdit(SettingSection section, const QString& assignment, QString* error) {
    const qsizetype equals = assignment.indexOf(QLatin1Char('='));
    if (equals <= 0) {
        *error = SettingsText::tr("%1: not KEY=VALUE").arg(quoted(assignment));
        return std::nullopt;
    }
    const QString name = assignment.left(equals);
    const SettingKey* key = FindSettingKey(section, name);
    if (!key) {
        *error = SettingsText::tr("%1: no key of the %2 settings").arg(name, DialogName(section));
        return std::nullopt;
    }
    const std::optional<QString> value = CheckedValue(*key, assignment.mid(equals + 1), error);
    if (!value) return std::nullopt;
    // A number is written as given; one with a point or a comma that is not
    // this locale's decimal symbol ("1,5" under a point locale) reaches the
    // add-on as that text, which it cannot read as the number meant.
    const QChar decimal = RegionalDecimalSymbol();
    for (const QChar symbol : {QLatin1Char('.'), QLatin1Char(',')})
        if (key->kind == KeyKind::RuleText && symbol != decimal && value->contains(symbol))
            Complain(SettingsText::tr("%1: \"%2\" holds \"%3\", which this locale's numbers do not take for their decimal "
                                      "symbol (\"%4\"); the add-on receives %2 as written")
                         .arg(key->key, *value, symbol, decimal));
    // Both files are Windows-1252: what it lacks goes in as '?', as the
    // dialog's OK writes it; the user hears of it.
    if (fromCp1252(toCp1252(*value)) != *value)
        Complain(SettingsText::tr("%1: characters that Windows-1252 lacks are written as ?, as the dialog writes them: %2")
                     .arg(key->key, quoted(fromCp1252(toCp1252(*value)))));
    return Edit{key, *value};
}

} // namespace brimo
