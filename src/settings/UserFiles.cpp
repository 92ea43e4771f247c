#include "settings/UserFiles.h"

#include "model/GeneralLoad.h"
#include "model/SlopeOpening.h"
#include "model/VariableCommit.h"
#include "platform/ProfileFile.h"

namespace brimo {

namespace {

// The value of a slope key at the dialog's opening.
QString slopeOpeningValue(const SettingKey& key) {
    if (key.control == QLatin1String("Check1"))
        return QLatin1String(kSlopeOpeningCheck1 ? "polyligne" : kSlopeOpeningCheck2 ? "points" : "");
    if (key.control == QLatin1String("Option1")) return QLatin1String(kSlopeOpeningOption2 ? "3" : "2");
    return QString::fromLatin1(kSlopeOpeningTexts[static_cast<std::size_t>(key.control.mid(4).toInt() - 1)]);
}

} // namespace

UserFiles::UserFiles(const std::optional<QString>& user) {
    LoadInstallInfo(info_);
    if (user) info_.actuel = *user == QLatin1String("Default") ? QString() : *user;
    lock_.emplace(BrimoIniPath(info_));
    ini_ = LoadProfile(BrimoIniPath(info_));
    LoadGeneralVariables(info_, variables_);
}

QString UserFiles::storedText(SettingSection section, const QString& key) const {
    return ReadProfileString(ini_, SectionName(section), key);
}

QList<ShownValue> UserFiles::values(SettingSection section) const {
    QList<ShownValue> shown;
    for (const SettingKey& key : SettingKeys(section)) {
        const QString stored = storedText(section, key.key);
        const bool isStored = !stored.isEmpty();
        if (section == SettingSection::General) shown.append({key.key, variables_.text(key.key), isStored});
        else shown.append({key.key, isStored ? stored : slopeOpeningValue(key), isStored});
    }
    return shown;
}

std::optional<QList<CommittedRow>> UserFiles::commitRows(SettingSection section, const QList<Edit>& edits,
                                                         QString* error) const {
    if (section == SettingSection::Slope) {
        SlopeControlState state = SlopeOpeningState();
        ApplyEdits(state, edits);
        return SlopeCommitRows(state);
    }
    GeneralControlState state = LoadedControlState(variables_);
    ApplyEdits(state, edits);
    if (const std::optional<UnwritableField> field = FindUnwritableQuote(state)) {
        *error = QStringLiteral("%1: the stored text holds a double quote, which would end its Lisp string; "
                                "give the key a value")
                     .arg(FindSettingKey(section, field->key) ? FindSettingKey(section, field->key)->key : field->key);
        return std::nullopt;
    }
    return ComposeGeneralCommit(state);
}

void UserFiles::addTo(CommitPlan& plan, SettingSection section, const QList<CommittedRow>& rows) const {
    const QString lisp = section == SettingSection::General ? GeneLispPath(info_) : TalusLispPath(info_);
    plan.add(lisp, SectionName(section), rows);
}

} // namespace brimo
