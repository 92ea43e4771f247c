// get and export: what a user's dialogs would show, on the screen or to a
// profile file.
#include "settings/Commands.h"
#include "settings/UserFiles.h"

#include "platform/Cp1252.h"
#include "platform/FileAccess.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace brimo {

namespace {

constexpr SettingSection kBothSections[] = {SettingSection::General, SettingSection::Slope};

QString originOf(const ShownValue& value) {
    return value.stored ? QStringLiteral("stored") : QStringLiteral("default");
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
// its defaults would pass for the user's values.
bool readable(const UserFiles& user) {
    for (const QString& error : user.readError().split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        Complain(QStringLiteral("%1: %2").arg(user.info().prefix.folder, error));
    return user.readError().isEmpty();
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

} // namespace

int RunGet(const Options& options) {
    for (const QString& key : options.arguments)
        if (!FindSettingKey(options.section, key)) {
            Complain(QStringLiteral("%1: no key of the %2 settings").arg(key, DialogName(options.section)));
            return kRefused;
        }
    QJsonArray json;
    const int failures = ForEachPrefix(options, [&](const WinePrefix& wine) {
        const UserFiles user(wine, options.user);
        if (!readable(user)) return false;
        const QString& prefix = wine.folder;
        const QList<ShownValue> values = chosen(user.values(options.section), options.arguments);
        if (options.json) {
            json.append(jsonOf(prefix, user, options.section, values));
            return true;
        }
        if (options.prefixes.size() > 1) Print(QStringLiteral("# %1\n").arg(prefix));
        for (const ShownValue& value : values)
            Print((options.origin ? originOf(value) + QLatin1Char('\t') : QString()) + value.key + QLatin1Char('=') +
                  value.value + QLatin1Char('\n'));
        return true;
    });
    if (options.json) Print(QString::fromUtf8(QJsonDocument(json).toJson()));
    return failures ? kFailed : kAlreadySo;
}

int RunExport(const Options& options) {
    if (options.arguments.size() != 1 || options.prefixes.size() > 1) {
        Complain(QStringLiteral("export takes one FILE, and at most one --prefix"));
        return kRefused;
    }
    ProfileDocument profile;
    const int failures = ForEachPrefix(options, [&](const WinePrefix& wine) {
        const UserFiles user(wine, options.user);
        if (!readable(user)) return false;
        for (SettingSection section : kBothSections) {
            QList<ProfileDocument::KeyValue> keys;
            for (const ShownValue& value : user.values(section)) keys.append({toCp1252(value.key), toCp1252(value.value)});
            profile.setStrings(toCp1252(SectionName(section)), keys);
        }
        return true;
    });
    if (failures) return kFailed;

    const QString& file = options.arguments.first();
    if (file == QLatin1String("-")) {
        std::fwrite(profile.bytes().constData(), 1, static_cast<size_t>(profile.bytes().size()), stdout);
        return kAlreadySo;
    }
    if (ReadWholeFile(file) == profile.bytes()) return kAlreadySo;
    QString error;
    if (!WriteWholeFile(file, profile.bytes(), &error)) {
        Complain(QStringLiteral("%1: %2").arg(file, error));
        return kFailed;
    }
    return kChanged;
}

} // namespace brimo
