#pragma once
// Settings tool (src/settings): brimo-settings, the dialogs' settings from the
// command line; it sees platform and model, and nothing sees it.
//
// One user's settings in the prefix in force: what each dialog shows of them,
// and the rows that its OK writes once the given values are in place.

#include "model/GeneralVariables.h"
#include "model/InstallInfo.h"
#include "model/VariableCommit.h"
#include "platform/ProfileDocument.h"
#include "settings/Edits.h"

#include <optional>

namespace brimo {

// Where a value that a dialog shows comes from.
enum class ValueOrigin { Stored, Default, Office, Locked };

struct ShownValue {
    QString key;
    QString value;
    ValueOrigin origin;
};

class UserFiles {
public:
    // Reads zorel.ini, takes the lock of the user's folder (which finishes
    // or undoes a commit that a kill cut off) and reads Brimo.ini, as the
    // program's entry does; `user` stands in for [Users] actuel. The lock is
    // held until this object ends, so that no other program writes between
    // what is read here and what is written. The office standard's values
    // and locks stand in the values and in every commit.
    UserFiles(const WinePrefix& prefix, const std::optional<QString>& user,
              std::shared_ptr<const OfficeStandard> standard);

    const InstallInfo& info() const { return info_; }
    const UserFolderLock& lock() const { return *lock_; }

    // zorel.ini or Brimo.ini there but unreadable (a folder, no regular file,
    // no right to read, too large), one line a file, naming it; empty when
    // both were read or are missing. The prefix then fails.
    const QString& readError() const { return readError_; }
    // The line of zorel.ini alone, which names the user's folder.
    const QString& zorelIniError() const { return zorelIniError_; }

    // Each key of the section with what is stored (for the general dialog,
    // as it loads it), else the office's value, else the default (the slope
    // form's own value); a locked key the standard's. The slope dialog itself
    // opens with its form's values: the tool shows and keeps what is stored,
    // which the add-on gets.
    QList<ShownValue> values(SettingSection section) const;

    // Each key of the section with the value that the dialog's OK would
    // write right after opening; a key that it would not write (a unit
    // whose stored value selects no button) is left out.
    QList<ShownValue> committedValues(SettingSection section) const;

    // The text stored for a key now, empty when there is none.
    QString storedText(SettingSection section, const QString& key) const;

    // Adds to `plan` the dialog's OK after `edits`, from the controls
    // holding what values() shows, and gives its rows. Nothing, with `error`,
    // when a file could not be read or a stored text holds a double quote
    // that the general dialog's OK would refuse. A stored text that the
    // dialog reads cut is said on stderr.
    std::optional<QList<CommittedRow>> planCommit(CommitPlan& plan, SettingSection section, const QList<Edit>& edits,
                                                  QString* error) const;

private:
    ValueOrigin originOf(SettingSection section, const QString& key) const;
    SlopeControlState storedSlopeState() const;

    InstallInfo info_;
    std::optional<UserFolderLock> lock_;
    QString readError_, zorelIniError_;
    ProfileDocument ini_;
    GeneralVariables variables_;
};

} // namespace brimo
