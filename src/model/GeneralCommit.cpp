#include "model/GeneralCommit.h"

#include "model/GeneLispCatalogue.h"
#include "model/GeneralLoad.h"
#include "model/OfficeStandard.h"

namespace brimo {

namespace {

bool isOf(const GeneralChoice& choice, const GeneralVariableRow& variable) { return SameName(choice.key, variable.key); }

// The value that a variable takes from its control, or nothing for a group
// in which no button is selected.
std::optional<QString> valueOf(const GeneralVariableRow& variable, const GeneralControlState& state) {
    const QString control = QLatin1String(variable.field);
    switch (ReadOf(variable.type)) {
    case ControlRead::Text: return state.texts.value(control);
    case ControlRead::State: return QLatin1String(state.checkStates.value(control) == 0 ? "0" : "1");
    case ControlRead::Options:
        for (const GeneralChoice& choice : kGeneralChoices)
            if (isOf(choice, variable) && state.selectedOptions.contains(QLatin1String(choice.button)))
                return QString::fromLatin1(choice.value);
        return std::nullopt;
    }
    return std::nullopt;
}

// What a state holds for the control of a variable: a field's text, a box's
// state, or the buttons selected in a group.
QString held(const GeneralControlState& state, const GeneralVariableRow& variable) {
    const QString control = QLatin1String(variable.field);
    switch (ReadOf(variable.type)) {
    case ControlRead::Text: return state.texts.value(control);
    case ControlRead::State: return QString::number(state.checkStates.value(control));
    case ControlRead::Options: break;
    }
    QStringList selected;
    for (const QString& button : state.selectedOptions)
        if (OptionGroupOf(button) == control) selected.append(button);
    selected.sort();
    return selected.join(QLatin1Char(' '));
}

void takeControl(GeneralControlState& into, const GeneralControlState& from, const GeneralVariableRow& variable) {
    const QString control = QLatin1String(variable.field);
    switch (ReadOf(variable.type)) {
    case ControlRead::Text: into.texts.insert(control, from.texts.value(control)); return;
    case ControlRead::State: into.checkStates.insert(control, from.checkStates.value(control)); return;
    case ControlRead::Options: break;
    }
    erase_if(into.selectedOptions, [&](const QString& button) { return OptionGroupOf(button) == control; });
    for (const QString& button : from.selectedOptions)
        if (OptionGroupOf(button) == control) into.selectedOptions.insert(button);
}

bool writtenBetweenQuotes(const GeneLispRow& row) {
    return row.form == LispLineForm::Quoted || row.form == LispLineForm::Path;
}

} // namespace

QList<CommittedRow> ComposeGeneralCommit(const GeneralControlState& state) {
    QList<CommittedRow> rows;
    for (const GeneLispRow& row : kGeneLispCatalogue) {
        const std::optional<QString> value = valueOf(VariableOf(row), state);
        if (!value) continue;
        const std::optional<QString> line = GeneLispLine(row, *value);
        if (!line) continue;
        rows.append({*line, QString::fromLatin1(row.lispName), *value});
    }
    return rows;
}

std::optional<UnwritableField> FindUnwritableQuote(const GeneralControlState& state) {
    for (const GeneLispRow& row : kGeneLispCatalogue) {
        const QString control = QLatin1String(VariableOf(row).field);
        if (!writtenBetweenQuotes(row) || !state.texts.value(control).contains(QLatin1Char('"'))) continue;
        // The comment of the row, behind ") ;", says what the field holds.
        const QString comment = QString::fromUtf8(row.closing).section(QLatin1Char(';'), 1);
        return UnwritableField{control, QString::fromLatin1(row.lispName), comment};
    }
    return std::nullopt;
}

GeneralEdit MergeStoredChanges(const GeneralEdit& edit, const GeneralVariables& storedNow) {
    const GeneralControlState before = LoadedControlState(edit.loadedFrom);
    const GeneralControlState after = LoadedControlState(storedNow);
    GeneralEdit merged{storedNow, edit.loaded, edit.edited};
    for (const GeneralVariableRow& variable : kGeneralVariableCatalogue)
        if (held(before, variable) != held(after, variable) && held(edit.edited, variable) == held(edit.loaded, variable)) {
            takeControl(merged.edited, after, variable);
            takeControl(merged.loaded, after, variable);
        }
    return merged;
}

PlannedGeneralCommit PlanGeneralCommit(CommitPlan& plan, const InstallInfo& info, const GeneralEdit& edit) {
    GeneralVariables storedNow;
    LoadGeneralVariables(plan.ini(), storedNow, info.standard.get());
    GeneralEdit merged = MergeStoredChanges(edit, storedNow);
    // The keys that the office standard locks take its values, whatever the
    // controls or the file held.
    if (info.standard) ApplyEdits(merged.edited, info.standard->edits(SettingSection::General));
    if (std::optional<UnwritableField> field = FindUnwritableQuote(merged.edited)) return {{}, field, merged};
    const QList<CommittedRow> rows = ComposeGeneralCommit(merged.edited);
    plan.add(GeneLispPath(info), QLatin1String(kGeneralSection), rows);
    return {rows, std::nullopt, merged};
}

GeneralCommitOutcome CommitGeneral(const InstallInfo& info, const GeneralEdit& edit) {
    const UserFolderLock lock(info.prefix, BrimoIniPath(info));
    CommitPlan plan(lock);
    GeneralCommitOutcome outcome;
    const PlannedGeneralCommit planned = PlanGeneralCommit(plan, info, edit);
    static_cast<CommitOutcome&>(outcome) = planned.unwritable ? CommitOutcome{false, {}, {}, false} : plan.write();
    outcome.unwritable = planned.unwritable;
    // Brimo.ini unread (a lock not had, a file that cannot be read): the
    // merge knew nothing of what is stored now.
    if (!plan.readFailed()) outcome.merged = planned.merged;
    return outcome;
}

} // namespace brimo
