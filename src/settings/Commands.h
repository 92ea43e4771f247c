#pragma once
// Settings tool (src/settings): brimo-settings, the dialogs' settings from the
// command line; it sees platform and model, and nothing sees it.
//
// The four commands. Each returns the exit status of the tool.

#include "platform/WindowsPaths.h"
#include "settings/Options.h"

#include <functional>

namespace brimo {

// Exit statuses, so that a configuration tool can run a command again and
// again and tell what it did.
enum ExitStatus : int {
    kAlreadySo = 0, // done; nothing needed changing (or get, export done)
    kChanged = 1,   // done; some user's files changed (with --check: would change)
    kRefused = 2,   // a bad command line or value; nothing written anywhere
    kFailed = 3,    // some prefix failed; the others went on
};

int RunGet(const Options& options);
int RunExport(const Options& options);
int RunSet(const Options& options);
int RunApply(const Options& options);

// Runs `each` with every prefix of the options in force in turn (or once, on
// the environment's), after testing that the prefix is a folder; `each` gets
// the prefix and says whether it succeeded. Returns the number of failures.
int ForEachPrefix(const Options& options, const std::function<bool(const WinePrefix& prefix)>& each);

// Text on the standard output and the standard error, in UTF-8.
void Print(const QString& text);
void Complain(const QString& text);

} // namespace brimo
