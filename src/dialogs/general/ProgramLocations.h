#pragma once
// The tab "Programmes": six buttons, each opening the file dialog on the
// location field beside it, and the translations between the dialog and the
// Windows-style texts that the fields hold.

#include "model/LegendNumbers.h"
#include "platform/WindowsPaths.h"

#include <QString>

#include <array>

namespace brimo {

// One button of the family Command1_Click to Command6_Click.
struct ProgramLocation {
    const char* button;
    const char* field;
    int titleLegend; // the dialog's title
};

inline constexpr std::array<ProgramLocation, 6> kProgramLocations = {{
    {"Command1", "Text11", Legend::ExplorerDialogTitle},
    {"Command2", "Text12", Legend::CalculatorDialogTitle},
    {"Command3", "Text13", Legend::WordPadDialogTitle},
    {"Command4", "Text14", Legend::NotepadDialogTitle},
    {"Command5", "Text15", Legend::PersonalDialogTitle},
    {"Command6", "Text18", Legend::AcrobatDialogTitle},
}};

// The filter shared by the six dialogs.
inline constexpr int kProgramFilterLegend = Legend::ProgramFilter;

// A Windows filter ("Programs (*.exe)|*.exe|All (*.*)|*.*": label and
// patterns in turn, patterns separated by ';') in the form of the toolkit's
// file dialog ("Programs (*.exe);;All (*.*)"). A label that does not
// end in its patterns gets them in parentheses; a label without
// patterns is dropped.
QString ToolkitFileFilter(const QString& windowsFilter);

// The text a field takes for a file chosen in the dialog: a file inside the
// Wine prefix's drives as a Windows path ("C:\..."), any other file as its
// native path.
QString FieldTextForChosenFile(const WinePrefix& prefix, const QString& nativePath);

} // namespace brimo
