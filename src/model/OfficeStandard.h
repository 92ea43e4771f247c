#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The office standard: one profile file that the administrator keeps
// (/etc/brimo/standard.ini, or the file BRIMO_STANDARD names) with the
// sections of Brimo.ini. A key of [Brimo_Gene] or [Brimo_Talus] gives the
// office's value, which stands in for the program's default where the user
// has stored none; a key named in [Locked] ("x_nom_bureau=1") is locked: the
// dialogs show it greyed and every commit writes the standard's value (the
// office's, or the program's default), whatever the user gave.

#include "model/FailureText.h"
#include "model/SettingKeys.h"

#include <QList>
#include <QString>

#include <memory>
#include <optional>

namespace brimo {

// A key that the standard gives a value or locks.
struct OfficeKey {
    const SettingKey* key;
    SettingSection section;
    QString value; // the office's, as checked; for a locked key without one, the default
    bool locked = false;
};

struct OfficeStandard {
    QString file;          // where it was read
    QList<OfficeKey> keys; // in the order of the file's sections: Brimo_Gene, Brimo_Talus

    const OfficeKey* find(SettingSection section, const QString& key) const;
    bool locked(SettingSection section, const QString& key) const;
    // The locked keys of a section at their values; with `all`, every key.
    QList<Edit> edits(SettingSection section, bool all = false) const;
};

// Why a standard is ignored whole.
struct StandardProblem {
    enum class Kind { Unreadable, NotAKey, BadValue, BadLock };
    Kind kind;
    int line = 0; // from 1; 0 for the whole file
    QString key, value;
    Failure failure; // Unreadable
};

struct LoadedStandard {
    QString file;
    std::shared_ptr<const OfficeStandard> standard; // none without a file, or with a problem
    std::optional<StandardProblem> problem;
};

// BRIMO_STANDARD when it is set, else the path the program was built with.
QString OfficeStandardPath();

// Reads and checks the standard as apply checks a profile file. No file at
// the path is no standard, and no problem: one failed stat.
LoadedStandard LoadOfficeStandard(const QString& file = OfficeStandardPath());

// "FILE: line N: reason", in the language in force (English before any is set).
QString StandardProblemText(const QString& file, const StandardProblem& problem);

// What a control of a locked key tells its user (tooltip, and screen readers).
QString LockedByStandardText(const OfficeStandard& standard);

// The slope dialog's opening values with the office's in their place.
SlopeControlState SlopeOpeningWith(const OfficeStandard* standard);

} // namespace brimo
