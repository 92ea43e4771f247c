#include "settings/Edits.h"

#include "platform/Cp1252.h"
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
    // Both files are Windows-1252: what it lacks goes in as '?', as the
    // dialog's OK writes it; the user hears of it.
    if (fromCp1252(toCp1252(*value)) != *value)
        Complain(SettingsText::tr("%1: characters that Windows-1252 lacks are written as ?, as the dialog writes them: %2")
                     .arg(key->key, quoted(fromCp1252(toCp1252(*value)))));
    return Edit{key, *value};
}

} // namespace brimo
