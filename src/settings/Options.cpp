#include "settings/Options.h"

#include "model/FailureText.h"
#include "platform/FileAccess.h"
#include "platform/WindowsPaths.h"
#include "settings/CommandTable.h"

#include <QCommandLineParser>

namespace brimo {

namespace {

// One prefix a line; blank lines and lines starting with '#' are skipped.
bool readPrefixList(const QString& file, QStringList& prefixes, QString* error) {
    const std::optional<QByteArray> bytes = ReadGivenFile(file);
    if (!bytes) {
        *error = SettingsText::tr("--prefixes-from %1: cannot be read").arg(file);
        return false;
    }
    for (const QString& line : DecodeNativeText(*bytes).split(QLatin1Char('\n'))) {
        const QString prefix = line.trimmed();
        if (!prefix.isEmpty() && !prefix.startsWith(QLatin1Char('#'))) prefixes.append(prefix);
    }
    return true;
}

constexpr OptionRow kOptions[] = {
    {"dialog", "", "general|slope", QT_TRANSLATE_NOOP("SettingsText", "the dialog whose keys get and set use (general)")},
    {"json", "", "", QT_TRANSLATE_NOOP("SettingsText", "get, keys, history, set, apply, restore, heal: print\none JSON document (set, apply, restore, heal: per\n"
                     "prefix the user, changed, keys with old and new\nvalues, files, error)")},
    {"value", "", "", QT_TRANSLATE_NOOP("SettingsText", "get: print the bare value of one key")},
    {"origin", "", "", QT_TRANSLATE_NOOP("SettingsText", "get: put \"stored\", \"office\", \"locked\" or \"default\"\nand a tab in front")},
    {"check", "", "", QT_TRANSLATE_NOOP("SettingsText", "set, apply, restore, heal: report what would\nchange, write nothing")},
    {"detailed-exitcodes", "", "", QT_TRANSLATE_NOOP("SettingsText", "exit statuses as Puppet's option of that name")},
    {"prefix", "", "DIR", QT_TRANSLATE_NOOP("SettingsText", "a Wine prefix in place of $WINEPREFIX (repeatable)")},
    {"prefixes-from", "", "FILE", QT_TRANSLATE_NOOP("SettingsText", "prefixes from FILE, one a line ('#' starts a comment)")},
    {"run", "", "ID", QT_TRANSLATE_NOOP("SettingsText", "restore: every prefix back to before that run of\nthe tool (its id in the history)")},
    {"user", "", "NAME", QT_TRANSLATE_NOOP("SettingsText", "the user in place of [Users] actuel of zorel.ini")},
    {"help", "h", "", QT_TRANSLATE_NOOP("SettingsText", "this text")},
    {"help-all", "", "", QT_TRANSLATE_NOOP("SettingsText", "this text and every option as Qt lists them")},
    {"version", "", "", QT_TRANSLATE_NOOP("SettingsText", "the version")},
};

struct Parser {
    QCommandLineParser parser;
    Parser() {
        parser.setApplicationDescription(SettingsText::tr("The settings of Brimo's dialogs from the command line."));
        for (const OptionRow& row : kOptions) {
            QStringList names{QLatin1String(row.name)};
            if (*row.shortName) names.prepend(QLatin1String(row.shortName));
            parser.addOption({names, row.text().replace(QLatin1Char('\n'), QLatin1Char(' ')) + QLatin1Char('.'),
                              QLatin1String(row.value)});
        }
        QStringList commands;
        for (const CommandRow& row : kCommandTable) commands.append(QLatin1String(row.name));
        parser.addPositionalArgument(QStringLiteral("command"), commands.join(QStringLiteral(", ")));
        parser.addPositionalArgument(QStringLiteral("arguments"), SettingsText::tr("KEY, KEY=VALUE, FILE, N or COMMAND"),
                                     QStringLiteral("[ARGUMENT...]"));
    }
    bool isSet(const char* name) const { return parser.isSet(QLatin1String(name)); }
};

} // namespace

QString OptionRow::spelling() const { return QStringLiteral("--") + QLatin1String(name); }

QString OptionRow::term() const {
    QString term = *shortName ? QStringLiteral("-%1, ").arg(QLatin1String(shortName)) + spelling() : spelling();
    return *value ? term + QLatin1Char(' ') + QLatin1String(value) : term;
}

QString OptionRow::text() const { return SettingsText::tr(description); }

std::span<const OptionRow> OptionTable() { return kOptions; }

std::optional<Options> ParseOptions(const QStringList& arguments, QString* error) {
    Parser p;
    if (!p.parser.parse(QStringList{QStringLiteral("brimo-settings")} + arguments)) {
        *error = p.parser.errorText();
        return std::nullopt;
    }
    Options options;
    options.arguments = p.parser.positionalArguments();
    if (!options.arguments.isEmpty()) options.command = options.arguments.takeFirst();
    // "set --help" is the help of set.
    if (p.isSet("help") || p.isSet("help-all")) {
        options.arguments = options.command.isEmpty() || options.command == QLatin1String("help") ? options.arguments
                                                                                                   : QStringList{options.command};
        options.command = QStringLiteral("help");
    } else if (p.isSet("version")) options.command = QStringLiteral("version");
    options.helpAll = p.isSet("help-all");
    options.json = p.isSet("json");
    options.origin = p.isSet("origin");
    options.bareValue = p.isSet("value");
    options.check = p.isSet("check");
    options.detailedExitCodes = p.isSet("detailed-exitcodes");
    options.prefixes = p.parser.values(QStringLiteral("prefix"));
    for (const QString& file : p.parser.values(QStringLiteral("prefixes-from")))
        if (!readPrefixList(file, options.prefixes, error)) return std::nullopt;
    if (p.isSet("user")) options.user = p.parser.value(QStringLiteral("user"));
    options.run = p.parser.value(QStringLiteral("run"));
    if (p.isSet("dialog")) {
        const QString dialog = p.parser.value(QStringLiteral("dialog"));
        if (dialog == QLatin1String("general")) options.section = SettingSection::General;
        else if (dialog == QLatin1String("slope")) options.section = SettingSection::Slope;
        else {
            *error = SettingsText::tr("--dialog %1: general or slope").arg(dialog);
            return std::nullopt;
        }
    }
    // No command, or an unknown one: the usage goes to the standard error.
    if (options.command.isEmpty()) {
        *error = SettingsText::tr("no command");
        return std::nullopt;
    }
    if (!FindCommand(options.command)) {
        *error = SettingsText::tr("%1: no such command").arg(options.command);
        return std::nullopt;
    }
    return options;
}

QString OptionList() {
    Parser p;
    p.parser.parse({QStringLiteral("brimo-settings")});
    return p.parser.helpText();
}

} // namespace brimo
