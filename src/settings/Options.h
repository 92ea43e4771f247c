#pragma once
// Settings tool (src/settings): brimo-settings, the dialogs' settings from the
// command line; it sees platform and model, and nothing sees it.
//
// The command line: a command, its arguments and the options, in any order
// behind the command; "--" ends the options.

#include "settings/SettingKeys.h"

#include <QStringList>

#include <optional>

namespace brimo {

struct Options {
    QString command;                      // get, set, export, apply, help, version
    QStringList arguments;                // keys, KEY=VALUE, or the file
    SettingSection section = SettingSection::General;
    bool json = false;
    bool origin = false;
    bool check = false;
    QStringList prefixes;                 // empty: the environment's
    std::optional<QString> user;
};

// The options, or nothing with `error` saying what is wrong.
std::optional<Options> ParseOptions(const QStringList& arguments, QString* error);

} // namespace brimo
