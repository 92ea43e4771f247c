#include "settings/Options.h"

#include "platform/FileAccess.h"

namespace brimo {

namespace {

const QStringList kCommands = {QStringLiteral("get"), QStringLiteral("set"), QStringLiteral("export"),
                               QStringLiteral("apply"), QStringLiteral("help"), QStringLiteral("version")};

// One prefix a line; blank lines and lines starting with '#' are skipped.
bool readPrefixList(const QString& file, QStringList& prefixes, QString* error) {
    const std::optional<QByteArray> bytes = ReadGivenFile(file, error);
    if (!bytes) {
        *error = QStringLiteral("--prefixes-from %1: cannot be read").arg(file);
        return false;
    }
    for (const QString& line : QString::fromUtf8(*bytes).split(QLatin1Char('\n'))) {
        const QString prefix = line.trimmed();
        if (!prefix.isEmpty() && !prefix.startsWith(QLatin1Char('#'))) prefixes.append(prefix);
    }
    return true;
}

} // namespace

std::optional<Options> ParseOptions(const QStringList& arguments, QString* error) {
    Options options;
    bool optionsEnded = false;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        QString word = arguments[i];
        if (optionsEnded || !word.startsWith(QLatin1String("-")) || word == QLatin1String("-")) {
            if (options.command.isEmpty() && !optionsEnded) options.command = word;
            else options.arguments.append(word);
            continue;
        }
        if (word == QLatin1String("--")) { optionsEnded = true; continue; }
        if (word == QLatin1String("--help") || word == QLatin1String("-h")) { options.command = QStringLiteral("help"); continue; }
        if (word == QLatin1String("--version")) { options.command = QStringLiteral("version"); continue; }
        if (word == QLatin1String("--json")) { options.json = true; continue; }
        if (word == QLatin1String("--origin")) { options.origin = true; continue; }
        if (word == QLatin1String("--check")) { options.check = true; continue; }

        // The options with a value: "--name VALUE" or "--name=VALUE".
        QString value;
        if (const qsizetype equals = word.indexOf(QLatin1Char('=')); equals > 0) {
            value = word.mid(equals + 1);
            word = word.left(equals);
        } else if (i + 1 < arguments.size()) {
            value = arguments[++i];
        } else {
            *error = QStringLiteral("%1 needs a value").arg(word);
            return std::nullopt;
        }
        if (word == QLatin1String("--prefix")) options.prefixes.append(value);
        else if (word == QLatin1String("--user")) options.user = value;
        else if (word == QLatin1String("--prefixes-from")) {
            if (!readPrefixList(value, options.prefixes, error)) return std::nullopt;
        } else if (word == QLatin1String("--dialog")) {
            if (value == QLatin1String("general")) options.section = SettingSection::General;
            else if (value == QLatin1String("slope")) options.section = SettingSection::Slope;
            else {
                *error = QStringLiteral("--dialog %1: general or slope").arg(value);
                return std::nullopt;
            }
        } else {
            *error = QStringLiteral("%1: no such option").arg(word);
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

} // namespace brimo
