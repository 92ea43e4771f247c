#include "settings/Edits.h"

#include "model/GeneralLoad.h"
#include "platform/Cp1252.h"
#include "settings/Commands.h"

#include <algorithm>

namespace brimo {

namespace {

QString quoted(const QString& text) { return QLatin1Char('"') + text + QLatin1Char('"'); }

// A line break would end the key's line in Brimo.ini (and start another
// key there) and break the Lisp line; no other control character has a
// place in a setting either.
bool holdsControl(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.category() == QChar::Other_Control; });
}

// A quote in a text that goes between quotes in the Lisp file: the same test
// as the general dialog's OK, on this one field.
bool unwritableQuote(const SettingKey& key, const QString& text) {
    GeneralControlState probe;
    probe.texts.insert(key.control, text);
    return FindUnwritableQuote(probe).has_value();
}

} // namespace

std::optional<QString> CheckedValue(const SettingKey& key, const QString& given, QString* error) {
    if (holdsControl(given)) {
        *error = SettingsText::tr("%1: the value holds a line break or another control character").arg(key.key);
        return std::nullopt;
    }
    switch (key.kind) {
    case KeyKind::Flag:
        // Also as the dialog loads a stored state: 2 (grey) counts as ticked.
        if (StoredCheckState(given)) return given;
        [[fallthrough]];
    case KeyKind::Choice:
        if (key.choices.contains(given)) return given;
        *error = SettingsText::tr("%1: %2 is none of %3").arg(key.key, quoted(given), key.choices.join(QStringLiteral(", ")));
        return std::nullopt;
    case KeyKind::RuleText: {
        const LeaveOutcome outcome = ApplyLeavingRule(*key.rule, given);
        if (outcome.refused) {
            *error = SettingsText::tr("%1: %2 is no number").arg(key.key, quoted(given));
            return std::nullopt;
        }
        if (unwritableQuote(key, outcome.text)) break;
        return outcome.text;
    }
    case KeyKind::FreeText:
        if (unwritableQuote(key, given)) break;
        return given;
    }
    *error = SettingsText::tr("%1: %2 holds a double quote, which would end its Lisp string").arg(key.key, quoted(given));
    return std::nullopt;
}

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

void ApplyEdits(GeneralControlState& state, const QList<Edit>& edits) {
    for (const Edit& edit : edits) {
        const QString& control = edit.key->control;
        switch (edit.key->kind) {
        case KeyKind::RuleText:
        case KeyKind::FreeText: state.texts.insert(control, edit.value); break;
        case KeyKind::Flag: state.checkStates.insert(control, StoredCheckState(edit.value).value_or(0)); break;
        case KeyKind::Choice:
            // One button of a group is selected: the one whose test gives the value.
            erase_if(state.selectedOptions, [&](const QString& button) { return button.startsWith(control + QLatin1Char('(')); });
            for (const GeneralChoice& choice : kGeneralChoices)
                if (QLatin1String(choice.button).startsWith(control + QLatin1Char('(')) && edit.value == QLatin1String(choice.value))
                    state.selectedOptions.insert(QLatin1String(choice.button));
            break;
        }
    }
}

void ApplyEdits(SlopeControlState& state, const QList<Edit>& edits) {
    for (const Edit& edit : edits) SetSlopeValue(state, edit.key->key, edit.value);
}

} // namespace brimo
