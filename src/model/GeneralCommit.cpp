#include "model/GeneralCommit.h"

#include "model/GeneLispCatalogue.h"
#include "model/GeneralLoad.h"

namespace brimo {

namespace {

// Row N of the sources reads the control of row N of the Lisp catalogue.
constexpr bool sourcesFollowCatalogue() {
    if (kGeneralCommitSources.size() != kGeneLispCatalogue.size()) return false;
    for (std::size_t i = 0; i < kGeneLispCatalogue.size(); ++i)
        if (kGeneralCommitSources[i].row != kGeneLispCatalogue[i].row) return false;
    return true;
}
static_assert(sourcesFollowCatalogue());

// The value that a row takes from the controls, or nothing for a group in
// which no button is selected.
std::optional<QString> valueOfRow(const CommitSource& source, const GeneralControlState& state) {
    const QString control = QLatin1String(source.control);
    switch (source.read) {
    case ControlRead::Text: return state.texts.value(control);
    case ControlRead::State: return QLatin1String(state.checkStates.value(control) == 0 ? "0" : "1");
    case ControlRead::Options:
        for (const ChoiceTest& test : kGeneralChoiceTests)
            if (test.row == source.row && state.selectedOptions.contains(QLatin1String(test.button)))
                return QString::fromLatin1(test.value);
        return std::nullopt;
    }
    return std::nullopt;
}

// What a state holds for the control of a row: a field's text, a box's
// state, or the buttons selected in a group.
QString held(const GeneralControlState& state, const CommitSource& source) {
    const QString control = QLatin1String(source.control);
    switch (source.read) {
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

void takeControl(GeneralControlState& into, const GeneralControlState& from, const CommitSource& source) {
    const QString control = QLatin1String(source.control);
    switch (source.read) {
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
    for (std::size_t i = 0; i < kGeneLispCatalogue.size(); ++i) {
        const GeneLispRow& row = kGeneLispCatalogue[i];
        const std::optional<QString> value = valueOfRow(kGeneralCommitSources[i], state);
        if (!value) continue;
        const std::optional<QString> line = GeneLispLine(row, *value);
        if (!line) continue;
        rows.append({*line, QString::fromLatin1(row.lispName), *value});
    }
    return rows;
}

std::optional<UnwritableField> FindUnwritableQuote(const GeneralControlState& state) {
    for (std::size_t i = 0; i < kGeneLispCatalogue.size(); ++i) {
        const GeneLispRow& row = kGeneLispCatalogue[i];
        const QString control = QLatin1String(kGeneralCommitSources[i].control);
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
    for (const CommitSource& source : kGeneralCommitSources)
        if (held(before, source) != held(after, source) && held(edit.edited, source) == held(edit.loaded, source)) {
            takeControl(merged.edited, after, source);
            takeControl(merged.loaded, after, source);
        }
    return merged;
}

PlannedGeneralCommit PlanGeneralCommit(CommitPlan& plan, const InstallInfo& info, const GeneralEdit& edit) {
    GeneralVariables storedNow;
    LoadGeneralVariables(plan.ini(), storedNow);
    const GeneralEdit merged = MergeStoredChanges(edit, storedNow);
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
    static_cast<CommitOutcome&>(outcome) = planned.unwritable ? CommitOutcome{false} : plan.write();
    outcome.unwritable = planned.unwritable;
    // Brimo.ini unread (a lock not had, a file that cannot be read): the
    // merge knew nothing of what is stored now.
    if (!plan.readFailed()) outcome.merged = planned.merged;
    return outcome;
}

} // namespace brimo
