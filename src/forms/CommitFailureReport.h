#pragma once
// Window kit (src/forms): what every form uses and nothing that knows a
// particular form; it sees the model and the platform.
//
// What the user is told when a commit cannot write its files.

#include "forms/BrimoForm.h"
#include "forms/Navigator.h"
#include "model/GeneralCommit.h"

namespace brimo {

// One message in the program's language naming the file and the reason,
// then the end of the process
// with a non-zero status. Nothing of either file has changed by then. When
// another program was writing the files, the dialog stays open instead, with
// its edits, so that OK can be pressed again.
void ReportCommitFailure(BrimoForm& form, Navigator& navigator, const CommitOutcome& outcome);

// The refusal of a field whose double quote would end its Lisp string,
// naming the field by the caption that the user sees beside it.
QString UnwritableQuoteMessage(const QString& caption);

} // namespace brimo
