#pragma once
// What went wrong with a file or a folder, as a kind and its details, never
// as a sentence: each program says it in its user's language.

#include <QString>

#include <utility>

namespace brimo {

enum class FailureKind {
    None,
    System,         // nothing more than the system's own reason (systemError)
    NoSpace,        // the disk, or the user's quota, is full
    ReadOnlyDisk,   // the file system is mounted read-only
    ReadOnlyFile,   // the file has no write permission at all
    NoPermission,   // this user may not do it
    SizeLimit,      // the file would pass this process's file size limit
    Missing,        // the file does not exist
    TooLargeToRead, // larger than the program reads: `number` is its size (0: unknown)
    NotRegularFile, // a FIFO, a device, a socket, or a link where none is taken
    FolderInTheWay, // a folder has the file's name
    FolderMissing,  // `detail` is the folder
    NoFolder,       // the Windows path names no folder on this machine
    LinkLoop,       // too many symbolic links
    LockHeld,       // `number` is the holder's process (0: unknown), `detail` its name
    LockUnusable,   // `detail` is the lock file
    NotOwner,       // cannot act as the prefix's owner, `number` its uid
    CannotPutBack,  // an earlier file cannot be read, so a failed commit could not restore it
    SplitFolders,   // the files of one commit are in two folders (a fault of the caller)
};

struct Failure {
    FailureKind kind = FailureKind::None;
    int systemError = 0; // errno, where the system gave one
    qint64 number = 0;
    QString detail;

    explicit operator bool() const { return kind != FailureKind::None; }
};

// The kind that an errno value stands for; System for the others.
Failure FailureOfErrno(int error);

// Sets *out when there is one; for the optional out-parameters.
inline void Report(Failure* out, Failure failure) {
    if (out) *out = std::move(failure);
}

} // namespace brimo
