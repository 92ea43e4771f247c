#include "settings/Options.h"

#include "platform/FileAccess.h"
#include "platform/WindowsPaths.h"

#include <QCommandLineParser>

namespace brimo {

namespace {

const QStringList kCommands = {QStringLiteral("get"),     QStringLiteral("set"),     QStringLiteral("export"),
                               QStringLiteral("apply"),   QStringLiteral("history"), QStringLiteral("restore"),
                               QStringLiteral("help"),    QStringLiteral("version")};

// One prefix a line; blank lines and lines starting with '#' are skipped.
bool readPrefixList(const QString& file, QStringList& prefixes, QString* error) {
    const std::optional<QByteArray> bytes = ReadGivenFile(file, error);
    if (!bytes) {
        *error = QStringLiteral("--prefixes-from %1: cannot be read").arg(file);
        return false;
    }
    for (const QString& line : DecodeNativeText(*bytes).split(QLatin1Char('\n'))) {
        const QString prefix = line.trimmed();
        if (!prefix.isEmpty() && !prefix.startsWith(QLatin1Char('#'))) prefixes.append(prefix);
    }
    return true;
}

struct Parser {
    QCommandLineParser parser;
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show the usage.")};
    QCommandLineOption helpAll{QStringLiteral("help-all"), QStringLiteral("Show the usage and every option.")};
    QCommandLineOption version{QStringLiteral("version"), QStringLiteral("Show the version.")};
    QCommandLineOption dialog{QStringLiteral("dialog"),
                              QStringLiteral("The dialog whose keys get and set use: general (default) or slope."),
                              QStringLiteral("general|slope")};
    QCommandLineOption json{QStringLiteral("json"), QStringLiteral("get, set, apply, restore, history: print one JSON document.")};
    QCommandLineOption origin{QStringLiteral("origin"),
                              QStringLiteral("get: put \"stored\" or \"default\" and a tab in front.")};
    QCommandLineOption check{QStringLiteral("check"),
                             QStringLiteral("set, apply, restore: report what would change, write nothing.")};
    QCommandLineOption detailed{QStringLiteral("detailed-exitcodes"),
                                QStringLiteral("Exit 0 no change, 2 changes, 4 failures, 6 changes and "
                                               "failures, 1 refused (as Puppet's).")};
    QCommandLineOption prefix{QStringLiteral("prefix"), QStringLiteral("A Wine prefix in place of $WINEPREFIX (repeatable)."),
                              QStringLiteral("DIR")};
    QCommandLineOption prefixesFrom{QStringLiteral("prefixes-from"),
                                    QStringLiteral("Prefixes from FILE, one a line ('#' starts a comment)."),
                                    QStringLiteral("FILE")};
    QCommandLineOption user{QStringLiteral("user"), QStringLiteral("The user in place of [Users] actuel of zorel.ini."),
                            QStringLiteral("NAME")};

    Parser() {
        parser.setApplicationDescription(QStringLiteral("The settings of Brimo's dialogs from the command line."));
        parser.addOptions({help, helpAll, version, dialog, json, origin, check, detailed, prefix, prefixesFrom, user});
        parser.addPositionalArgument(QStringLiteral("command"),
                                     QStringLiteral("get, set, export, apply, history, restore, help, version"));
        parser.addPositionalArgument(QStringLiteral("arguments"), QStringLiteral("KEY, KEY=VALUE, FILE or N"),
                                     QStringLiteral("[ARGUMENT...]"));
    }
};

} // namespace

std::optional<Options> ParseOptions(const QStringList& arguments, QString* error) {
    Parser p;
    if (!p.parser.parse(QStringList{QStringLiteral("brimo-settings")} + arguments)) {
        *error = p.parser.errorText();
        return std::nullopt;
    }
    Options options;
    options.arguments = p.parser.positionalArguments();
    if (!options.arguments.isEmpty()) options.command = options.arguments.takeFirst();
    if (p.parser.isSet(p.help) || p.parser.isSet(p.helpAll)) options.command = QStringLiteral("help");
    else if (p.parser.isSet(p.version)) options.command = QStringLiteral("version");
    options.helpAll = p.parser.isSet(p.helpAll);
    options.json = p.parser.isSet(p.json);
    options.origin = p.parser.isSet(p.origin);
    options.check = p.parser.isSet(p.check);
    options.detailedExitCodes = p.parser.isSet(p.detailed);
    options.prefixes = p.parser.values(p.prefix);
    for (const QString& file : p.parser.values(p.prefixesFrom))
        if (!readPrefixList(file, options.prefixes, error)) return std::nullopt;
    if (p.parser.isSet(p.user)) options.user = p.parser.value(p.user);
    if (p.parser.isSet(p.dialog)) {
        const QString dialog = p.parser.value(p.dialog);
        if (dialog == QLatin1String("general")) options.section = SettingSection::General;
        else if (dialog == QLatin1String("slope")) options.section = SettingSection::Slope;
        else {
            *error = QStringLiteral("--dialog %1: general or slope").arg(dialog);
            return std::nullopt;
        }
    }
    if (options.command.isEmpty()) options.command = QStringLiteral("help");
    if (!kCommands.contains(options.command)) {
        *error = QStringLiteral("%1: no such command").arg(options.command);
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
