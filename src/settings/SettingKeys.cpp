#include "settings/SettingKeys.h"

#include "model/GeneralCommit.h"
#include "model/GeneralVariableCatalogue.h"
#include "model/SlopeCommit.h"

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

QString DialogName(SettingSection section) {
    return section == SettingSection::General ? QStringLiteral("general") : QStringLiteral("slope");
}

} // namespace brimo
