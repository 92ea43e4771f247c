#include "model/VariableCommit.h"

#include "model/FailureText.h"

#include "model/LispFile.h"
#include "platform/Cp1252.h"
#include "platform/WindowsPaths.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <map>
#include <cstdio>
#include <cstdlib>

#include <sys/stat.h>

namespace brimo {

namespace {

// The commit's journal and the folder's lock lie beside Brimo.ini.
QString journalBeside(const QString& nativeIni) {
    return QFileInfo(nativeIni).absolutePath() + QStringLiteral("/Brimo.commit-journal");
}
// The lock of a folder, by one name in every folder, so that two prefixes
// whose links lead into one folder take the same lock there.
QString lockIn(const QString& folder) { return folder + QStringLiteral("/Brimo.ini.lock"); }

// The folders whose files a commit or a recovery in the folder of Brimo.ini
// touches: that folder, and the folder that each of the user's files leads
// to when it is a link; each once, in the order of their identity on the disk
// (device, then inode), which every process sees alike, however it reaches
// them. A folder that does not exist comes last.
QStringList foldersToLock(const QString& nativeIni) {
    const QString folder = QFileInfo(nativeIni).absolutePath();
    QStringList folders{folder};
    const auto all = QDir::Files | QDir::System | QDir::Hidden;
    const auto userFile = [](const QString& name) {
        return std::any_of(kUserFileNames.begin(), kUserFileNames.end(),
                           [&](const char* userName) { return name.compare(QLatin1String(userName), Qt::CaseInsensitive) == 0; });
    };
    for (QDirIterator entries(folder, all); entries.hasNext();) {
        const QFileInfo link = entries.nextFileInfo();
        if (userFile(link.fileName()) && link.isSymLink())
            if (const std::optional<QString> target = FollowLinks(link.filePath()))
                folders.append(QFileInfo(*target).absolutePath());
    }
    std::map<std::pair<dev_t, ino_t>, QString> byIdentity;
    QStringList missing;
    for (const QString& each : folders) {
        struct stat info {};
        if (::stat(QFile::encodeName(each).constData(), &info) != 0) missing.append(each);
        else byIdentity.emplace(std::pair{info.st_dev, info.st_ino}, each);
    }
    QStringList ordered;
    for (const auto& [identity, each] : byIdentity) ordered.append(each);
    return ordered + missing;
}

// Records the files as they stand in the history, then writes them all
// together; a write that fails takes its entry back. Gives the native path
// of a file that could not be written.
CommitOutcome writeWithHistory(const QString& nativeIni, const QList<FileToWrite>& planned,
                               const QString& what, const QStringList& changedKeys) {
    HistoryEntry entry;
    entry.when = QDateTime::currentDateTimeUtc();
    entry.program = CommitProgramName();
    entry.what = what;
    entry.keys = changedKeys;
    StampHistoryEntry(entry);
    bool changes = false;
    for (const FileToWrite& file : planned) {
        const std::optional<QByteArray> before = ReadWholeFile(file.nativePath);
        changes = changes || before != file.bytes;
        entry.files.append({QFileInfo(file.nativePath).fileName(), before.has_value(), before});
        if (file.nativePath == nativeIni)
            entry.changes = KeyChanges(before.value_or(QByteArray()), file.bytes.value_or(QByteArray()), changedKeys);
    }
    changes = changes && !nativeIni.isEmpty(); // a Brimo.ini that names no folder here has no history
    Failure historyFailure;
    const bool staged = changes && StageHistoryEntry(nativeIni, entry, &historyFailure);
    QString failed;
    Failure reason;
    // The entry takes its number while the journal still stands: a kill
    // before the journal goes leaves the numbering to the next start.
    const auto keepEntry = [&] {
        if (staged) KeepStagedHistoryEntry(nativeIni);
    };
    if (!WriteFilesTogether(planned, journalBeside(nativeIni), &failed, &reason, keepEntry)) {
        if (staged) DropStagedHistoryEntry(nativeIni);
        return {false, failed, reason};
    }
    // The commit itself says why the folder cannot be written; a history
    // that alone cannot be kept does not stop it.
    if (changes && !staged)
        std::fprintf(stderr, "Brimo: the history of this commit is not kept: %s\n",
                     FailureText(historyFailure, Wording::English).toLocal8Bit().constData());
    return {};
}

} // namespace

UserFolderLock::UserFolderLock(const WinePrefix& prefix, const QString& iniPath)
    : prefix_(prefix), iniPath_(iniPath), nativeIni_(ToNativePath(prefix, iniPath)),
      owner_(prefix.folder, EXIT_FAILURE) {
    // Whoever took the lock says why it is not had (failure()): the dialog at
    // its start and in its report, brimo-settings in the user's language.
    if (owner_.failure()) return;
    const QStringList folders = nativeIni_.isEmpty() ? QStringList{QString()} : foldersToLock(nativeIni_);
    for (const QString& folder : folders) {
        locks_.push_back(std::make_unique<FolderLock>(folder.isEmpty() ? QString() : lockIn(folder), kUserFolderLockWait));
        if (locks_.back()->state() != FolderLock::State::Held) break;
    }
    if (state() != FolderLock::State::Held) return;
    recovery_ = RecoverFilesTogether(journalBeside(nativeIni_));
    // The entry that a commit cut off had staged counts once that commit
    // has been finished, and goes when it has been undone.
    if (recovery_ != Recovery::Failed) RecoverHistory(nativeIni_, recovery_ == Recovery::RolledForward);
}

const FolderLock* UserFolderLock::firstNotHeld() const {
    for (const auto& lock : locks_)
        if (lock->state() != FolderLock::State::Held) return lock.get();
    return nullptr;
}

FolderLock::State UserFolderLock::state() const {
    if (locks_.empty()) return FolderLock::State::Unavailable; // not even its owner's rights
    const FolderLock* lock = firstNotHeld();
    return lock ? lock->state() : FolderLock::State::Held;
}

CommitOutcome UserFolderLock::failure() const {
    if (locks_.empty()) return {false, iniPath_, owner_.failure(), false};
    const FolderLock* lock = firstNotHeld();
    if (!lock) return {};
    return {false, iniPath_, lock->why(), lock->state() == FolderLock::State::Busy};
}

CommitPlan::CommitPlan(const UserFolderLock& lock)
    : prefix_(lock.prefix()), iniPath_(lock.iniPath()), nativeIni_(ToNativePath(prefix_, lock.iniPath())) {
    // Nothing is written without every lock.
    if (lock.state() != FolderLock::State::Held) {
        readFailure_ = lock.failure();
        noFolder_ = lock.state() == FolderLock::State::NoFolder;
        return;
    }
    if (!QFileInfo::exists(nativeIni_)) return;
    Failure failure;
    auto bytes = ReadWholeFile(nativeIni_, &failure);
    if (!bytes) readFailure_ = {false, iniPath_, failure};
    else ini_ = ProfileDocument(std::move(*bytes));
}

void CommitPlan::add(const QString& lispPath, const QString& section, const QList<CommittedRow>& rows) {
    QStringList lines;
    QList<ProfileDocument::KeyValue> keys;
    const QByteArray name = toCp1252(section);
    for (const CommittedRow& row : rows) {
        lines.append(row.line);
        keys.append({toCp1252(row.key), toCp1252(row.value)});
        const QByteArray before = ini_.getString(name, keys.last().first, 1 << 20);
        if (before != keys.last().second) (before.isEmpty() ? addedKeys_ : changedKeys_).append(section + QLatin1Char('/') + row.key);
    }
    lispFiles_.append({lispPath, {ToNativePath(prefix_, lispPath), ComposeLispFile(lines)}});
    ini_.setStrings(toCp1252(section), keys);
}

QList<CommitPlan::File> CommitPlan::files() const {
    QList<File> all = lispFiles_;
    all.append({iniPath_, {nativeIni_, ini_.bytes()}});
    return all;
}

QStringList CommitPlan::changedFiles() const {
    QStringList changed;
    for (const File& file : files()) {
        // A file that cannot be read counts as changed: only a write can tell.
        const std::optional<QByteArray> before = ReadWholeFile(file.planned.nativePath);
        if (!before || before != file.planned.bytes) changed.append(file.windowsPath);
    }
    return changed;
}

CommitOutcome CommitPlan::write() const {
    if (noFolder_) return {false, files().first().windowsPath, readFailure_.reason};
    if (!readFailure_.ok) return readFailure_;
    QList<FileToWrite> planned;
    for (const File& file : files()) planned.append(file.planned);
    QStringList keys = changedKeys_ + addedKeys_;
    std::stable_partition(keys.begin(), keys.end(), [this](const QString& key) {
        return givenKeys_.contains(key, Qt::CaseInsensitive);
    });
    CommitOutcome outcome = writeWithHistory(nativeIni_, planned, what_, keys);
    for (const File& file : files())
        if (!outcome.ok && file.planned.nativePath == outcome.file) outcome.file = file.windowsPath;
    return outcome;
}

CommitOutcome CommitVariables(const WinePrefix& prefix, const QString& lispPath, const QString& iniPath, const QString& section,
                              const QList<CommittedRow>& rows) {
    const UserFolderLock lock(prefix, iniPath);
    CommitPlan plan(lock);
    plan.add(lispPath, section, rows);
    return plan.write();
}

CommitOutcome RestoreHistoryEntry(const UserFolderLock& lock, const HistoryEntry& entry) {
    if (lock.state() != FolderLock::State::Held) return lock.failure();
    const QString nativeIni = lock.nativeIniPath();
    // Each file gets its bytes back; one that did not exist before that
    // commit goes.
    const QString folder = QFileInfo(nativeIni).absolutePath() + QLatin1Char('/');
    QList<FileToWrite> planned;
    QByteArray iniAfter = ReadWholeFile(nativeIni).value_or(QByteArray());
    const QByteArray iniBefore = iniAfter;
    for (const KeptFile& file : entry.files) {
        planned.append({folder + file.name, file.bytes});
        if (folder + file.name == nativeIni) iniAfter = file.bytes.value_or(QByteArray());
    }
    CommitOutcome outcome = writeWithHistory(nativeIni, planned, QStringLiteral("restore %1").arg(entry.number),
                                             ChangedKeys(iniBefore, iniAfter));
    if (!outcome.ok && outcome.file == nativeIni) outcome.file = lock.iniPath();
    return outcome;
}

StartRecovery RecoverInterruptedCommit(const InstallInfo& info) {
    const UserFolderLock lock(info.prefix, BrimoIniPath(info));
    // A folder that is missing has nothing to recover, and says so at OK.
    if (lock.state() == FolderLock::State::NoFolder) return {};
    return {lock.recovery(), lock.failure()};
}

} // namespace brimo
