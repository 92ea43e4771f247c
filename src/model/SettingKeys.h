#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The keys that brimo-settings and the office standard set, by section, each
// with the control of its dialog and how a value given for it is taken.
// Everything is derived from the catalogues, so that the tool, the standard
// and the dialogs cannot disagree.

#include "model/FieldRules.h"
#include "model/GeneralCommit.h"
#include "model/SlopeCommit.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

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

// What a dialog shows for a key when nothing is stored: the general
// variable's default, or the slope form's own value.
QString DefaultText(SettingSection section, const QString& key);
QString DialogName(SettingSection section);  // "general", "slope"

struct Edit {
    const SettingKey* key;
    QString value; // the field's text after its rule, or the choice
};

// The value as the dialog would hold it once given, or nothing with `error`
// naming the key: a line break or another control character, a text that is
// no number, a value outside the choices, a double quote in a text that the
// Lisp file writes between quotes.
std::optional<QString> CheckedValue(const SettingKey& key, const QString& given, QString* error);

// The values put into the controls that the commit reads, as the user would.
void ApplyEdits(GeneralControlState& state, const QList<Edit>& edits);
void ApplyEdits(SlopeControlState& state, const QList<Edit>& edits);

} // namespace brimo
