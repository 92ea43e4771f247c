#pragma once
// Settings tool (src/settings): brimo-settings, the dialogs' settings from the
// command line; it sees platform and model, and nothing sees it.
//
// The commands. Each says what it did, from which main() gives the exit status.

#include "platform/WindowsPaths.h"
#include "settings/Options.h"

#include <QCoreApplication>

#include <functional>

namespace brimo {

// What a command did, from which main() gives the exit status.
struct RunResult {
    bool refused = false; // a bad command line or value: nothing written anywhere
    int changed = 0;      // prefixes (or files) changed; with --check, that would change
    int failed = 0;       // prefixes that failed; the others went on
};

// Exit statuses. By default every success is 0, changed or not, so that
// `set -e` scripts, Makefiles and configuration tools take a change for a
// success; a refusal and a failure stay apart.
enum ExitStatus : int {
    kSucceeded = 0,
    kRefused = 2,
    kFailed = 3,
};

// With --detailed-exitcodes, Puppet's convention: 0 no change, 2 changes,
// 4 failures, 6 changes and failures; 1 when the command was refused and
// nothing was tried.
enum DetailedExitStatus : int {
    kDetailedNoChange = 0,
    kDetailedRefused = 1,
    kDetailedChanges = 2,
    kDetailedFailures = 4,
};

int ExitStatusOf(const RunResult& result, bool detailed);

RunResult RunGet(const Options& options);
RunResult RunExport(const Options& options);
RunResult RunSet(const Options& options);
RunResult RunApply(const Options& options);
RunResult RunHistory(const Options& options);
RunResult RunRestore(const Options& options);
RunResult RunHeal(const Options& options);
RunResult RunKeys(const Options& options);

// Runs `each` with every prefix of the options in force in turn (or once, on
// the environment's), after testing that the prefix is a folder; `each` gets
// the prefix and says whether it succeeded; `failed`, when given, is told
// of a prefix that is no folder or cannot be worked on as its owner.
// Returns the number of failures.
int ForEachPrefix(const Options& options, const std::function<bool(const WinePrefix& prefix)>& each,
                  const std::function<void(const QString& prefix, const QString& error)>& failed = {});

// The tool's own sentences, in the language of the locale's messages
// (SettingsText::tr); key names, values, JSON keys and statuses stay as they are.
struct SettingsText {
    Q_DECLARE_TR_FUNCTIONS(SettingsText)
};

// Text on the standard output and the standard error, in UTF-8. Complain
// shows its text as Printable does.
void Print(const QString& text);
void Complain(const QString& text);

// Text read from a file as a report line shows it: each control character
// as \t, \n, \r or \xHH (\x1B for escape), so that none acts on the
// terminal or breaks the line. JSON escapes them itself.
QString Printable(const QString& text);

} // namespace brimo
