#pragma once
// The language of the program's own messages (those that are neither a
// legend nor a form's fixed French text): one of the four languages of
// x_lang, from the translations built into the program.

#include <QString>

namespace brimo {

// Whether Qt's own words (an unknown option of the command line) follow too,
// from Debian's qt6-translations-l10n. The dialogs keep them as they are:
// their boxes' buttons and the tab bar's arrows read the same in every
// language, as the forms were drawn.
enum class QtOwnWords { Unchanged, Translated };

// Speaks the language of the code (FRA, ENG, DEU, ITA) from now on; any
// other code speaks English.
void SetProgramLanguage(const QString& code, QtOwnWords qtWords = QtOwnWords::Unchanged);

// The code of the language of the locale's messages (LC_ALL, then
// LC_MESSAGES, then LANG, as the C library chooses), when it is one of the
// four; ENG otherwise.
QString LanguageOfEnvironment();

} // namespace brimo
