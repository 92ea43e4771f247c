#include "model/SlopeCommit.h"

#include "model/LispFile.h"
#include "model/OfficeStandard.h"

namespace brimo {

namespace {

enum class RowCondition { Check1Ticked, Check2Ticked, Option1Chosen, Option2Chosen, Always };

struct SlopeRow {
    RowCondition condition;
    const char* lispName;
    LispLineForm form;
    const char* fixedValue; // the value of a conditional row
    int textIndex;          // otherwise the field Text1..Text6 (0..5)
    const char* closing;    // UTF-8
    const char* key;
};

constexpr const char* kDrawingChoice = ") ;Choix du dessin final (polyligne ou points)";
constexpr const char* kDrawingType = ") ;Type de dessin du talus (2 ou 3 pour 2d ou 3d)";

using enum RowCondition;
constexpr auto Quoted = LispLineForm::Quoted;
constexpr auto Numeric = LispLineForm::Numeric;

constexpr SlopeRow kSlopeRows[] = {
    {Check1Ticked, "QZ_asp_dess", Quoted, "polyligne", -1, kDrawingChoice, "x_QZ_asp_dess"},
    {Check2Ticked, "QZ_asp_dess", Quoted, "points", -1, kDrawingChoice, "x_QZ_asp_dess"},
    {Option1Chosen, "QZ_des_tal", Numeric, "2", -1, kDrawingType, "x_QZ_des_tal"},
    {Option2Chosen, "QZ_des_tal", Numeric, "3", -1, kDrawingType, "x_QZ_des_tal"},
    {Always, "QZ_tal_dh", Numeric, nullptr, 0, ") ;Talus dist horiz", "x_QZ_tal_dh"},
    {Always, "QZ_tal_dv", Numeric, nullptr, 1, ") ;Talus dist vert", "x_QZ_tal_dv"},
    {Always, "QZ_tal_max", Numeric, nullptr, 2, ") ;Long initial du talus", "x_QZ_tal_max"},
    {Always, "QZ_rech_360", Numeric, nullptr, 3, ") ;Nbr de rech pour 360 degres", "x_QZ_rech_360"},
    {Always, "QZ_ecart_pts", Numeric, nullptr, 4, ") ;Ecart entre les recherches", "x_QZ_ecart_pts"},
    {Always, "QZ_fact_flch", Numeric, nullptr, 5, ") ;Facteur d'échelle des flèches de direction", "x_QZ_fact_flch"},
};

bool ofKey(const SlopeRow& row, QAnyStringView key) {
    return QAnyStringView::compare(key, QLatin1String(row.key), Qt::CaseInsensitive) == 0;
}

bool holds(RowCondition condition, const SlopeControlState& state) {
    switch (condition) {
    case Check1Ticked: return state.check1Ticked;
    case Check2Ticked: return state.check2Ticked;
    case Option1Chosen: return !state.option2Chosen;
    case Option2Chosen: return state.option2Chosen;
    case Always: break;
    }
    return true;
}

QString valueOf(const SlopeRow& row, const SlopeControlState& state) {
    return row.fixedValue ? QString::fromLatin1(row.fixedValue) : state.texts[row.textIndex];
}

// Makes the condition of a row hold, and that of its pair fail.
void makeHold(RowCondition condition, SlopeControlState& state) {
    switch (condition) {
    case Check1Ticked:
    case Check2Ticked:
        state.check1Ticked = condition == Check1Ticked;
        state.check2Ticked = condition == Check2Ticked;
        break;
    case Option1Chosen:
    case Option2Chosen: state.option2Chosen = condition == Option2Chosen; break;
    case Always: break;
    }
}

} // namespace

QStringList SlopeKeys() {
    QStringList keys;
    for (const SlopeRow& row : kSlopeRows)
        if (!keys.contains(QLatin1String(row.key))) keys.append(QLatin1String(row.key));
    return keys;
}

QStringList SlopeChoices(QAnyStringView key) {
    QStringList choices;
    for (const SlopeRow& row : kSlopeRows)
        if (ofKey(row, key) && row.fixedValue) choices.append(QLatin1String(row.fixedValue));
    return choices;
}

QString SlopeValue(const SlopeControlState& state, QAnyStringView key) {
    for (const SlopeRow& row : kSlopeRows)
        if (ofKey(row, key) && holds(row.condition, state)) return valueOf(row, state);
    return {};
}

void SetSlopeValue(SlopeControlState& state, QAnyStringView key, const QString& value) {
    for (const SlopeRow& row : kSlopeRows) {
        if (!ofKey(row, key)) continue;
        if (!row.fixedValue) state.texts[row.textIndex] = value;
        else if (value == QLatin1String(row.fixedValue)) makeHold(row.condition, state);
    }
}

QString SlopeLispName(QAnyStringView key) {
    for (const SlopeRow& row : kSlopeRows)
        if (ofKey(row, key)) return QLatin1String(row.lispName);
    return {};
}

QStringList SlopeKeyControls(QAnyStringView key) {
    QStringList controls;
    for (const SlopeRow& row : kSlopeRows) {
        if (!ofKey(row, key)) continue;
        switch (row.condition) {
        case Check1Ticked: controls.append(QStringLiteral("Check1")); break;
        case Check2Ticked: controls.append(QStringLiteral("Check2")); break;
        case Option1Chosen: controls.append(QStringLiteral("Option1")); break;
        case Option2Chosen: controls.append(QStringLiteral("Option2")); break;
        case Always: controls.append(QStringLiteral("Text%1").arg(row.textIndex + 1)); break;
        }
    }
    return controls;
}

QList<CommittedRow> SlopeCommitRows(const SlopeControlState& state) {
    QList<CommittedRow> rows;
    for (const SlopeRow& row : kSlopeRows) {
        if (!holds(row.condition, state)) continue;
        const QString value = valueOf(row, state);
        const QString name = QString::fromLatin1(row.lispName);
        rows.append({ValueLine(row.form, name, value, QString::fromUtf8(row.closing)),
                     QString::fromLatin1(row.key), value});
    }
    return rows;
}

QList<CommittedRow> PlanSlopeCommit(CommitPlan& plan, const InstallInfo& info, const SlopeControlState& state) {
    // The keys that the office standard locks take its values.
    SlopeControlState held = state;
    if (info.standard) ApplyEdits(held, info.standard->edits(SettingSection::Slope));
    const QList<CommittedRow> rows = SlopeCommitRows(held);
    plan.add(TalusLispPath(info), QLatin1String(kSlopeSection), rows);
    return rows;
}

CommitOutcome CommitSlopeVariables(const InstallInfo& info, const SlopeControlState& state) {
    const UserFolderLock lock(info.prefix, BrimoIniPath(info));
    CommitPlan plan(lock);
    PlanSlopeCommit(plan, info, state);
    return plan.write();
}

} // namespace brimo
