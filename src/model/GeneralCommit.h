#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The commit of CGeneralForm without its window: from what the controls hold
// to the rows of Brimo_Gene.lsp and section Brimo_Gene of Brimo.ini.

#include "model/GeneralVariables.h"
#include "model/InstallInfo.h"
#include "model/VariableCommit.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <array>
#include <optional>

namespace brimo {

// What the commit reads of a control.
enum class ControlRead {
    Text,    // the text of a field
    Options, // which button of an option group is selected
    State,   // the state of a check box
};

// The control that each row of the Lisp catalogue reads, row N at index N - 1.
struct CommitSource {
    int row;
    const char* control; // a field, a check box, or the name of an option group
    ControlRead read;
};

inline constexpr std::array<CommitSource, 51> kGeneralCommitSources = {{
    {1, "Val0", ControlRead::Text},
    {2, "Val1", ControlRead::Text},
    {3, "Val2", ControlRead::Text},
    {4, "Val3", ControlRead::Text},
    {5, "Val4", ControlRead::Text},
    {6, "Option1", ControlRead::Options},
    {7, "Option2", ControlRead::Options},
    {8, "Val5", ControlRead::Text},
    {9, "Val6", ControlRead::Text},
    {10, "Val7", ControlRead::Text},
    {11, "Val8", ControlRead::Text},
    {12, "Val9", ControlRead::Text},
    {13, "Val10", ControlRead::Text},
    {14, "Val11", ControlRead::Text},
    {15, "Val12", ControlRead::Text},
    {16, "Val13", ControlRead::Text},
    {17, "Val14", ControlRead::Text},
    {18, "Text4", ControlRead::Text},
    {19, "Text19", ControlRead::Text},
    {20, "Val15", ControlRead::Text},
    {21, "Val16", ControlRead::Text},
    {22, "Val17", ControlRead::Text},
    {23, "Val18", ControlRead::Text},
    {24, "Val19", ControlRead::Text},
    {25, "Val20", ControlRead::Text},
    {26, "Text1", ControlRead::Text},
    {27, "Text20", ControlRead::Text},
    {28, "Text21", ControlRead::Text},
    {29, "Text22", ControlRead::Text},
    {30, "Text23", ControlRead::Text},
    {31, "Text24", ControlRead::Text},
    {32, "Text25", ControlRead::Text},
    {33, "Text26", ControlRead::Text},
    {34, "Text2", ControlRead::Text},
    {35, "Text5", ControlRead::Text},
    {36, "Text6", ControlRead::Text},
    {37, "Text7", ControlRead::Text},
    {38, "Text8", ControlRead::Text},
    {39, "Text9", ControlRead::Text},
    {40, "Text10", ControlRead::Text},
    {41, "Option4", ControlRead::Options},
    {42, "Option5", ControlRead::Options},
    {43, "Check1", ControlRead::State},
    {44, "Check2", ControlRead::State},
    {45, "Check3", ControlRead::State},
    {46, "Text11", ControlRead::Text},
    {47, "Text12", ControlRead::Text},
    {48, "Text13", ControlRead::Text},
    {49, "Text14", ControlRead::Text},
    {50, "Text18", ControlRead::Text},
    {51, "Text15", ControlRead::Text},
}};

// The buttons of the option rows in the order in which they are tested; the
// first one selected gives the row its value.
struct ChoiceTest {
    int row;
    const char* button;
    const char* value;
};

inline constexpr std::array<ChoiceTest, 14> kGeneralChoiceTests = {{
    {6, "Option1(0)", "0"},
    {6, "Option1(1)", "1"},
    {6, "Option1(2)", "2"},
    {7, "Option2(0)", "0"},
    {7, "Option2(1)", "1"},
    {7, "Option2(2)", "2"},
    {41, "Option4(3)", "0"},
    {41, "Option4(5)", "1"},
    {41, "Option4(4)", "2"},
    {41, "Option4(6)", "3"},
    {42, "Option5(0)", "FRA"},
    {42, "Option5(1)", "ENG"},
    {42, "Option5(2)", "DEU"},
    {42, "Option5(3)", "ITA"},
}};

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
