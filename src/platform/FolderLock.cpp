#include "platform/FolderLock.h"

#include "platform/FileAccess.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brimo {

namespace {

constexpr std::chrono::milliseconds kRetryPause{20};

// Who holds the lock, as the holder wrote it into the file: its process
// number, then its name in parentheses.
Failure holderOf(int fd) {
    char text[128] = {};
    const ssize_t n = ::pread(fd, text, sizeof text - 1, 0);
    // The first line: a holder writes its name before cutting what an
    // earlier holder left behind it.
    const QString holder = QString::fromLocal8Bit(text, n > 0 ? n : 0).section(QLatin1Char('\n'), 0, 0).trimmed();
    const qsizetype open = holder.indexOf(QLatin1String(" ("));
    Failure held{FailureKind::LockHeld, 0, holder.left(open).toLongLong(), {}};
    if (open > 0 && holder.endsWith(QLatin1Char(')'))) held.detail = holder.mid(open + 2).chopped(1);
    return held;
}

Failure unusable(const QString& lockPath, int error) { return {FailureKind::LockUnusable, error, 0, lockPath}; }

// The file still has this name: a holder removes it on release, and a lock
// taken on a removed file would keep nobody out.
bool stillNamed(int fd, const QByteArray& path) {
    struct stat opened {}, named {};
    return ::fstat(fd, &opened) == 0 && ::stat(path.constData(), &named) == 0 && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

// Opens the lock file, made if need be. One that this user may not write (a
// file another user's run left, or a read-only folder) is opened for reading:
// flock takes either.
int openLockFile(const QByteArray& path) {
    constexpr int flags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int fd = ::open(path.constData(), O_RDWR | O_CREAT | flags, 0644);
    if (fd >= 0 || (errno != EACCES && errno != EPERM && errno != EROFS)) return fd;
    const int error = errno;
    const int readOnly = ::open(path.constData(), O_RDONLY | flags);
    if (readOnly < 0 && errno == ENOENT) errno = error; // none to open: the folder refused its making
    return readOnly;
}

} // namespace

FolderLock::FolderLock(const QString& lockPath, std::chrono::milliseconds wait) : path_(lockPath) {
    if (lockPath.isEmpty()) { // a path that names no folder here
        why_ = NoFolderFailure();
        return;
    }
    const QByteArray path = QFile::encodeName(lockPath);
    const auto deadline = std::chrono::steady_clock::now() + wait;
    for (;;) {
        const int fd = openLockFile(path);
        if (fd < 0) {
            const int error = errno;
            state_ = error == ENOENT || error == ENOTDIR ? State::NoFolder : State::Unavailable;
            why_ = state_ == State::NoFolder ? FolderMissingFailure(QFileInfo(lockPath).absolutePath())
                                             : unusable(lockPath, error);
            return;
        }
        if (::flock(fd, LOCK_EX | LOCK_NB) == 0) {
            if (stillNamed(fd, path)) {
                fd_ = fd;
                state_ = State::Held;
                const QByteArray me = QByteArray::number(::getpid()) + " (" + program_invocation_short_name + ")\n";
                // A failed write loses only the holder's name; the lock holds.
                // Cut to the name's length after writing it, never to nothing:
                // on ext4 a file cut to nothing is written out to the disk at
                // its close, which would make every release wait for the disk.
                [[maybe_unused]] const bool named =
                    ::pwrite(fd, me.constData(), me.size(), 0) == me.size() && ::ftruncate(fd, me.size()) == 0;
                return;
            }
            ::close(fd);
            continue;
        }
        const int error = errno;
        if (error != EWOULDBLOCK || std::chrono::steady_clock::now() >= deadline) {
            state_ = error == EWOULDBLOCK ? State::Busy : State::Unavailable;
            why_ = error == EWOULDBLOCK ? holderOf(fd) : unusable(lockPath, error);
            ::close(fd);
            return;
        }
        ::close(fd);
        std::this_thread::sleep_for(kRetryPause);
    }
}

FolderLock::~FolderLock() {
    if (fd_ < 0) return;
    // Removed while still held, so that a waiter that opened it sees the
    // name gone and opens the next one.
    ::unlink(QFile::encodeName(path_).constData());
    ::close(fd_);
}

} // namespace brimo
