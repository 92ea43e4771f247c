#pragma once
// Settings tool (src/settings): brimo-settings, the dialogs' settings from the
// command line; it sees platform and model, and nothing sees it.
//
// A value given on the command line or in a profile file for a key, checked
// as the dialog checks it (CheckedValue).

#include "model/SettingKeys.h"

#include <QList>
#include <QString>

#include <optional>

namespace brimo {

// "KEY=VALUE" of `section`, checked; nothing with `error` when refused (a
// line break or another control character is). A value that Windows-1252
// cannot hold whole is taken, and said on stderr.
std::optional<Edit> ParseEdit(SettingSection section, const QString& assignment, QString* error);

} // namespace brimo
