#pragma once
// Platform layer (src/platform): what the program needs of the system,
// without a window; it sees nothing of the program.
//
// Other programs and files named by Windows paths: starting a program
// without waiting for it, and testing whether a file exists.

#include "platform/WindowsPaths.h"

#include <QString>

namespace brimo {

// Starts a program by its Windows path without waiting for it: a .exe
// through Wine when Wine can be started, anything else directly.
bool StartProgram(const WinePrefix& prefix, const QString& windowsPath);
// True when a file exists at the Windows path.
bool FileExists(const WinePrefix& prefix, const QString& windowsPath);

} // namespace brimo
