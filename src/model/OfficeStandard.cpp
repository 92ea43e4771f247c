#include "model/OfficeStandard.h"

#include "model/SlopeOpening.h"
#include "platform/Cp1252.h"
#include "platform/FileAccess.h"
#include "platform/ProfileDocument.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

#ifndef BRIMO_STANDARD_FILE
#define BRIMO_STANDARD_FILE "/etc/brimo/standard.ini"
#endif

namespace brimo {

namespace {

constexpr char kLockedSection[] = "Locked";
constexpr SettingSection kSections[] = {SettingSection::General, SettingSection::Slope};

// The line (from 1) of a key in a section, or of the section's header with
// no key; 0 when neither is found.
int lineOf(const QByteArray& bytes, QByteArrayView section, QByteArrayView key = {}) {
    bool inSection = false;
    int number = 0, header = 0;
    for (const QByteArray& line : bytes.split('\n')) {
        ++number;
        const QByteArrayView text = QByteArrayView(line).trimmed();
        if (text.startsWith('[')) {
            const qsizetype close = text.lastIndexOf(']');
            inSection = close > 0 && profileNamesEqual(text.sliced(1, close - 1).trimmed(), section);
            if (inSection && !header) header = number;
            if (inSection && key.isEmpty()) return number;
            continue;
        }
        const qsizetype equals = text.indexOf('=');
        if (inSection && equals > 0 && profileNamesEqual(text.first(equals).trimmed(), key)) return number;
    }
    return header;
}

const SettingKey* anyKey(const QString& name, SettingSection* section) {
    for (SettingSection s : kSections)
        if (const SettingKey* key = FindSettingKey(s, name)) return *section = s, key;
    return nullptr;
}

} // namespace

const OfficeKey* OfficeStandard::find(SettingSection section, const QString& key) const {
    for (const OfficeKey& office : keys)
        if (office.section == section && office.key->key.compare(key, Qt::CaseInsensitive) == 0) return &office;
    return nullptr;
}

bool OfficeStandard::locked(SettingSection section, const QString& key) const {
    const OfficeKey* office = find(section, key);
    return office && office->locked;
}

QList<Edit> OfficeStandard::edits(SettingSection section, bool all) const {
    QList<Edit> edits;
    for (const OfficeKey& office : keys)
        if (office.section == section && (all || office.locked)) edits.append({office.key, office.value});
    return edits;
}

QString OfficeStandardPath() {
    const QString named = qEnvironmentVariable("BRIMO_STANDARD");
    return named.isEmpty() ? QStringLiteral(BRIMO_STANDARD_FILE) : named;
}

LoadedStandard LoadOfficeStandard(const QString& file) {
    LoadedStandard loaded{file, nullptr, std::nullopt};
    // No file at the path is the common case: one failed stat, nothing more.
    if (!QFileInfo::exists(file)) return loaded;
    Failure failure;
    const std::optional<QByteArray> bytes = ReadWholeFile(file, &failure);
    if (!bytes) {
        if (failure.kind != FailureKind::Missing) loaded.problem = StandardProblem{StandardProblem::Kind::Unreadable, 0, {}, {}, failure};
        return loaded;
    }
    const ProfileDocument profile(*bytes);
    auto standard = std::make_shared<OfficeStandard>();
    standard->file = file;
    const auto refuse = [&](StandardProblem::Kind kind, QByteArrayView section, const QByteArray& key, const QByteArray& value) {
        loaded.problem = StandardProblem{kind, lineOf(*bytes, section, key), fromCp1252(key), fromCp1252(value), {}};
        return loaded;
    };
    for (SettingSection section : kSections) {
        const QByteArray name = toCp1252(SectionName(section));
        for (const QByteArray& keyName : profile.keyNames(name)) {
            const QByteArray given = profile.getString(name, keyName);
            const SettingKey* key = FindSettingKey(section, fromCp1252(keyName));
            if (!key) return refuse(StandardProblem::Kind::NotAKey, name, keyName, given);
            QString error;
            const std::optional<QString> value = CheckedValue(*key, fromCp1252(given), &error);
            if (!value) return refuse(StandardProblem::Kind::BadValue, name, keyName, given);
            // A key given twice: the first wins, as in every profile file.
            if (!standard->find(section, key->key)) standard->keys.append({key, section, *value, false});
        }
    }
    for (const QByteArray& keyName : profile.keyNames(kLockedSection)) {
        const QByteArray flag = profile.getString(kLockedSection, keyName);
        SettingSection section = SettingSection::General;
        const SettingKey* key = anyKey(fromCp1252(keyName), &section);
        if (!key) return refuse(StandardProblem::Kind::NotAKey, kLockedSection, keyName, flag);
        if (flag != "0" && flag != "1") return refuse(StandardProblem::Kind::BadLock, kLockedSection, keyName, flag);
        if (flag == "0") continue;
        const auto given = std::find_if(standard->keys.begin(), standard->keys.end(), [&](const OfficeKey& office) { return office.key == key; });
        if (given != standard->keys.end()) given->locked = true;
        // A locked key that the office gives no value locks the default.
        else standard->keys.append({key, section, DefaultText(section, key->key), true});
    }
    if (!standard->keys.isEmpty()) loaded.standard = std::move(standard);
    return loaded;
}

QString StandardProblemText(const QString& file, const StandardProblem& problem) {
    QString reason;
    switch (problem.kind) {
    case StandardProblem::Kind::Unreadable: reason = FailureText(problem.failure); break;
    case StandardProblem::Kind::NotAKey:
        reason = QCoreApplication::translate("OfficeStandard", "%1 is no key of Brimo's settings").arg(problem.key);
        break;
    case StandardProblem::Kind::BadLock:
        reason = QCoreApplication::translate("OfficeStandard", "%1=%2: a locked key takes 1, an unlocked one 0")
                     .arg(problem.key, problem.value);
        break;
    case StandardProblem::Kind::BadValue: {
        SettingSection section = SettingSection::General;
        CheckedValue(*anyKey(problem.key, &section), problem.value, &reason);
        break;
    }
    }
    const QString where = problem.line ? QCoreApplication::translate("OfficeStandard", "%1, line %2").arg(file).arg(problem.line) : file;
    return QCoreApplication::translate("OfficeStandard", "%1: %2; the office standard is ignored").arg(where, reason);
}

QString LockedByStandardText(const OfficeStandard& standard) {
    return QCoreApplication::translate("OfficeStandard", "The office standard (%1) fixes this value.").arg(standard.file);
}

SlopeControlState SlopeOpeningWith(const OfficeStandard* standard) {
    SlopeControlState state = SlopeOpeningState();
    if (standard) ApplyEdits(state, standard->edits(SettingSection::Slope, true));
    return state;
}

} // namespace brimo
