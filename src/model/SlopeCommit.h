#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// What the OK of the slope-toe search dialog writes: ten rows, each written
// only when its condition holds, as a line of Brimo_Talus.lsp and a key of
// section Brimo_Talus of Brimo.ini.

#include "model/InstallInfo.h"
#include "model/VariableCommit.h"

#include <QList>
#include <QStringList>
#include <QString>

#include <array>

namespace brimo {

// The section of Brimo.ini that the slope dialog writes.
inline constexpr char kSlopeSection[] = "Brimo_Talus";

// The controls of CParamRechTalus as the commit reads them.
struct SlopeControlState {
    bool check1Ticked = false; // Check1: polyligne
    bool check2Ticked = false; // Check2: points
    bool option2Chosen = false; // Option2 (3D); Option1 (2D) otherwise
    std::array<QString, 6> texts; // Text1 to Text6, as they stand
};

// The rows whose condition holds, in the order they are written.
QList<CommittedRow> SlopeCommitRows(const SlopeControlState& state);

// The keys of the rows, each once, in the order of the rows.
QStringList SlopeKeys();
// The values of a key written by a row with a condition (x_QZ_asp_dess:
// "polyligne", "points"), in the order of the rows; none for a field's key.
QStringList SlopeChoices(QAnyStringView key);
// The value that the controls give a key: that of its row whose condition
// holds, or the field's text; empty when none holds.
QString SlopeValue(const SlopeControlState& state, QAnyStringView key);
// Sets the controls so that the key takes `value`: one of its choices
// ticks or chooses the control of that row (and clears its pair), a field
// takes the text.
void SetSlopeValue(SlopeControlState& state, QAnyStringView key, const QString& value);

// The name of a key's Lisp variable ("QZ_tal_dh" of "x_QZ_tal_dh").
QString SlopeLispName(QAnyStringView key);

// The controls that set a key: the pair of check boxes or of option buttons
// of its rows, or its field.
QStringList SlopeKeyControls(QAnyStringView key);

// Adds the rows to `plan`: Brimo_Talus.lsp and section Brimo_Talus.
QList<CommittedRow> PlanSlopeCommit(CommitPlan& plan, const InstallInfo& info, const SlopeControlState& state);

// Writes those rows to Brimo_Talus.lsp and section Brimo_Talus of Brimo.ini,
// all or nothing, under the lock of the user's folder.
CommitOutcome CommitSlopeVariables(const InstallInfo& info, const SlopeControlState& state);

} // namespace brimo
