#include "platform/FileAccess.h"

#include "platform/CommitJournal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brimo {

namespace {
constexpr int kMaxLinkDepth = 40; // as the system counts a loop of links

std::optional<QByteArray> failRead(Failure* failure, Failure why) {
    Report(failure, std::move(why));
    return std::nullopt;
}

Failure errnoFailure() { return FailureOfErrno(errno); }

// Reads `fd` to its end, `expected` bytes or more, but never past the cap:
// a file can grow while it is read, a pipe has no end in sight.
std::optional<QByteArray> readToEnd(int fd, qint64 expected, Failure* failure) {
    QByteArray bytes;
    bytes.resize(static_cast<qsizetype>(expected));
    qsizetype done = 0;
    for (;;) {
        if (done == bytes.size()) {
            if (bytes.size() > kLargestReadFile)
                return failRead(failure, {FailureKind::TooLargeToRead, 0, 0, {}});
            bytes.resize(std::min<qsizetype>(bytes.size() + 65536, kLargestReadFile + 1));
        }
        const ssize_t n = ::read(fd, bytes.data() + done, static_cast<size_t>(bytes.size() - done));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return failRead(failure, errnoFailure());
        if (n == 0) break;
        done += n;
    }
    bytes.truncate(done);
    return bytes;
}

struct FdCloser {
    int fd;
    ~FdCloser() { ::close(fd); }
};

} // namespace

std::optional<QByteArray> ReadWholeFile(const QString& nativePath, Failure* failure, bool followLinks) {
    const auto fail = [failure](Failure why) { return failRead(failure, std::move(why)); };
    const auto kindProblem = [](const struct stat& info) -> Failure {
        if (S_ISDIR(info.st_mode)) return {FailureKind::FolderInTheWay, 0, 0, {}};
        if (!S_ISREG(info.st_mode)) return {FailureKind::NotRegularFile, 0, 0, {}};
        if (info.st_size > kLargestReadFile) return {FailureKind::TooLargeToRead, 0, info.st_size, {}};
        return {};
    };
    // A device is not even opened (opening some has effects). O_NONBLOCK: a
    // FIFO put in place meanwhile must not hold the program; fstat then tells
    // again what was opened.
    struct stat info {};
    const QByteArray name = QFile::encodeName(nativePath);
    if ((followLinks ? ::stat(name.constData(), &info) : ::lstat(name.constData(), &info)) == 0 && kindProblem(info))
        return fail(kindProblem(info));
    const int fd = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | (followLinks ? 0 : O_NOFOLLOW));
    if (fd < 0) return fail(errnoFailure());
    const FdCloser closer{fd};
    if (::fstat(fd, &info) != 0) return fail(errnoFailure());
    if (Failure problem = kindProblem(info)) return fail(std::move(problem));
    return readToEnd(fd, info.st_size, failure);
}

std::optional<QByteArray> ReadGivenFile(const QString& nativePath, Failure* failure) {
    struct stat info {};
    const QByteArray name = QFile::encodeName(nativePath);
    if (::stat(name.constData(), &info) != 0 || !S_ISFIFO(info.st_mode)) return ReadWholeFile(nativePath, failure);
    const int fd = ::open(name.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return failRead(failure, errnoFailure());
    const FdCloser closer{fd};
    return readToEnd(fd, 0, failure);
}

Failure NoFolderFailure() { return {FailureKind::NoFolder, 0, 0, {}}; }
Failure FolderMissingFailure(const QString& nativeFolder) { return {FailureKind::FolderMissing, 0, 0, nativeFolder}; }

namespace {

bool folderAndFileWritable(const QString& nativePath, Failure* failure) {
    const auto fail = [failure](Failure why) { return Report(failure, std::move(why)), false; };
    if (nativePath.isEmpty()) return fail(NoFolderFailure());
    const QFileInfo info(nativePath);
    if (!info.absoluteDir().exists()) return fail(FolderMissingFailure(info.absolutePath()));
    if (info.isDir()) return fail({FailureKind::FolderInTheWay, 0, 0, {}});
    if (info.exists() && !info.isFile()) return fail({FailureKind::NotRegularFile, 0, 0, {}});
    // A file without any write bit is read-only for every user, root too, as
    // Wine maps the read-only attribute.
    constexpr auto anyWrite = QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    if (info.exists() && (!info.isWritable() || !(info.permissions() & anyWrite)))
        return fail({FailureKind::ReadOnlyFile, 0, 0, {}});
    return true;
}

} // namespace

namespace {

// The file created or emptied, written, and flushed to the disk.
// The system's own calls, so that the reason of a short write (a full disk,
// the file size limit) reaches the report.
bool writeDurably(const QString& path, const QByteArray& bytes, Failure* failure) {
    const QByteArray name = QFile::encodeName(path);
    const int fd = ::open(name.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    bool ok = fd >= 0;
    for (qsizetype done = 0; ok && done < bytes.size();) {
        const ssize_t n = ::write(fd, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
        if (n < 0 && errno == EINTR) continue;
        ok = n > 0;
        done += n;
    }
    ok = ok && ::fsync(fd) == 0;
    const int why = errno;
    if (fd >= 0 && ::close(fd) != 0) ok = false;
    if (ok) return true;
    Report(failure, FailureOfErrno(why ? why : EIO));
    ::unlink(name.constData());
    return false;
}

QString folderOf(const QString& path) { return QDir::cleanPath(QFileInfo(path).absolutePath()); }

} // namespace

bool SyncFolder(const QString& nativeFolder) {
    const int fd = ::open(QFile::encodeName(nativeFolder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return false;
    const bool ok = ::fsync(fd) == 0;
    ::close(fd);
    return ok;
}

std::optional<QString> FollowLinks(const QString& nativePath, Failure* failure) {
    QString path = nativePath;
    for (int depth = 0; depth < kMaxLinkDepth; ++depth) {
        const QFileInfo info(path);
        if (!info.isSymLink()) return path;
        path = info.symLinkTarget();
    }
    Report(failure, {FailureKind::LinkLoop, ELOOP, 0, {}});
    return std::nullopt;
}

bool WriteFilesTogether(const QList<FileToWrite>& files, const QString& journalPath, QString* failedPath,
                        Failure* failure, const std::function<void()>& moved) {
    const QString folder = folderOf(journalPath);
    // Each file as written: the file its links lead to, its staged copy
    // beside it (none for a file that goes), and the old content where a
    // later move could fail.
    struct Move {
        QString target, staged;
        std::optional<QByteArray> previous;
    };
    QList<Move> moves;
    QList<JournalEntry> entries;
    const auto dropStaged = [&] {
        for (const Move& move : moves)
            if (!move.staged.isEmpty()) QFile::remove(move.staged);
    };
    for (const FileToWrite& file : files) {
        if (failedPath) *failedPath = file.nativePath;
        if (folderOf(file.nativePath) != folder) {
            Report(failure, {FailureKind::SplitFolders, 0, 0, {}});
            return dropStaged(), false;
        }
        const std::optional<QString> target = FollowLinks(file.nativePath, failure);
        if (!target || !folderAndFileWritable(*target, failure)) return dropStaged(), false;
        const QFileInfo old(*target);
        Move move{*target, *target + QLatin1String(kStagedSuffix), std::nullopt};
        // Only the files moved before another can need their old content
        // back; one that cannot be read could not be put back, so the
        // commit stops here, before anything has moved.
        if (&file != &files.back() && old.exists()) {
            Failure why;
            move.previous = ReadWholeFile(*target, &why);
            if (!move.previous) {
                Report(failure, {FailureKind::CannotPutBack, why.systemError, 0, {}});
                return dropStaged(), false;
            }
        }
        QFile::remove(move.staged); // what a killed commit left, read-only or not
        // The journal names the files as the folder holds them; a start
        // follows their links as this commit did.
        const QString name = QFileInfo(file.nativePath).fileName();
        if (!file.bytes) {
            move.staged.clear();
            moves.append(move);
            entries.append({{}, QFile::encodeName(name)});
            continue;
        }
        if (!writeDurably(move.staged, *file.bytes, failure)) return dropStaged(), false;
        moves.append(move);
        if (old.exists()) QFile::setPermissions(move.staged, old.permissions());
        entries.append({QFile::encodeName(name + QLatin1String(kStagedSuffix)), QFile::encodeName(name)});
    }

    // From the moment the journal is on the disk, a start after a kill
    // finishes the moves; before it, the start drops the staged copies.
    if (failedPath) *failedPath = journalPath;
    if (!writeDurably(journalPath, ComposeCommitJournal(entries), failure) || !SyncFolder(folder)) {
        QFile::remove(journalPath);
        return dropStaged(), false;
    }
    for (qsizetype i = 0; i < moves.size(); ++i) {
        const Move& move = moves[i];
        if (move.staged.isEmpty() ? RemoveFile(move.target)
                                  : ::rename(QFile::encodeName(move.staged).constData(), QFile::encodeName(move.target).constData()) == 0)
            continue;
        if (failedPath) *failedPath = files[i].nativePath;
        Report(failure, errnoFailure());
        // Put back what the earlier moves replaced, then give up the commit.
        // Only a kill between the first restore and the journal's removal
        // would still leave the files apart.
        for (qsizetype j = 0; j < i; ++j) {
            if (moves[j].previous) WriteWholeFile(moves[j].target, *moves[j].previous);
            else QFile::remove(moves[j].target);
        }
        QFile::remove(journalPath);
        dropStaged();
        SyncFolder(folder);
        return false;
    }
    for (const Move& move : moves)
        if (folderOf(move.target) != folder) SyncFolder(folderOf(move.target));
    SyncFolder(folder);
    if (moved) moved();
    QFile::remove(journalPath);
    SyncFolder(folder);
    return true;
}

bool RemoveFile(const QString& nativePath) {
    return ::unlink(QFile::encodeName(nativePath).constData()) == 0 || errno == ENOENT;
}

bool KeepFileAs(const QString& source, const QByteArray& bytes, const QString& copy, Failure* failure) {
    const std::optional<QString> target = FollowLinks(source);
    if (target && ::link(QFile::encodeName(*target).constData(), QFile::encodeName(copy).constData()) == 0) return true;
    return WriteWholeFile(copy, bytes, failure);
}

bool WriteWholeFile(const QString& nativePath, const QByteArray& bytes, Failure* failure) {
    if (!folderAndFileWritable(nativePath, failure)) return false;
    QSaveFile save(nativePath);
    if (!save.open(QIODevice::WriteOnly) || save.write(bytes) != bytes.size() || !save.commit()) {
        // QSaveFile keeps the system's reason in errno alone.
        Report(failure, FailureOfErrno(errno ? errno : EIO));
        return false;
    }
    SyncFolder(folderOf(nativePath));
    return true;
}

} // namespace brimo
