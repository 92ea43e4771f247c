#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// What each key of both dialogs means, in a few words, for brimo-settings'
// list of keys and its manual page (the dialogs say it with their legends).

#include <QString>

namespace brimo {

// The meaning of a key in the language of the program's messages; empty for
// a name that is no key.
QString KeyMeaning(const QString& key);

} // namespace brimo
