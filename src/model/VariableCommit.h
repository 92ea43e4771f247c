#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// A commit writes each value twice and in lockstep: a line of the Lisp file
// and a key of one section of Brimo.ini. Both files are written whole, the
// Lisp file first, all or nothing: a failure leaves both as they were, and a
// kill or a power loss at any moment leaves both old or both new once the
// next start has run RecoverInterruptedCommit. Two programs never write
// these files at once: every commit, and every recovery of one, holds the
// lock of the folder of Brimo.ini.

#include "model/CommitHistory.h"
#include "model/InstallInfo.h"
#include "platform/FileAccess.h"
#include "platform/FolderLock.h"
#include "platform/PrefixOwner.h"
#include "platform/ProfileDocument.h"

#include <QList>
#include <QString>

#include <chrono>
#include <memory>
#include <vector>

namespace brimo {

struct CommittedRow {
    QString line;  // the Lisp line
    QString key;   // the key in the section
    QString value; // the key's value
};

struct CommitOutcome {
    bool ok = true;
    QString file;   // the Windows path of the file that could not be written
    Failure reason;
    bool busy = false; // another program was writing them: worth another try
};

// How long a writer waits for another program's commit to end.
inline constexpr std::chrono::seconds kUserFolderLockWait{5};

// The lock of the folder of Brimo.ini, and of every folder that a link
// there leads to (where a commit stages and replaces the link's file), held
// from its construction to its end; two prefixes that share a file through a
// link are so two writers of one folder. The folders are locked in one order,
// their paths sorted, so that two writers never wait for each other. Once
// every lock is held, a commit that a kill cut off in that folder has been
// finished or undone, so that what is read next is a whole pair. Run as
// root, it acts as the owner of the prefix meanwhile, so that every file it
// writes keeps its owner.
class UserFolderLock {
public:
    UserFolderLock(const WinePrefix& prefix, const QString& iniPath);

    const WinePrefix& prefix() const { return prefix_; }
    const QString& iniPath() const { return iniPath_; }
    const QString& nativeIniPath() const { return nativeIni_; } // empty when it names no folder here
    // Held when every lock is; otherwise the state of the first that is not.
    FolderLock::State state() const;
    // Another program kept a lock through the whole wait: nothing may be
    // written, and the outcome says who holds it.
    bool busy() const { return state() == FolderLock::State::Busy; }
    // Why nothing may be written, when some lock is not held.
    CommitOutcome failure() const;
    Recovery recovery() const { return recovery_; }

private:
    WinePrefix prefix_;
    QString iniPath_, nativeIni_;
    ActingAsPrefixOwner owner_; // first made, last undone
    std::vector<std::unique_ptr<FolderLock>> locks_;
    const FolderLock* firstNotHeld() const;
    Recovery recovery_ = Recovery::Nothing;
};

// One or more commits on the same Brimo.ini, composed in memory and written
// together: each Lisp file, then Brimo.ini, all or nothing.
class CommitPlan {
public:
    // Reads Brimo.ini as it stands under the lock; a file that exists and
    // cannot be read makes the plan fail, and so does a busy lock.
    explicit CommitPlan(const UserFolderLock& lock);

    // Brimo.ini as read.
    const ProfileDocument& ini() const { return ini_; }
    // Brimo.ini could not be read, or a lock not be had: write() fails.
    bool readFailed() const { return !readFailure_.ok; }

    void add(const QString& lispPath, const QString& section, const QList<CommittedRow>& rows);

    // What the history calls this commit ("OK" unless told).
    void setWhat(const QString& what) { what_ = what; }
    // The keys ("section/key") that were asked for: the history names them first.
    void setGivenKeys(const QStringList& keys) { givenKeys_ = keys; }

    // The Windows paths of the files whose bytes would change.
    QStringList changedFiles() const;
    // Writes every file. When some file changes, the files as they were go
    // first into the history of the folder (model/CommitHistory.h), with
    // the name of this program and the keys that change.
    CommitOutcome write() const;

private:
    struct File {
        QString windowsPath;
        FileToWrite planned;
    };
    QList<File> files() const;

    WinePrefix prefix_;
    QString iniPath_, nativeIni_, what_ = QStringLiteral("OK");
    CommitOutcome readFailure_;
    bool noFolder_ = false; // the folder is missing: the first file is named
    // "section/key" of the stored values that change, then of the keys that
    // the commit adds, for the history.
    QStringList changedKeys_, addedKeys_, givenKeys_;
    ProfileDocument ini_;
    QList<File> lispFiles_;
};

// One section's rows, written under the lock of the folder.
CommitOutcome CommitVariables(const WinePrefix& prefix, const QString& lispPath, const QString& iniPath, const QString& section,
                              const QList<CommittedRow>& rows);

// Brings back the files of a history entry that ReadHistoryEntry read, in
// the folder of the lock, as one commit that the history records in turn
// ("restore N").
CommitOutcome RestoreHistoryEntry(const UserFolderLock& lock, const HistoryEntry& entry);

// What the start found in the folder of Brimo.ini.
struct StartRecovery {
    Recovery recovery = Recovery::Nothing;
    CommitOutcome lock; // not ok when a lock could not be had (`busy`: another program kept it)
};

// Finishes or undoes a commit that a kill or a power loss cut off in the
// folder of Brimo.ini, under its lock (left alone when another program keeps
// the lock: its commit is in progress). Every program that reads or writes
// these files calls it at its start, before it reads any of them. Reports
// what it did on stderr.
StartRecovery RecoverInterruptedCommit(const InstallInfo& info);

} // namespace brimo
