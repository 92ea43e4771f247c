#pragma once
// The one word of the command line that names the dialog to open.

#include <QString>

namespace brimo {

enum class StartDialog { SlopeSearch, General, About, Chooser };

// The command line as one text: the words after the program's name, joined
// by one blank, as the platform hands the command line over.
QString CommandLineOf(int argc, const char* const argv[]);

// Exact comparison, case and blanks included, in the order VTalus, VGene,
// VAbout; anything else opens the chooser.
StartDialog DialogForCommandLine(const QString& commandLine);

} // namespace brimo
