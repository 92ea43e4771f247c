// get and export: what a user's dialogs would show, on the screen or to a
// profile file.
#include "settings/Commands.h"
#include "settings/UserFiles.h"
#include "model/FailureText.h"
#include "model/GeneLispCatalogue.h"
#include "model/KeyMeanings.h"

#include "platform/Cp1252.h"
#include "platform/FileAccess.h"
#include "platform/WindowsPaths.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace brimo {

namespace {

constexpr SettingSection kBothSections[] = {SettingSection::General, SettingSection::Slope};

QString originOf(const ShownValue& value) {
    switch (value.origin) {
    case ValueOrigin::Stored: return QStringLiteral("stored");
    case ValueOrigin::Office: return QStringLiteral("office");
    case ValueOrigin::Locked: return QStringLiteral("locked");
    case ValueOrigin::Default: break;
    }
    return QStringLiteral("default");
}

// The values of the keys asked for, in the order asked; all when none is.
QList<ShownValue> chosen(const QList<ShownValue>& all, const QStringList& keys) {
    if (keys.isEmpty()) return all;
    QList<ShownValue> picked;
    for (const QString& key : keys)
        for (const ShownValue& value : all)
            if (value.key.compare(key, Qt::CaseInsensitive) == 0) picked.append(value);
    return picked;
}

// A zorel.ini or Brimo.ini that is there but cannot be read fails the prefix:
// its defaults would pass for the user's values. `errors` are those of the
// user's files that the command needs, one a line.
bool readable(const UserFiles& user, const QString& errors) {
    for (const QString& error : errors.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        Complain(QStringLiteral("%1: %2").arg(user.info().prefix.name(), error));
    return errors.isEmpty();
}

// Whether apply of the file would take each value, by apply's own check; a
// value that it would refuse (a control character, a double quote that
// would end its Lisp string, a text that is no number) is said, naming the
// key, and the file is not written.
bool exportable(const UserFiles& user, SettingSection section, const QList<ShownValue>& values) {
    bool all = true;
    for (const ShownValue& value : values) {
        QString error;
        if (ParseEdit(section, value.key + QLatin1Char('=') + value.value, &error)) continue;
        Complain(SettingsText::tr("%1: %2; give the key a value").arg(user.info().prefix.name(), error));
        all = false;
    }
    return all;
}

QJsonObject jsonOf(const QString& prefix, const UserFiles& user, SettingSection section,
                   const QList<ShownValue>& values) {
    QJsonObject byKey;
    for (const ShownValue& value : values)
        byKey.insert(value.key, QJsonObject{{"value", value.value}, {"origin", originOf(value)}});
    return {{"prefix", prefix},
            {"user", user.info().actuel},
            {"dialog", DialogName(section)},
            {"section", SectionName(section)},
            {"values", byKey}};
}

// The keys of a history line: the first five, then how many more.
QString shortList(const QStringList& keys) {
    if (keys.size() <= 5) return keys.join(QLatin1Char(' '));
    return keys.mid(0, 5).join(QLatin1Char(' ')) + SettingsText::tr(" and %1 more").arg(keys.size() - 5);
}

// Who ran a commit: "root@host (sudo marie)".
QString whoOf(const HistoryEntry& entry) {
    if (entry.user.isEmpty()) return {}; // an entry of an older version
    QString who = entry.user + QLatin1Char('@') + entry.host;
    return entry.sudoUser.isEmpty() ? who : who + QStringLiteral(" (sudo %1)").arg(entry.sudoUser);
}

// One line an entry: number, time, program, what, keys, who, run.
QString entryLine(const HistoryEntry& entry) {
    if (!entry.damaged.isEmpty()) return QStringLiteral("%1\tdamaged\t%2\n").arg(entry.number).arg(Printable(entry.damaged));
    return QStringLiteral("%1\t%2\t%3\t%4\t%5\t%6\t%7\n")
        .arg(entry.number)
        .arg(entry.when.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")), Printable(entry.program),
             Printable(entry.what), Printable(shortList(entry.keys)), Printable(whoOf(entry)), Printable(entry.run));
}

// An entry whole: its line, then each key with its value before and after.
QString entryText(const HistoryEntry& entry) {
    QString text = entryLine(entry);
    for (const KeyChange& change : entry.changes)
        text += QStringLiteral("  %1: \"%2\" -> \"%3\"\n").arg(Printable(change.key), Printable(change.before), Printable(change.after));
    return text;
}

QJsonObject entryJson(const HistoryEntry& entry) {
    QStringList files;
    for (const KeptFile& file : entry.files) files.append(file.name);
    QJsonArray changes;
    for (const KeyChange& change : entry.changes)
        changes.append(QJsonObject{{"key", change.key}, {"old", change.before}, {"new", change.after}});
    QJsonObject json{{"number", entry.number},
                     {"when", entry.when.toString(Qt::ISODate)},
                     {"program", entry.program},
                     {"what", entry.what},
                     {"keys", QJsonArray::fromStringList(entry.keys)},
                     {"changes", changes},
                     {"files", QJsonArray::fromStringList(files)},
                     {"user", entry.user},
                     {"sudo_user", entry.sudoUser},
                     {"host", entry.host},
                     {"run", entry.run}};
    if (!entry.damaged.isEmpty()) json.insert(QStringLiteral("damaged"), entry.damaged);
    return json;
}

} // namespace

namespace {

// What keys says of a key: its dialog, names, type, default, choices, the
// office standard's value and its meaning.
struct KeyFacts {
    QString dialog, key, lisp, type, defaultValue;
    QStringList choices;
    const OfficeKey* office;
    QString meaning;
};

QList<KeyFacts> keyFacts(const OfficeStandard* standard) {
    static const char* const kTypes[] = {"number", "text", "choice", "flag"}; // in the order of ValueType
    QList<KeyFacts> facts;
    for (const SettingKey& key : SettingKeys(SettingSection::General)) {
        const GeneralVariableRow* row = FindVariableRow(key.key.toLatin1().constData());
        const auto lisp = std::find_if(kGeneLispCatalogue.begin(), kGeneLispCatalogue.end(),
                                       [&](const GeneLispRow& r) { return key.key == QLatin1String(r.variable); });
        facts.append({QStringLiteral("general"), key.key, QLatin1String(lisp->lispName),
                      QLatin1String(kTypes[static_cast<int>(row->type)]), DefaultText(SettingSection::General, key.key), key.choices,
                      standard ? standard->find(SettingSection::General, key.key) : nullptr, KeyMeaning(key.key)});
    }
    for (const SettingKey& key : SettingKeys(SettingSection::Slope))
        facts.append({QStringLiteral("slope"), key.key, SlopeLispName(key.key),
                      QLatin1String(key.kind == KeyKind::Choice ? "choice" : "number"), DefaultText(SettingSection::Slope, key.key),
                      key.choices, standard ? standard->find(SettingSection::Slope, key.key) : nullptr, KeyMeaning(key.key)});
    return facts;
}

} // namespace

// Every key of both dialogs, one line each (tab-separated) or as JSON.
RunResult RunKeys(const Options& options) {
    if (!options.arguments.isEmpty()) {
        Complain(SettingsText::tr("keys takes no argument"));
        return {true};
    }
    QJsonArray json;
    for (const KeyFacts& key : keyFacts(options.standard.get())) {
        if (!options.json) {
            const QString office = !key.office ? QStringLiteral("-")
                                   : key.office->locked ? QStringLiteral("locked ") + key.office->value
                                                        : key.office->value;
            Print(QStringList{key.dialog, key.key, key.lisp, key.type, key.defaultValue,
                              key.choices.isEmpty() ? QStringLiteral("-") : key.choices.join(QLatin1Char(',')), office, key.meaning}
                      .join(QLatin1Char('\t')) + QLatin1Char('\n'));
            continue;
        }
        QJsonObject object{{"dialog", key.dialog}, {"key", key.key},   {"lisp", key.lisp},
                           {"type", key.type},     {"default", key.defaultValue},
                           {"choices", QJsonArray::fromStringList(key.choices)}, {"meaning", key.meaning}};
        if (key.office) object.insert(QStringLiteral("office"), QJsonObject{{"value", key.office->value}, {"locked", key.office->locked}});
        json.append(object);
    }
    if (options.json) Print(QString::fromUtf8(QJsonDocument(json).toJson()));
    return {};
}

RunResult RunGet(const Options& options) {
    if (options.bareValue && options.arguments.size() != 1) {
        Complain(SettingsText::tr("get --value takes one KEY"));
        return {true};
    }
    for (const QString& key : options.arguments)
        if (!FindSettingKey(options.section, key)) {
            Complain(SettingsText::tr("%1: no key of the %2 settings").arg(key, DialogName(options.section)));
            return {true};
        }
    QJsonArray json;
    const int failures = ForEachPrefix(options, [&](const WinePrefix& wine) {
        const UserFiles user(wine, options.user, options.standard);
        if (!readable(user, user.readError())) return false;
        const QString prefix = wine.name();
        const QList<ShownValue> values = chosen(user.values(options.section), options.arguments);
        if (options.json) {
            json.append(jsonOf(prefix, user, options.section, values));
            return true;
        }
        if (options.bareValue) {
            Print(Printable(values.first().value) + QLatin1Char('\n'));
            return true;
        }
        if (options.prefixes.size() > 1) Print(QStringLiteral("# %1\n").arg(Printable(prefix)));
        for (const ShownValue& value : values)
            Print((options.origin ? originOf(value) + QLatin1Char('\t') : QString()) + value.key + QLatin1Char('=') +
                  Printable(value.value) + QLatin1Char('\n'));
        return true;
    });
    if (options.json) Print(QString::fromUtf8(QJsonDocument(json).toJson()));
    return {false, 0, failures};
}

RunResult RunExport(const Options& options) {
    if (options.arguments.size() != 1 || options.prefixes.size() > 1) {
        Complain(SettingsText::tr("export takes one FILE, and at most one --prefix"));
        return {true};
    }
    ProfileDocument profile;
    const int failures = ForEachPrefix(options, [&](const WinePrefix& wine) {
        const UserFiles user(wine, options.user, options.standard);
        if (!readable(user, user.readError())) return false;
        bool all = true;
        for (SettingSection section : kBothSections) {
            const QList<ShownValue> values = user.committedValues(section);
            all = exportable(user, section, values) && all;
            QList<ProfileDocument::KeyValue> keys;
            for (const ShownValue& value : values) keys.append({toCp1252(value.key), toCp1252(value.value)});
            profile.setStrings(toCp1252(SectionName(section)), keys);
        }
        return all;
    });
    if (failures) return {false, 0, failures};

    const QString& file = options.arguments.first();
    if (file == QLatin1String("-")) {
        std::fwrite(profile.bytes().constData(), 1, static_cast<size_t>(profile.bytes().size()), stdout);
        return {};
    }
    if (ReadWholeFile(file) == profile.bytes()) return {};
    Failure failure;
    if (!WriteWholeFile(file, profile.bytes(), &failure)) {
        Complain(QStringLiteral("%1: %2").arg(file, FailureText(failure)));
        return {false, 0, 1};
    }
    return {false, 1, 0};
}

RunResult RunHistory(const Options& options) {
    // "history" lists; "history show N" tells one entry whole.
    const bool show = !options.arguments.isEmpty() && options.arguments.first() == QLatin1String("show");
    int number = 0;
    if (show && options.arguments.size() == 2) number = options.arguments[1].toInt();
    if ((show && number <= 0) || (!show && !options.arguments.isEmpty())) {
        Complain(SettingsText::tr("history takes no argument, or show N"));
        return {true};
    }
    QJsonArray json;
    const int failures = ForEachPrefix(options, [&](const WinePrefix& wine) {
        const QString prefix = wine.name();
        const UserFiles user(wine, options.user, options.standard);
        // Without zorel.ini the user's folder is unknown: an empty history would
        // pass for the user's.
        if (!readable(user, user.zorelIniError())) return false;
        QList<HistoryEntry> history = ReadHistory(user.lock().nativeIniPath());
        if (show) {
            erase_if(history, [&](const HistoryEntry& entry) { return entry.number != number; });
            if (history.isEmpty()) {
                Complain(QStringLiteral("%1: %2").arg(prefix, QCoreApplication::translate("History", "no entry %1").arg(number)));
                return false;
            }
        }
        if (!options.json) {
            if (options.prefixes.size() > 1) Print(QStringLiteral("# %1\n").arg(Printable(prefix)));
            for (const HistoryEntry& entry : history) Print(show ? entryText(entry) : entryLine(entry));
            return true;
        }
        QJsonArray entries;
        for (const HistoryEntry& entry : history) entries.append(entryJson(entry));
        json.append(QJsonObject{{"prefix", prefix}, {"user", user.info().actuel}, {"entries", entries}});
        return true;
    });
    if (options.json) Print(QString::fromUtf8(QJsonDocument(json).toJson()));
    return {false, 0, failures};
}

} // namespace brimo
