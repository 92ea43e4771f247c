#pragma once
// Settings tool (src/settings): brimo-settings, the dialogs' settings from the
// command line; it sees platform and model, and nothing sees it.
//
// The commands of brimo-settings, one row each: the dispatch, the usage,
// `help COMMAND`, and the lists that the bash completion and the manual page
// are checked against, all come from this table.

#include "settings/Commands.h"

#include <QStringView>

#include <array>

namespace brimo {

struct CommandRow {
    const char* name;
    const char* arguments; // after the name, as the usage writes them
    const char* summary;   // what it does, in lines of the usage's width
    const char* options;   // the options it reads, blank-separated
    RunResult (*run)(const Options& options);
};

extern const std::array<CommandRow, 10> kCommandTable;

// The row of a command, or nullptr.
const CommandRow* FindCommand(QStringView name);

// The whole usage; with `all`, QCommandLineParser's list of options after it.
QString Usage(bool all);

// help, and help COMMAND: the usage of that command alone.
RunResult RunHelp(const Options& options);
RunResult RunVersion(const Options& options);

} // namespace brimo
