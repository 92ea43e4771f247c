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

std::optional<QByteArray> ReadWholeFile(const QString& nativePath, QString* error) {
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
    if (::stat(QFile::encodeName(nativePath).constData(), &info) == 0 && !kindProblem(info).isEmpty())
        return fail(kindProblem(info));
    const int fd = ::open(QFile::encodeName(nativePath).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
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

namespace {

bool folderAndFileWritable(const QString& nativePath, QString* error) {
    if (nativePath.isEmpty()) {
        if (error) *error = QStringLiteral("the path names no folder on this machine");
        return false;
    }
    const QFileInfo info(nativePath);
    if (!info.absoluteDir().exists()) {
        if (error) *error = QStringLiteral("the folder %1 does not exist").arg(info.absolutePath());
        return false;
    }
    if (info.isDir()) {
        if (error) *error = QStringLiteral("a folder of that name stands in the way");
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
bool writeDurably(const QString& path, const QByteArray& bytes, QString* error) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size() ||
        !file.flush() || ::fsync(file.handle()) != 0) {
        if (error) *error = file.error() != QFileDevice::NoError ? file.errorString() : QString::fromLocal8Bit(std::strerror(errno));
        file.close();
        QFile::remove(path);
        return false;
    }
    return true;
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

bool WriteFilesTogether(const QList<FileToWrite>& files, const QString& journalPath, QString* failedPath,
                        QString* error) {
    const QString folder = folderOf(journalPath);
    QList<JournalEntry> entries;
    QStringList staged;
    std::vector<std::optional<QByteArray>> previous;
    const auto dropStaged = [&] {
        for (const QString& path : staged) QFile::remove(path);
    };
    for (const FileToWrite& file : files) {
        if (failedPath) *failedPath = file.nativePath;
        if (!folderAndFileWritable(file.nativePath, error)) return dropStaged(), false;
        if (folderOf(file.nativePath) != folder) {
            if (error) *error = QStringLiteral("the files of one commit must share a folder");
            return dropStaged(), false;
        }
        const QFileInfo target(file.nativePath);
        const QString stagedPath = file.nativePath + QLatin1String(kStagedSuffix);
        QFile::remove(stagedPath); // what a killed commit left, read-only or not
        if (!writeDurably(stagedPath, file.bytes, error)) return dropStaged(), false;
        staged.append(stagedPath);
        if (target.exists()) QFile::setPermissions(stagedPath, target.permissions());
        entries.append({QFile::encodeName(target.fileName() + QLatin1String(kStagedSuffix)),
                        QFile::encodeName(target.fileName())});
        // Only the files moved before another can need their old content back.
        const bool last = &file == &files.back();
        previous.push_back(!last && target.exists() ? ReadWholeFile(file.nativePath) : std::nullopt);
    }

    // From the moment the journal is on the disk, a start after a kill
    // finishes the moves; before it, the start drops the staged copies.
    if (failedPath) *failedPath = journalPath;
    if (!writeDurably(journalPath, ComposeCommitJournal(entries), error) || !SyncFolder(folder)) {
        QFile::remove(journalPath);
        return dropStaged(), false;
    }
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (::rename(QFile::encodeName(staged[i]).constData(), QFile::encodeName(files[i].nativePath).constData()) == 0)
            continue;
        if (failedPath) *failedPath = files[i].nativePath;
        if (error) *error = QString::fromLocal8Bit(std::strerror(errno));
        // Put back what the earlier moves replaced, then give up the commit.
        // A kill while the old content goes back has the start finish the
        // moves; only between the last restore and the journal's removal
        // would a kill still leave the files apart.
        for (qsizetype j = 0; j < i; ++j) {
            if (previous[static_cast<std::size_t>(j)]) WriteWholeFile(files[j].nativePath, *previous[static_cast<std::size_t>(j)]);
            else QFile::remove(files[j].nativePath);
        }
        QFile::remove(journalPath);
        dropStaged();
        SyncFolder(folder);
        return false;
    }
    SyncFolder(folder);
    QFile::remove(journalPath);
    SyncFolder(folder);
    return true;
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
