#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The history of commits in a user's folder: before each commit that changes
// a file, the files as they were go into a numbered entry of Brimo.history/
// beside Brimo.ini, with when, by which program, for what and which keys
// changed. The last kHistoryLength entries are kept. An entry is written in
// a temporary folder inside Brimo.history/, flushed, and renamed to the
// staged entry before the commit writes; once the commit has taken effect
// (or the recovery after a kill has finished it) the staged entry is renamed
// to its number, and a commit that failed or was undone drops it. So an
// entry under a number is whole and stands for a commit that took effect; a
// temporary folder that a kill left is never read, and the next start's
// recovery removes it. Every function here runs under the lock of the user's
// folder.

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include "platform/Failure.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace brimo {

inline constexpr int kHistoryLength = 20;

// A file of the user's folder, by its name there, as it was before a commit.
struct KeptFile {
    QString name;
    bool existed = false;
    std::optional<QByteArray> bytes; // only where read, and only when it existed
};

// A value of Brimo.ini before and after a commit ("" where there was none).
struct KeyChange {
    QString key; // "Section/key"
    QString before, after;
};

struct HistoryEntry {
    int number = 0;
    QDateTime when;
    QString program; // the process that committed: Brimo2010, brimo-settings
    QString what;    // "OK", "set", "apply", "restore 3"
    QStringList keys; // "Section/key" of each value that the commit changed
    QList<KeptFile> files; // the files as they were before the commit
    QString damaged;       // why the entry cannot be brought back; empty when whole
    // Who ran the program (and SUDO_USER, when set), on which host, in which
    // run: one id for every commit of one run of a program, over every prefix.
    QString user, sudoUser, host, run;
    QList<KeyChange> changes; // each key's value before and after, in the order of `keys`
};

// The folder of the history of the Brimo.ini at `nativeIni`.
QString HistoryFolder(const QString& nativeIni);

// The entries, oldest first, as their records tell them, without the bytes
// of their files; an entry that is not whole is there with the reason.
QList<HistoryEntry> ReadHistory(const QString& nativeIni);

// Entry `number` (0: the last one) with the bytes of its files, each a
// regular file of the entry (a link there is not followed). Nothing, with
// `error`, when there is no such entry or it is damaged.
std::optional<HistoryEntry> ReadHistoryEntry(const QString& nativeIni, int number, QString* error);

// Writes the entry that a commit is about to make, whole, as the staged
// entry of the folder (one at most; an older one is replaced). False, with
// `error`, when it cannot be written.
bool StageHistoryEntry(const QString& nativeIni, const HistoryEntry& entry, Failure* failure);

// The commit took effect: the staged entry takes the next number, and the
// oldest beyond kHistoryLength go. Gives the number, or nothing when there
// is no staged entry. The commit calls it before it removes its journal, so
// that a kill in between leaves the recovery to call it again.
std::optional<int> KeepStagedHistoryEntry(const QString& nativeIni);

// The commit did not take effect: the staged entry goes.
void DropStagedHistoryEntry(const QString& nativeIni);

// The start's part, once the recovery has finished (`tookEffect`) or undone
// a commit that a kill cut off: its staged entry kept or dropped, and the
// temporary folders of entries that a kill left in the middle removed.
void RecoverHistory(const QString& nativeIni, bool tookEffect);

// The name under which this process records its commits: the name of its
// program file.
QString CommitProgramName();

// This run's id, the same for every commit this process makes.
QString CommitRunId();

// The user, SUDO_USER, host and run of this process, for a new entry.
void StampHistoryEntry(HistoryEntry& entry);

// The values of `keys` ("Section/key") in Brimo.ini before and after.
QList<KeyChange> KeyChanges(const QByteArray& iniBefore, const QByteArray& iniAfter, const QStringList& keys);

// "Section/key" of each key of the two sections whose value differs between
// two versions of Brimo.ini.
QStringList ChangedKeys(const QByteArray& iniBefore, const QByteArray& iniAfter);

} // namespace brimo
