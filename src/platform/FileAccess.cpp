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

std::optional<QByteArray> failRead(QString* error, const QString& why) {
    if (error) *error = why;
    return std::nullopt;
}

// Reads `fd` to its end, `expected` bytes or more, but never past the cap:
// a file can grow while it is read, a pipe has no end in sight.
std::optional<QByteArray> readToEnd(int fd, qint64 expected, QString* error) {
    QByteArray bytes;
    bytes.resize(static_cast<qsizetype>(expected));
    qsizetype done = 0;
    for (;;) {
        if (done == bytes.size()) {
            if (bytes.size() > kLargestReadFile)
                return failRead(error, QStringLiteral("too large (more than %1 bytes)").arg(kLargestReadFile));
            bytes.resize(std::min<qsizetype>(bytes.size() + 65536, kLargestReadFile + 1));
        }
        const ssize_t n = ::read(fd, bytes.data() + done, static_cast<size_t>(bytes.size() - done));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return failRead(error, QString::fromLocal8Bit(std::strerror(errno)));
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

std::optional<QByteArray> ReadWholeFile(const QString& nativePath, QString* error, bool followLinks) {
    const auto fail = [error](const QString& why) { return failRead(error, why); };
    const auto kindProblem = [](const struct stat& info) -> QString {
        if (S_ISDIR(info.st_mode)) return QStringLiteral("a folder stands where the file should be");
        if (!S_ISREG(info.st_mode)) return QStringLiteral("not a regular file");
        if (info.st_size > kLargestReadFile)
            return QStringLiteral("too large (%1 bytes; at most %2 are read)").arg(info.st_size).arg(kLargestReadFile);
        return {};
    };
    // A device is not even opened (opening some has effects). O_NONBLOCK: a
    // FIFO put in place meanwhile must not hold the program; fstat then tells
    // again what was opened.
    struct stat info {};
    const QByteArray name = QFile::encodeName(nativePath);
    if ((followLinks ? ::stat(name.constData(), &info) : ::lstat(name.constData(), &info)) == 0 && !kindProblem(info).isEmpty())
        return fail(kindProblem(info));
    const int fd = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | (followLinks ? 0 : O_NOFOLLOW));
    if (fd < 0) return fail(QString::fromLocal8Bit(std::strerror(errno)));
    const FdCloser closer{fd};
    if (::fstat(fd, &info) != 0) return fail(QString::fromLocal8Bit(std::strerror(errno)));
    if (const QString problem = kindProblem(info); !problem.isEmpty()) return fail(problem);
    return readToEnd(fd, info.st_size, error);
}

std::optional<QByteArray> ReadGivenFile(const QString& nativePath, QString* error) {
    struct stat info {};
    const QByteArray name = QFile::encodeName(nativePath);
    if (::stat(name.constData(), &info) != 0 || !S_ISFIFO(info.st_mode)) return ReadWholeFile(nativePath, error);
    const int fd = ::open(name.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return failRead(error, QString::fromLocal8Bit(std::strerror(errno)));
    const FdCloser closer{fd};
    return readToEnd(fd, 0, error);
}

QString NoFolderReason() { return QStringLiteral("the path names no folder on this machine"); }
QString FolderMissingReason(const QString& nativeFolder) {
    return QStringLiteral("the folder %1 does not exist").arg(nativeFolder);
}

namespace {

bool folderAndFileWritable(const QString& nativePath, QString* error) {
    if (nativePath.isEmpty()) {
        if (error) *error = NoFolderReason();
        return false;
    }
    const QFileInfo info(nativePath);
    if (!info.absoluteDir().exists()) {
        if (error) *error = FolderMissingReason(info.absolutePath());
        return false;
    }
    if (info.isDir()) {
        if (error) *error = QStringLiteral("a folder of that name stands in the way");
        return false;
    }
    if (info.exists() && !info.isFile()) {
        if (error) *error = QStringLiteral("not a regular file");
        return false;
    }
    // A file without any write bit is read-only for every user, root too, as
    // Wine maps the read-only attribute.
    constexpr auto anyWrite = QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    if (info.exists() && (!info.isWritable() || !(info.permissions() & anyWrite))) {
        if (error) *error = QStringLiteral("the file is read-only");
        return false;
    }
    return true;
}

} // namespace

namespace {

// The file created or emptied, written, and flushed to the disk.
// The system's own calls, so that the reason of a short write (a full disk,
// the file size limit) reaches the report.
bool writeDurably(const QString& path, const QByteArray& bytes, QString* error) {
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
    if (error) *error = QString::fromLocal8Bit(std::strerror(why ? why : EIO));
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

std::optional<QString> FollowLinks(const QString& nativePath, QString* error) {
    QString path = nativePath;
    for (int depth = 0; depth < kMaxLinkDepth; ++depth) {
        const QFileInfo info(path);
        if (!info.isSymLink()) return path;
        path = info.symLinkTarget();
    }
    if (error) *error = QStringLiteral("too many levels of symbolic links");
    return std::nullopt;
}

bool WriteFilesTogether(const QList<FileToWrite>& files, const QString& journalPath, QString* failedPath,
                        QString* error, const std::function<void()>& moved) {
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
            if (error) *error = QStringLiteral("the files of one commit must share a folder");
            return dropStaged(), false;
        }
        const std::optional<QString> target = FollowLinks(file.nativePath, error);
        if (!target || !folderAndFileWritable(*target, error)) return dropStaged(), false;
        const QFileInfo old(*target);
        Move move{*target, *target + QLatin1String(kStagedSuffix), std::nullopt};
        // Only the files moved before another can need their old content
        // back; one that cannot be read could not be put back, so the
        // commit stops here, before anything has moved.
        if (&file != &files.back() && old.exists()) {
            QString why;
            move.previous = ReadWholeFile(*target, &why);
            if (!move.previous) {
                if (error) *error = QStringLiteral("it cannot be read (%1), so it could not be put back").arg(why);
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
        if (!writeDurably(move.staged, *file.bytes, error)) return dropStaged(), false;
        moves.append(move);
        if (old.exists()) QFile::setPermissions(move.staged, old.permissions());
        entries.append({QFile::encodeName(name + QLatin1String(kStagedSuffix)), QFile::encodeName(name)});
    }

    // From the moment the journal is on the disk, a start after a kill
    // finishes the moves; before it, the start drops the staged copies.
    if (failedPath) *failedPath = journalPath;
    if (!writeDurably(journalPath, ComposeCommitJournal(entries), error) || !SyncFolder(folder)) {
        QFile::remove(journalPath);
        return dropStaged(), false;
    }
    for (qsizetype i = 0; i < moves.size(); ++i) {
        const Move& move = moves[i];
        if (move.staged.isEmpty() ? RemoveFile(move.target)
                                  : ::rename(QFile::encodeName(move.staged).constData(), QFile::encodeName(move.target).constData()) == 0)
            continue;
        if (failedPath) *failedPath = files[i].nativePath;
        if (error) *error = QString::fromLocal8Bit(std::strerror(errno));
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

bool KeepFileAs(const QString& source, const QByteArray& bytes, const QString& copy, QString* error) {
    const std::optional<QString> target = FollowLinks(source);
    if (target && ::link(QFile::encodeName(*target).constData(), QFile::encodeName(copy).constData()) == 0) return true;
    return WriteWholeFile(copy, bytes, error);
}

bool WriteWholeFile(const QString& nativePath, const QByteArray& bytes, QString* error) {
    if (!folderAndFileWritable(nativePath, error)) return false;
    QSaveFile save(nativePath);
    if (!save.open(QIODevice::WriteOnly) || save.write(bytes) != bytes.size() || !save.commit()) {
        if (error) *error = save.errorString();
        return false;
    }
    SyncFolder(folderOf(nativePath));
    return true;
}

} // namespace brimo
