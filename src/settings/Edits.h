#pragma once
// Settings tool (src/settings): brimo-settings, the dialogs' settings from the
// command line; it sees platform and model, and nothing sees it.
//
// A value given for a key, checked as the dialog checks it, and put into the
// controls the commit reads: a field's text passes its leaving rule, a group
// or a check box takes one of its values.

#include "model/GeneralCommit.h"
#include "model/SlopeCommit.h"
#include "settings/SettingKeys.h"

#include <QList>
#include <QString>

#include <optional>

namespace brimo {

struct Edit {
    const SettingKey* key;
    QString value; // the field's text after its rule, or the choice
};

// The value as the dialog would hold it once given, or nothing with `error`
// naming the key: a text that is no number, a value outside the choices, a
// double quote in a text that the Lisp file writes between quotes.
std::optional<QString> CheckedValue(const SettingKey& key, const QString& given, QString* error);

// "KEY=VALUE" of `section`, checked; nothing with `error` when refused (a
// line break or another control character is). A value that Windows-1252
// cannot hold whole is taken, and said on stderr.
std::optional<Edit> ParseEdit(SettingSection section, const QString& assignment, QString* error);

void ApplyEdits(GeneralControlState& state, const QList<Edit>& edits);
void ApplyEdits(SlopeControlState& state, const QList<Edit>& edits);

} // namespace brimo
