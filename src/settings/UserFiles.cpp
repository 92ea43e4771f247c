#include "settings/UserFiles.h"

#include "model/FailureText.h"
#include "model/OfficeStandard.h"
#include "model/GeneralLoad.h"
#include "model/SlopeOpening.h"
#include "model/VariableCommit.h"
#include "platform/Cp1252.h"
#include "platform/ProfileFile.h"
#include "platform/WindowsPaths.h"
#include "settings/Commands.h"

#include <algorithm>

namespace brimo {

UserFiles::UserFiles(const WinePrefix& prefix, const std::optional<QString>& user,
                     std::shared_ptr<const OfficeStandard> standard) {
    Failure zorelIni, brimoIni;
    LoadInstallInfo(prefix, info_, &zorelIni);
    info_.standard = std::move(standard);
    if (zorelIni) zorelIniError_ = QStringLiteral("%1: %2").arg(ZorelIniPath(), FailureText(zorelIni));
    if (user) info_.actuel = *user == QLatin1String("Default") ? QString() : *user;
    lock_.emplace(prefix, BrimoIniPath(info_));
    ini_ = LoadProfile(prefix, BrimoIniPath(info_), &brimoIni);
    LoadGeneralVariables(ini_, variables_, info_.standard.get());
    const QString brimoError = brimoIni ? QStringLiteral("%1: %2").arg(BrimoIniPath(info_), FailureText(brimoIni)) : QString();
    for (const QString& error : {zorelIniError_, brimoError})
        if (!error.isEmpty()) readError_ += (readError_.isEmpty() ? QString() : QStringLiteral("\n")) + error;
}

QString UserFiles::storedText(SettingSection section, const QString& key) const {
    return ReadProfileString(ini_, SectionName(section), key);
}

ValueOrigin UserFiles::originOf(SettingSection section, const QString& key) const {
    const OfficeKey* office = info_.standard ? info_.standard->find(section, key) : nullptr;
    if (office && office->locked) return ValueOrigin::Locked;
    if (!storedText(section, key).isEmpty()) return ValueOrigin::Stored;
    return office ? ValueOrigin::Office : ValueOrigin::Default;
}

SlopeControlState UserFiles::storedSlopeState() const {
    SlopeControlState state = SlopeOpeningWith(info_.standard.get());
    for (const SettingKey& key : SettingKeys(SettingSection::Slope)) {
        const QString stored = storedText(SettingSection::Slope, key.key);
        if (stored.isEmpty() || (info_.standard && info_.standard->locked(SettingSection::Slope, key.key))) continue;
        // Kept as stored, as the general dialog keeps its texts; one that a
        // field would refuse leaves the form's.
        QString error;
        if (CheckedValue(key, stored, &error)) SetSlopeValue(state, key.key, stored);
    }
    return state;
}

QList<ShownValue> UserFiles::values(SettingSection section) const {
    QList<ShownValue> shown;
    const SlopeControlState slope = storedSlopeState();
    for (const SettingKey& key : SettingKeys(section))
        shown.append({key.key, section == SettingSection::General ? variables_.text(key.key) : SlopeValue(slope, key.key),
                      originOf(section, key.key)});
    return shown;
}

QList<ShownValue> UserFiles::committedValues(SettingSection section) const {
    if (section == SettingSection::Slope) return values(section);
    QList<ShownValue> committed;
    for (const CommittedRow& row : ComposeGeneralCommit(LoadedControlState(variables_)))
        committed.append({FindSettingKey(section, row.key) ? FindSettingKey(section, row.key)->key : row.key, row.value,
                          originOf(section, row.key)});
    return committed;
}

std::optional<QList<CommittedRow>> UserFiles::planCommit(CommitPlan& plan, SettingSection section,
                                                         const QList<Edit>& edits, QString* error) const {
    if (!readError_.isEmpty()) {
        *error = readError_;
        return std::nullopt;
    }
    if (section == SettingSection::Slope) {
        SlopeControlState state = storedSlopeState();
        ApplyEdits(state, edits);
        return PlanSlopeCommit(plan, info_, state);
    }
    // The dialog reads at most 254 characters of a stored text and its OK
    // writes what it read: a longer text is cut unless a value is given.
    for (const SettingKey& key : SettingKeys(section)) {
        const qsizetype length = ini_.getString(toCp1252(SectionName(section)), toCp1252(key.key), 1 << 30).size();
        if (length > 254 && std::none_of(edits.begin(), edits.end(), [&](const Edit& e) { return e.key == &key; }))
            Complain(SettingsText::tr("%1: %2: the stored text of %3 characters is cut to 254, as the dialog reads it")
                         .arg(info_.prefix.name(), key.key)
                         .arg(length));
    }
    GeneralEdit edit{variables_, LoadedControlState(variables_), {}};
    edit.edited = edit.loaded;
    ApplyEdits(edit.edited, edits);
    PlannedGeneralCommit planned = PlanGeneralCommit(plan, info_, edit);
    if (const std::optional<UnwritableField>& field = planned.unwritable) {
        *error = SettingsText::tr("%1: the stored text holds a double quote, which would end its Lisp string; "
                                          "give the key a value")
                     .arg(FindSettingKey(section, field->key) ? FindSettingKey(section, field->key)->key : field->key);
        return std::nullopt;
    }
    return planned.rows;
}

} // namespace brimo
