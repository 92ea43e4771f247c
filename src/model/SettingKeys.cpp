#include "model/SettingKeys.h"

#include "model/GeneralLoad.h"
#include "model/SlopeOpening.h"
#include "model/GeneralVariableCatalogue.h"

#include <QCoreApplication>

#include <algorithm>

namespace brimo {

namespace {

// The values that a choice takes from its option group.
QStringList choicesOf(const GeneralVariableRow& row) {
    QStringList values;
    for (const GeneralChoice& choice : kGeneralChoices)
        if (SameName(choice.key, row.key)) values.append(QString::fromLatin1(choice.value));
    return values;
}

SettingKey generalKey(const GeneralVariableRow& row) {
    SettingKey key{QString::fromLatin1(row.key), QString::fromLatin1(row.field), KeyKind::FreeText, nullptr, {}};
    if (row.type == ValueType::Choice) {
        key.kind = KeyKind::Choice;
        key.choices = choicesOf(row);
    } else if (row.type == ValueType::Flag) {
        key.kind = KeyKind::Flag;
        key.choices = {QStringLiteral("0"), QStringLiteral("1")};
    } else if ((key.rule = FindFieldRule(GeneralFieldRules(), key.control))) {
        key.kind = KeyKind::RuleText;
    }
    return key;
}

QList<SettingKey> generalKeys() {
    QList<SettingKey> keys;
    for (const GeneralVariableRow& row : kGeneralVariableCatalogue) keys.append(generalKey(row));
    return keys;
}

// The slope keys in the order of the commit: a key with choices is set by a
// pair of controls, any other by a field with its rule.
QList<SettingKey> slopeKeys() {
    QList<SettingKey> keys;
    for (const QString& name : SlopeKeys()) {
        SettingKey key{name, QString(), KeyKind::Choice, nullptr, SlopeChoices(name)};
        for (const FieldRule& rule : SlopeFieldRules())
            if (name == QLatin1String(rule.key)) key = {name, QLatin1String(rule.control), KeyKind::RuleText, &rule, {}};
        keys.append(key);
    }
    return keys;
}

} // namespace

const QList<SettingKey>& SettingKeys(SettingSection section) {
    static const QList<SettingKey> general = generalKeys();
    static const QList<SettingKey> slope = slopeKeys();
    return section == SettingSection::General ? general : slope;
}

const SettingKey* FindSettingKey(SettingSection section, const QString& name) {
    for (const SettingKey& key : SettingKeys(section))
        if (key.key.compare(name, Qt::CaseInsensitive) == 0) return &key;
    return nullptr;
}

QString SectionName(SettingSection section) {
    return QLatin1String(section == SettingSection::General ? kGeneralSection : kSlopeSection);
}

QString DefaultText(SettingSection section, const QString& key) {
    if (section == SettingSection::General) return GeneralVariables().text(key);
    return SlopeValue(SlopeOpeningState(), key);
}

QString DialogName(SettingSection section) {
    return section == SettingSection::General ? QStringLiteral("general") : QStringLiteral("slope");
}

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
        *error = QCoreApplication::translate("SettingValue", "%1: the value holds a line break or another control character").arg(key.key);
        return std::nullopt;
    }
    switch (key.kind) {
    case KeyKind::Flag:
        // Also as the dialog loads a stored state: 2 (grey) counts as ticked.
        if (StoredCheckState(given)) return given;
        [[fallthrough]];
    case KeyKind::Choice:
        if (key.choices.contains(given)) return given;
        *error = QCoreApplication::translate("SettingValue", "%1: %2 is none of %3").arg(key.key, quoted(given), key.choices.join(QStringLiteral(", ")));
        return std::nullopt;
    case KeyKind::RuleText: {
        const LeaveOutcome outcome = ApplyLeavingRule(*key.rule, given);
        if (outcome.refused) {
            *error = QCoreApplication::translate("SettingValue", "%1: %2 is no number").arg(key.key, quoted(given));
            return std::nullopt;
        }
        if (unwritableQuote(key, outcome.text)) break;
        return outcome.text;
    }
    case KeyKind::FreeText:
        if (unwritableQuote(key, given)) break;
        return given;
    }
    *error = QCoreApplication::translate("SettingValue", "%1: %2 holds a double quote, which would end its Lisp string").arg(key.key, quoted(given));
    return std::nullopt;
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
