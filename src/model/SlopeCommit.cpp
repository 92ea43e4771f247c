#include "model/SlopeCommit.h"

#include "model/LispFile.h"

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

} // namespace

QList<CommittedRow> SlopeCommitRows(const SlopeControlState& state) {
    QList<CommittedRow> rows;
    for (const SlopeRow& row : kSlopeRows) {
        if (!holds(row.condition, state)) continue;
        const QString value = row.fixedValue ? QString::fromLatin1(row.fixedValue) : state.texts[row.textIndex];
        const QString name = QString::fromLatin1(row.lispName);
        rows.append({ValueLine(row.form, name, value, QString::fromUtf8(row.closing)),
                     QString::fromLatin1(row.key), value});
    }
    return rows;
}

CommitOutcome CommitSlopeVariables(const InstallInfo& info, const SlopeControlState& state) {
    return CommitVariables(TalusLispPath(info), BrimoIniPath(info), QStringLiteral("Brimo_Talus"),
                           SlopeCommitRows(state));
}

} // namespace brimo
