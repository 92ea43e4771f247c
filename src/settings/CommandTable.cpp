#include "settings/CommandTable.h"

#include "settings/Options.h"

namespace brimo {

const std::array<CommandRow, 10> kCommandTable = {{
    {"get", "[KEY...]",
     QT_TRANSLATE_NOOP("SettingsText", "print each stored value, else the office's or the\ndefault (all keys when none is given), as KEY=VALUE\nlines"),
     "--dialog --json --origin --value --prefix --prefixes-from --user", RunGet},
    {"set", "KEY=VALUE...",
     QT_TRANSLATE_NOOP("SettingsText", "check each value as its field does, then write both\nfiles as the dialog's OK does; keys not given keep\n"
     "their stored values"),
     "--dialog --json --check --detailed-exitcodes --prefix --prefixes-from --user", RunSet},
    {"export", "FILE",
     QT_TRANSLATE_NOOP("SettingsText", "write what each dialog's OK would write for the user\n(both sections) to a profile file; FILE \"-\" is the\n"
     "standard output"),
     "--prefix --prefixes-from --user", RunExport},
    {"apply", "FILE",
     QT_TRANSLATE_NOOP("SettingsText", "set the keys of [Brimo_Gene] and [Brimo_Talus] of a\nprofile file; FILE \"-\" is the standard input"),
     "--json --check --detailed-exitcodes --prefix --prefixes-from --user", RunApply},
    {"history", "[show N]",
     QT_TRANSLATE_NOOP("SettingsText", "list the last 20 commits of the user's files (by the\ndialogs' OK, set, apply, restore, heal): number,\n"
     "time, program, what, keys changed, who, run; show N:\nthat entry with each key's old and new value"),
     "--json --prefix --prefixes-from --user", RunHistory},
    {"restore", "[N]",
     QT_TRANSLATE_NOOP("SettingsText", "bring back both files as they were before the last\ncommit, before commit N of the history, or with\n"
     "--run ID before that run; recorded in the history"),
     "--json --check --detailed-exitcodes --run --prefix --prefixes-from --user", RunRestore},
    {"heal", "",
     QT_TRANSLATE_NOOP("SettingsText", "set every key that the office standard gives or locks\nto its value; with --check, report which users differ\n"
     "from it, and in which keys"),
     "--json --check --detailed-exitcodes --prefix --prefixes-from --user", RunHeal},
    {"keys", "",
     QT_TRANSLATE_NOOP("SettingsText", "list every key of both dialogs: dialog, key, Lisp\nname, type, default, choices, office value, meaning"),
     "--json", RunKeys},
    {"help", "[COMMAND]", QT_TRANSLATE_NOOP("SettingsText", "this text, or the usage of one command"), "--help-all", RunHelp},
    {"version", "", QT_TRANSLATE_NOOP("SettingsText", "the version"), "", RunVersion},
}};

const CommandRow* FindCommand(QStringView name) {
    for (const CommandRow& row : kCommandTable)
        if (name == QLatin1String(row.name)) return &row;
    return nullptr;
}

namespace {

// The usage's opening and its closing lines on the exit statuses.
const char* const kAbout = QT_TRANSLATE_NOOP("SettingsText",
    "Usage: brimo-settings COMMAND [OPTION...] [ARGUMENT...]\n"
    "\n"
    "Reads and writes the settings of the Zorel add-on's variable editor (Brimo)\n"
    "as its dialogs do: the values of section Brimo_Gene (general dialog) or\n"
    "Brimo_Talus (slope dialog) of the user's Brimo.ini, and the Lisp files.\n");

const char* const kStatuses = QT_TRANSLATE_NOOP("SettingsText",
    "Exit status:\n"
    "  0  done, whether or not anything changed\n"
    "  2  refused: a bad option, unknown key, value that is no number, value out\n"
    "     of its choices, double quote or control character in a text; nothing\n"
    "     was written\n"
    "  3  some prefix failed (reported); the other prefixes went on\n"
    "With --detailed-exitcodes (Puppet's convention):\n"
    "  0  done, nothing changed (with --check: nothing would change)\n"
    "  1  refused, nothing tried\n"
    "  2  done, some files changed (with --check: would change)\n"
    "  4  some prefix failed, nothing changed elsewhere\n"
    "  6  some prefix failed, and some other changed\n"
    "\n"
    "See brimo-settings(1).\n");

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
            lines += twoColumns(option.term(), option.text(), 25);
    return lines;
}

} // namespace

QString Usage(bool all) {
    QString usage = SettingsText::tr(kAbout) + QLatin1Char('\n') + SettingsText::tr("Commands:") + QLatin1Char('\n');
    for (const CommandRow& row : kCommandTable) usage += twoColumns(commandTerm(row), SettingsText::tr(row.summary), 20);
    usage += QLatin1Char('\n') + SettingsText::tr("Options:") + QLatin1Char('\n') + optionLines() +
             SettingsText::tr("Options take their value as \"--opt value\" or \"--opt=value\"; \"--\" ends them.") +
             QStringLiteral("\n\n") + SettingsText::tr(kStatuses);
    return all ? usage + QLatin1Char('\n') + OptionList() : usage;
}

RunResult RunHelp(const Options& options) {
    if (options.arguments.isEmpty()) {
        Print(Usage(options.helpAll));
        return {};
    }
    const CommandRow* row = options.arguments.size() == 1 ? FindCommand(options.arguments.first()) : nullptr;
    if (!row) {
        Complain(SettingsText::tr("%1: no such command").arg(options.arguments.join(QLatin1Char(' '))));
        return {true};
    }
    Print(SettingsText::tr("Usage: brimo-settings %1 [OPTION...]").arg(commandTerm(*row)) + QStringLiteral("\n\n") +
          SettingsText::tr(row->summary) + QStringLiteral(".\n") +
          (*row->options ? QLatin1Char('\n') + SettingsText::tr("Options:") + QLatin1Char('\n') +
                               optionLines(QString::fromLatin1(row->options).split(QLatin1Char(' ')))
                         : QString()));
    return {};
}

RunResult RunVersion(const Options&) {
    Print(QStringLiteral("brimo-settings " BRIMO_VERSION "\n"));
    return {};
}

} // namespace brimo
