#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The commit of CGeneralForm without its window: from what the controls hold
// to the rows of Brimo_Gene.lsp and section Brimo_Gene of Brimo.ini. Each row
// reads the control of its variable (model/GeneralVariableCatalogue.h).

#include "model/GeneralVariables.h"
#include "model/InstallInfo.h"
#include "model/VariableCommit.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <optional>

namespace brimo {

// What the controls hold at the moment of the commit.
struct GeneralControlState {
    QHash<QString, QString> texts;  // by field
    QSet<QString> selectedOptions;  // the option buttons that are selected
    QHash<QString, int> checkStates; // by check box: 0 empty, 1 ticked, 2 grey
};

// The rows in catalogue order. A group with no button selected has no row:
// neither a line nor a key.
QList<CommittedRow> ComposeGeneralCommit(const GeneralControlState& state);

// A field whose text holds a double quote in a row written between double
// quotes: the quote would end the Lisp string early, so OK refuses it.
struct UnwritableField {
    QString control;     // the field
    QString key;         // its key and Lisp name
    QString comment; // what the Lisp comment calls it, in French
};

// The first such field in catalogue order, or nothing.
std::optional<UnwritableField> FindUnwritableQuote(const GeneralControlState& state);

// The general dialog at its OK: the values it loaded, its controls right
// after the load, and its controls now.
struct GeneralEdit {
    GeneralVariables loadedFrom;
    GeneralControlState loaded;
    GeneralControlState edited;
};

// What OK writes when another program may have written Brimo.ini since the
// dialog loaded it: a control whose stored value changed meanwhile, and that
// the user left as it was loaded, takes what the dialog would load now; every
// other control keeps what it holds. Where nothing changed on the disk, the
// edited controls are the controls as they stand. The edit given back starts
// from the values stored now, and counts each control that took one as loaded
// with it, so that a dialog that shows it and stays open merges anew at its
// next OK. `loadedFrom` is what Brimo.ini held when the dialog loaded, never
// the values in memory that the language switch changes.
GeneralEdit MergeStoredChanges(const GeneralEdit& edit, const GeneralVariables& storedNow);

// What the general commit adds to a plan: its rows, or the field that makes
// OK refuse it (and nothing added); and the merged edit.
struct PlannedGeneralCommit {
    QList<CommittedRow> rows;
    std::optional<UnwritableField> unwritable;
    GeneralEdit merged;
};

// Adds the general dialog's OK to `plan`, from Brimo.ini as the plan read it:
// the controls merged with what is stored now, then Brimo_Gene.lsp and
// section Brimo_Gene.
PlannedGeneralCommit PlanGeneralCommit(CommitPlan& plan, const InstallInfo& info, const GeneralEdit& edit);

struct GeneralCommitOutcome : CommitOutcome {
    std::optional<UnwritableField> unwritable; // refused before anything was written
    std::optional<GeneralEdit> merged; // what the controls become, where Brimo.ini could be read
};

// The OK of the general dialog: under the lock of the user's folder,
// Brimo.ini read anew and merged with the controls, then Brimo_Gene.lsp and
// section Brimo_Gene written together, all or nothing.
GeneralCommitOutcome CommitGeneral(const InstallInfo& info, const GeneralEdit& edit);

} // namespace brimo
