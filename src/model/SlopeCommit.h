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
#include <QString>

#include <array>

namespace brimo {

// The controls of CParamRechTalus as the commit reads them.
struct SlopeControlState {
    bool check1Ticked = false; // Check1: polyligne
    bool check2Ticked = false; // Check2: points
    bool option2Chosen = false; // Option2 (3D); Option1 (2D) otherwise
    std::array<QString, 6> texts; // Text1 to Text6, as they stand
};

// The rows whose condition holds, in the order they are written.
QList<CommittedRow> SlopeCommitRows(const SlopeControlState& state);

// Writes those rows to Brimo_Talus.lsp and section Brimo_Talus of Brimo.ini,
// all or nothing.
CommitOutcome CommitSlopeVariables(const InstallInfo& info, const SlopeControlState& state);

} // namespace brimo
