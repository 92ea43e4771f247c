#pragma once
// What the user is told when a commit cannot write its files.

#include "store/VariableCommit.h"

namespace brimo {

class MainModule;

// One message naming the file and the reason, then the end of the process
// with a non-zero status. Nothing of either file has changed by then.
void ReportCommitFailureAndEnd(MainModule& module, const CommitOutcome& outcome);

} // namespace brimo
