#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The legends of the user's language: the table reloaded from the folder
// Zorel + "\Lang\" in the language x_lang of the general variables.

#include "model/GeneralVariables.h"
#include "model/InstallInfo.h"
#include "model/LegendTable.h"

namespace brimo {

int LoadUserLegends(LegendTable& table, const InstallInfo& info, const GeneralVariables& variables,
                    LegendFailureQuestion& question);

} // namespace brimo
