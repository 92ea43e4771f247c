#pragma once
// The language of the program's own messages (those that are neither a
// legend nor a form's fixed French text): one of the four languages of
// x_lang, from the translations built into the program.

#include <QString>

namespace brimo {

// Speaks the language of the code (FRA, ENG, DEU, ITA) from now on; any
// other code speaks English.
void SetProgramLanguage(const QString& code);

// The code of the language of the locale's messages (LC_ALL, then
// LC_MESSAGES, then LANG, as the C library chooses), when it is one of the
// four; ENG otherwise.
QString LanguageOfEnvironment();

} // namespace brimo
