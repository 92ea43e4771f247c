#pragma once
// Settings tool (src/settings): brimo-settings, the dialogs' settings from the
// command line; it sees platform and model, and nothing sees it.
//
// The keys that the tool reads and sets, by section, each with the control of
// its dialog and how a value given for it is taken. Everything is derived from
// the model's tables, so that the tool and the dialogs cannot disagree.

#include "model/FieldRules.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace brimo {

enum class SettingSection { General, Slope };

enum class KeyKind {
    RuleText,  // a field with a leaving rule
    FreeText,  // a field without one (the program locations)
    Choice,    // an option group or a pair of check boxes: one of `choices`
    Flag,      // a check box: 0 or 1
};

struct SettingKey {
    QString key;     // as the load spells it
    QString control; // the general dialog's field, option group or check box; the slope dialog's field
    KeyKind kind;
    const FieldRule* rule = nullptr; // RuleText only
    QStringList choices;             // Choice and Flag
};

// The keys of a section in the order of its catalogue.
const QList<SettingKey>& SettingKeys(SettingSection section);
// The key of that name, without regard to case, or nullptr.
const SettingKey* FindSettingKey(SettingSection section, const QString& name);

QString SectionName(SettingSection section); // "Brimo_Gene", "Brimo_Talus"
QString DialogName(SettingSection section);  // "general", "slope"

} // namespace brimo
