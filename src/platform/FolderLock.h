#pragma once
// The lock of a folder whose files several programs write: an advisory lock
// (flock) on a lock file, which the system drops when its holder ends, even
// by a kill, so that a lock is never left stale. The holder writes its
// process number and name into the file, so that a program kept waiting can
// say who holds it.

#include "platform/Failure.h"

#include <QString>

#include <chrono>

namespace brimo {

class FolderLock {
public:
    enum class State {
        Held,        // this object holds the lock
        Busy,        // another process held it through the whole wait
        NoFolder,    // the folder is missing: nobody writes files there
        Unavailable, // the lock file can be neither made nor opened: nothing
                     // may be written, since others would not be kept out
    };

    // Takes the lock of `lockPath`, trying again until `wait` has passed.
    FolderLock(const QString& lockPath, std::chrono::milliseconds wait);
    ~FolderLock(); // releases the lock and removes its file
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    State state() const { return state_; }
    // For Busy: who holds it (LockHeld with the holder's process and name);
    // otherwise why the lock cannot be had.
    const Failure& why() const { return why_; }

private:
    QString path_;
    int fd_ = -1;
    State state_ = State::NoFolder;
    Failure why_;
};

} // namespace brimo
