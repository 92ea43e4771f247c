#include "settings/CommandTable.h"

#include "settings/Options.h"

namespace brimo {

const std::array<CommandRow, 8> kCommandTable = {{
    {"get", "[KEY...]",
     "print each value the dialog would open with (all keys\nwhen none is given), as KEY=VALUE lines",
     "--dialog --json --origin --prefix --prefixes-from --user", RunGet},
    {"set", "KEY=VALUE...",
     "check each value as its field does, then write both\nfiles as the dialog's OK does; keys not given keep what\n"
     "the dialog opens with",
     "--dialog --json --check --detailed-exitcodes --prefix --prefixes-from --user", RunSet},
    {"export", "FILE",
     "write what each dialog's OK would write for the user\n(both sections) to a profile file; FILE \"-\" is the\n"
     "standard output",
     "--prefix --prefixes-from --user", RunExport},
    {"apply", "FILE",
     "set the keys of [Brimo_Gene] and [Brimo_Talus] of a\nprofile file; FILE \"-\" is the standard input",
     "--json --check --detailed-exitcodes --prefix --prefixes-from --user", RunApply},
    {"history", "",
     "list the last 20 commits of the user's files (by the\ndialogs' OK, set, apply, restore): number, time,\n"
     "program, what, keys changed",
     "--json --prefix --prefixes-from --user", RunHistory},
    {"restore", "[N]",
     "bring back both files as they were before the last\ncommit, or before commit N of the history; recorded\n"
     "in the history in turn",
     "--json --check --detailed-exitcodes --prefix --prefixes-from --user", RunRestore},
    {"help", "[COMMAND]", "this text, or the usage of one command", "--help-all", RunHelp},
    {"version", "", "the version", "", RunVersion},
}};

const CommandRow* FindCommand(QStringView name) {
    for (const CommandRow& row : kCommandTable)
        if (name == QLatin1String(row.name)) return &row;
    return nullptr;
}

namespace {

const char* const kAbout = R"(Usage: brimo-settings COMMAND [OPTION...] [ARGUMENT...]

Reads and writes the settings of the Zorel add-on's variable editor (Brimo)
as its dialogs do: the values of section Brimo_Gene (general dialog) or
Brimo_Talus (slope dialog) of the user's Brimo.ini, and the Lisp files.
)";

const char* const kStatuses = R"(Exit status:
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

// A term and its text in two columns, the text's lines below each other.
QString twoColumns(const QString& term, const QString& text, int width) {
    QString lines = QStringLiteral("  ") + term.leftJustified(width - 1) + QLatin1Char(' ');
    return lines + QString(text).replace(QLatin1Char('\n'), QLatin1Char('\n') + QString(width + 2, QLatin1Char(' '))) +
           QLatin1Char('\n');
}

QString commandTerm(const CommandRow& row) {
    return *row.arguments ? QLatin1String(row.name) + QLatin1Char(' ') + QLatin1String(row.arguments) : QString::fromLatin1(row.name);
}

QString optionLines(const QStringList& only = {}) {
    QString lines;
    for (const OptionRow& option : OptionTable())
        if (only.isEmpty() || only.contains(option.spelling()))
            lines += twoColumns(option.term(), QString::fromUtf8(option.description), 25);
    return lines;
}

} // namespace

QString Usage(bool all) {
    QString usage = QString::fromUtf8(kAbout) + QStringLiteral("\nCommands:\n");
    for (const CommandRow& row : kCommandTable) usage += twoColumns(commandTerm(row), QString::fromUtf8(row.summary), 20);
    usage += QStringLiteral("\nOptions:\n") + optionLines() +
             QStringLiteral("Options take their value as \"--opt value\" or \"--opt=value\"; \"--\" ends them.\n\n") +
             QString::fromUtf8(kStatuses);
    return all ? usage + QLatin1Char('\n') + OptionList() : usage;
}

RunResult RunHelp(const Options& options) {
    if (options.arguments.isEmpty()) {
        Print(Usage(options.helpAll));
        return {};
    }
    const CommandRow* row = options.arguments.size() == 1 ? FindCommand(options.arguments.first()) : nullptr;
    if (!row) {
        Complain(QStringLiteral("%1: no such command").arg(options.arguments.join(QLatin1Char(' '))));
        return {true};
    }
    Print(QStringLiteral("Usage: brimo-settings %1 [OPTION...]\n\n").arg(commandTerm(*row)) + QString::fromUtf8(row->summary) +
          QStringLiteral(".\n") +
          (*row->options ? QStringLiteral("\nOptions:\n") + optionLines(QString::fromLatin1(row->options).split(QLatin1Char(' '))) : QString()));
    return {};
}

RunResult RunVersion(const Options&) {
    Print(QStringLiteral("brimo-settings " BRIMO_VERSION "\n"));
    return {};
}

} // namespace brimo
