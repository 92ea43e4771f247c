#pragma once
// The sentences of the failures of files and folders, in the program's
// language (ProgramLanguage) or in English for the standard error. The
// dialogs' boxes and brimo-settings' messages say them alike.

#include "platform/Failure.h"

#include <QString>

namespace brimo {

enum class Wording { Translated, English };

// What went wrong, as a clause ("no room is left on the disk"), followed by
// the system's own words in parentheses where the kind says less.
QString FailureText(const Failure& failure, Wording wording = Wording::Translated);

} // namespace brimo
