// brimo-settings: the settings of the general and slope dialogs from the
// command line, read and written as the dialogs read and write them.
#include "settings/Commands.h"

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
  export FILE         write the user's values (both sections) to a profile
                      file; FILE "-" is the standard output
  apply FILE          set the keys of [Brimo_Gene] and [Brimo_Talus] of a
                      profile file; FILE "-" is the standard input
  help, version

Options:
  --dialog general|slope   the dialog whose keys get and set use (general)
  --json                   get: print JSON
  --origin                 get: put "stored" or "default" and a tab in front
  --check                  set, apply: report what would change, write nothing
  --prefix DIR             a Wine prefix in place of $WINEPREFIX (repeatable)
  --prefixes-from FILE     prefixes from FILE, one a line ('#' starts a comment)
  --user NAME              the user in place of [Users] actuel of zorel.ini

Exit status:
  0  done, and nothing needed changing (get, and export to "-", always so)
  1  done, and some user's files changed (with --check: would change)
  2  refused: a bad option, unknown key, value that is no number, value out
     of its choices, double quote or control character in a text; nothing
     was written
  3  some prefix failed (reported); the other prefixes went on

See brimo-settings(1).
)";

} // namespace

int main(int argc, char** argv) {
    using namespace brimo;
    // A write past the file size limit then fails with EFBIG and is reported
    // as any failed write, instead of killing the tool.
    std::signal(SIGXFSZ, SIG_IGN);
    QStringList arguments;
    for (int i = 1; i < argc; ++i) arguments.append(QString::fromLocal8Bit(argv[i]));

    QString error;
    const std::optional<Options> options = ParseOptions(arguments, &error);
    if (!options) {
        Complain(error + QStringLiteral(" (see brimo-settings --help)"));
        return kRefused;
    }
    const QString& command = options->command;
    if (command == QLatin1String("help")) Print(QString::fromUtf8(kUsage));
    else if (command == QLatin1String("version")) Print(QStringLiteral("brimo-settings " BRIMO_VERSION "\n"));
    else if (command == QLatin1String("get")) return RunGet(*options);
    else if (command == QLatin1String("set")) return RunSet(*options);
    else if (command == QLatin1String("export")) return RunExport(*options);
    else if (command == QLatin1String("apply")) return RunApply(*options);
    return kAlreadySo;
}
