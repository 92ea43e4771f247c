#pragma once
// Whole-file reads and all-or-nothing writes on native paths.

#include "platform/Failure.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>

namespace brimo {

// The largest file that is read: far above any Brimo.ini in use, far below
// what would exhaust the memory.
inline constexpr qint64 kLargestReadFile = qint64(512) << 20;

// The whole file, or nothing with `failure` saying why when it is missing,
// unreadable, larger than kLargestReadFile, or no regular file (a folder, a
// FIFO, a device, a socket, or a link to one; or any link, unless
// `followLinks`). Never waits for a writer.
std::optional<QByteArray> ReadWholeFile(const QString& nativePath, Failure* failure = nullptr, bool followLinks = true);

// A file that the user names on a command line: read as ReadWholeFile reads
// it, but a pipe too (bash's "<(command)"), waiting for its writer and read to
// its end, never past kLargestReadFile.
std::optional<QByteArray> ReadGivenFile(const QString& nativePath, Failure* failure = nullptr);

// Writes the file through a temporary file in the same folder that is then
// moved over the old one, so that a failure leaves the old file as it was;
// the folder is flushed after the move.
// The folder is not created. On failure returns false and says why in `failure`.
bool WriteWholeFile(const QString& nativePath, const QByteArray& bytes, Failure* failure = nullptr);

// The file that a path leads to once every symbolic link is followed, so
// that a link is written through and never replaced; a link that leads
// nowhere gives the file it would create. Nothing, with `failure`, for a loop.
std::optional<QString> FollowLinks(const QString& nativePath, Failure* failure = nullptr);

// Keeps `bytes`, the content of the file `source` as it stands, under the
// new name `copy`: a hard link where the file system allows one (nothing is
// copied; a commit replaces a file by a new one and never rewrites the old
// one), else the bytes written. False, with `failure`, when neither works.
bool KeepFileAs(const QString& source, const QByteArray& bytes, const QString& copy, Failure* failure = nullptr);

// Why nothing can be written: a Windows path that names no folder here, or
// a folder that does not exist.
Failure NoFolderFailure();
Failure FolderMissingFailure(const QString& nativeFolder);

// Removes the file; true too when there was none. errno says why not.
bool RemoveFile(const QString& nativePath);

// Flushes the entries of a folder (the names created, moved or removed in it)
// to the disk, so that a move survives a power loss.
bool SyncFolder(const QString& nativeFolder);

} // namespace brimo

namespace brimo {

struct FileToWrite {
    QString nativePath;
    std::optional<QByteArray> bytes; // none: the file goes
};

// Writes several files of one folder all or nothing, even across a kill or
// a power loss. Each file goes to its staged copy (the name of the file its
// links lead to, and kStagedSuffix), flushed to the disk; then the journal
// at `journalPath` (same folder) names them all and is flushed; then the
// staged copies are moved over the files in the order given, the folders
// are flushed, and the journal removed. A file that goes has no staged
// copy: the journal names it alone and it is removed in its turn. Only
// regular files are replaced or removed. Should a move fail, the files
// already moved get their old content back. On failure `failedPath` names
// the file and `failure` says why. `moved` runs once every move is done and
// before the journal goes, so that what it records of the commit is done
// again by the recovery of a kill in between. The caller holds the folder's
// lock.
bool WriteFilesTogether(const QList<FileToWrite>& files, const QString& journalPath, QString* failedPath,
                        Failure* failure, const std::function<void()>& moved = {});

enum class Recovery {
    Nothing,       // no journal and no staged file
    RolledForward, // a complete journal: its moves were finished
    RolledBack,    // a journal cut short, or staged files alone: removed
    Ignored,       // a damaged journal: reported, removed, not followed
    Failed,        // a move of a complete journal failed: all left for the next start
};

// What the start of a program does before it reads any file of the folder of
// `journalPath`: finishes or drops a WriteFilesTogether that was interrupted,
// and removes every staged copy left in that folder or beside the files its
// links lead to. Reports on stderr. The caller holds the folder's lock, so
// that no commit is in progress.
Recovery RecoverFilesTogether(const QString& journalPath);

} // namespace brimo
