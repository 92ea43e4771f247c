#pragma once
// Settings tool (src/settings): brimo-settings, the dialogs' settings from the
// command line; it sees platform and model, and nothing sees it.
//
// The command line, read by QCommandLineParser: a command, its arguments and
// the options, in any order behind the command; "--" ends the options.

#include "model/OfficeStandard.h"
#include "model/SettingKeys.h"

#include <QStringList>

#include <memory>
#include <optional>
#include <span>

namespace brimo {

struct Options {
    QString command;                      // get, set, export, apply, history, restore, help, version
    QStringList arguments;                // keys, KEY=VALUE, the file, or the entry
    SettingSection section = SettingSection::General;
    bool json = false;
    bool origin = false;
    bool bareValue = false;               // get --value: the value alone
    bool check = false;
    bool detailedExitCodes = false;       // Puppet's --detailed-exitcodes
    bool helpAll = false;                 // --help-all: the usage and every option
    QStringList prefixes;                 // empty: the environment's
    std::optional<QString> user;
    QString run;                          // restore --run: a run id of the history
    std::shared_ptr<const OfficeStandard> standard; // read by main, not a word of the command line
};

// An option of the command line, as the usage and QCommandLineParser show it.
struct OptionRow {
    const char* name;        // without "--"
    const char* shortName;   // "h", or ""
    const char* value;       // the name of its value, or "" for a switch
    const char* description; // in lines of the usage's width, translated by text()
    QString text() const;     // the description in the language of the messages
    QString spelling() const; // "--dialog"
    QString term() const;     // "-h, --help", "--dialog general|slope"
};
std::span<const OptionRow> OptionTable();

// The options of `arguments` (without the program's name), or nothing with
// `error` saying what is wrong.
std::optional<Options> ParseOptions(const QStringList& arguments, QString* error);

// Every option with its description, as QCommandLineParser lays them out.
QString OptionList();

} // namespace brimo
