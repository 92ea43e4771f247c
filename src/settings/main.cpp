// brimo-settings: the settings of the general and slope dialogs from the
// command line, read and written as the dialogs read and write them.
#include "settings/Commands.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <csignal>

namespace {

const char* const kUsage = R"(Usage: brimo-settings COMMAND [OPTION...] [ARGUMENT...]

Reads and writes the settings of the Zorel add-on's variable editor (Brimo)
as its dialogs do: the values of section Brimo_Gene (general dialog) or
Brimo_Talus (slope dialog) of the user's Brimo.ini, and the Lisp files.

Commands:
  get [KEY...]        print each value the dialog would open with (all keys
                      when none is given), as KEY=VALUE lines
  set KEY=VALUE...    check each value as its field does, then write both
                      files as the dialog's OK does; keys not given keep what
                      the dialog opens with
  export FILE         write what each dialog's OK would write for the user
                      (both sections) to a profile file; FILE "-" is the
                      standard output
  apply FILE          set the keys of [Brimo_Gene] and [Brimo_Talus] of a
                      profile file; FILE "-" is the standard input
  history             list the last 20 commits of the user's files (by the
                      dialogs' OK, set, apply, restore): number, time,
                      program, what, keys changed
  restore [N]         bring back both files as they were before the last
                      commit, or before commit N of the history; recorded
                      in the history in turn
  help, version

Options:
  --dialog general|slope   the dialog whose keys get and set use (general)
  --json                   get, set, apply, restore, history: print one JSON
                           document (set, apply, restore: per prefix the
                           user, changed, keys with old and new values,
                           files, error)
  --origin                 get: put "stored" or "default" and a tab in front
  --check                  set, apply, restore: report what would change,
                           write nothing
  --detailed-exitcodes     exit statuses as Puppet's option of that name
  --prefix DIR             a Wine prefix in place of $WINEPREFIX (repeatable)
  --prefixes-from FILE     prefixes from FILE, one a line ('#' starts a comment)
  --user NAME              the user in place of [Users] actuel of zorel.ini
  -h, --help, --help-all   this text (--help-all: and the option list)
  --version
Options take their value as "--opt value" or "--opt=value"; "--" ends them.

Exit status:
  0  done, whether or not anything changed
  2  refused: a bad option, unknown key, value that is no number, value out
     of its choices, double quote or control character in a text; nothing
     was written
  3  some prefix failed (reported); the other prefixes went on
With --detailed-exitcodes (Puppet's convention):
  0  done, nothing changed (with --check: nothing would change)
  1  refused, nothing tried
  2  done, some files changed (with --check: would change)
  4  some prefix failed, nothing changed elsewhere
  6  some prefix failed, and some other changed

See brimo-settings(1).
)";

} // namespace

int main(int argc, char** argv) {
    using namespace brimo;
    QCoreApplication application(argc, argv);
    // A write past the file size limit then fails with EFBIG and is reported
    // as any failed write, instead of killing the tool.
    std::signal(SIGXFSZ, SIG_IGN);
    QStringList arguments;
    // Bytes that are no UTF-8 (a folder named in Latin-1) are kept as they are.
    for (int i = 1; i < argc; ++i) arguments.append(DecodeNativeText(argv[i]));

    QString error;
    const std::optional<Options> options = ParseOptions(arguments, &error);
    if (!options) {
        Complain(error + QStringLiteral(" (see brimo-settings --help)"));
        return ExitStatusOf({true}, arguments.contains(QStringLiteral("--detailed-exitcodes")));
    }
    const QString& command = options->command;
    RunResult result;
    if (command == QLatin1String("help")) Print(QString::fromUtf8(kUsage) + (options->helpAll ? QLatin1Char('\n') + OptionList() : QString()));
    else if (command == QLatin1String("version")) Print(QStringLiteral("brimo-settings " BRIMO_VERSION "\n"));
    else if (command == QLatin1String("get")) result = RunGet(*options);
    else if (command == QLatin1String("set")) result = RunSet(*options);
    else if (command == QLatin1String("export")) result = RunExport(*options);
    else if (command == QLatin1String("apply")) result = RunApply(*options);
    else if (command == QLatin1String("history")) result = RunHistory(*options);
    else if (command == QLatin1String("restore")) result = RunRestore(*options);
    return ExitStatusOf(result, options->detailedExitCodes);
}
