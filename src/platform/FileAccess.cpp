#include "platform/FileAccess.h"

#include "platform/CommitJournal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace brimo {

namespace {
constexpr int kMaxLinkDepth = 40; // as the system counts a loop of links
}

std::optional<QByteArray> ReadWholeFile(const QString& nativePath, QString* error) {
    if (QFileInfo(nativePath).isDir()) {
        if (error) *error = QStringLiteral("a folder stands where the file should be");
        return std::nullopt;
    }
    QFile file(nativePath);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error) *error = file.errorString();
        return std::nullopt;
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        if (error) *error = file.errorString();
        return std::nullopt;
    }
    return bytes;
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
                        QString* error) {
    const QString folder = folderOf(journalPath);
    // Each file as written: the file its links lead to, its staged copy
    // beside it, and the old content where a later move could fail.
    struct Move {
        QString target, staged;
        std::optional<QByteArray> previous;
    };
    QList<Move> moves;
    QList<JournalEntry> entries;
    const auto dropStaged = [&] {
        for (const Move& move : moves) QFile::remove(move.staged);
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
        if (!writeDurably(move.staged, file.bytes, error)) return dropStaged(), false;
        moves.append(move);
        if (old.exists()) QFile::setPermissions(move.staged, old.permissions());
        // The journal names the files as the folder holds them; a start
        // follows their links as this commit did.
        const QString name = QFileInfo(file.nativePath).fileName();
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
        if (::rename(QFile::encodeName(move.staged).constData(), QFile::encodeName(move.target).constData()) == 0)
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
