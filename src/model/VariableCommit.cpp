#include "model/VariableCommit.h"

#include "model/LispFile.h"
#include "platform/Cp1252.h"
#include "platform/WindowsPaths.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

namespace brimo {

namespace {

// The commit's journal and the folder's lock lie beside Brimo.ini.
QString journalBeside(const QString& nativeIni) {
    return QFileInfo(nativeIni).absolutePath() + QStringLiteral("/Brimo.commit-journal");
}
QString lockBeside(const QString& nativeIni) {
    return nativeIni.isEmpty() ? QString() : nativeIni + QStringLiteral(".lock");
}

// Records the files as they stand in the history, then writes them all
// together; a write that fails takes its entry back. Gives the native path
// of a file that could not be written.
CommitOutcome writeWithHistory(const QString& nativeIni, const QList<FileToWrite>& planned,
                               const QString& what, const QStringList& changedKeys) {
    HistoryEntry entry{0, QDateTime::currentDateTimeUtc(), CommitProgramName(), what, changedKeys, {}};
    bool changes = false;
    for (const FileToWrite& file : planned) {
        const std::optional<QByteArray> before = ReadWholeFile(file.nativePath);
        changes = changes || before != file.bytes;
        entry.files.append({QFileInfo(file.nativePath).fileName(), before});
    }
    changes = changes && !nativeIni.isEmpty(); // a Brimo.ini that names no folder here has no history
    QString historyError;
    const bool staged = changes && StageHistoryEntry(nativeIni, entry, &historyError);
    QString failed, reason;
    if (!WriteFilesTogether(planned, journalBeside(nativeIni), &failed, &reason)) {
        if (staged) DropStagedHistoryEntry(nativeIni);
        return {false, failed, reason};
    }
    if (staged) KeepStagedHistoryEntry(nativeIni);
    // The commit itself says why the folder cannot be written; a history
    // that alone cannot be kept does not stop it.
    else if (changes)
        std::fprintf(stderr, "Brimo: the history of this commit is not kept: %s\n", historyError.toLocal8Bit().constData());
    return {};
}

} // namespace

UserFolderLock::UserFolderLock(const WinePrefix& prefix, const QString& iniPath)
    : prefix_(prefix), iniPath_(iniPath), nativeIni_(ToNativePath(prefix, iniPath)), lock_(lockBeside(nativeIni_), kUserFolderLockWait) {
    if (nativeIni_.isEmpty()) return; // a path that names no folder here
    if (busy()) {
        std::fprintf(stderr, "Brimo: %s: %s\n", QFile::encodeName(nativeIni_).constData(),
                     lock_.why().toLocal8Bit().constData());
        return;
    }
    recovery_ = RecoverFilesTogether(journalBeside(nativeIni_));
    // The entry that a commit cut off had staged counts once that commit
    // has been finished, and goes when it has been undone.
    if (recovery_ == Recovery::RolledForward) KeepStagedHistoryEntry(nativeIni_);
    else if (recovery_ != Recovery::Failed) DropStagedHistoryEntry(nativeIni_);
}

CommitPlan::CommitPlan(const UserFolderLock& lock)
    : prefix_(lock.prefix()), iniPath_(lock.iniPath()), nativeIni_(ToNativePath(prefix_, lock.iniPath())) {
    if (lock.busy()) {
        readFailure_ = lock.busyOutcome();
        return;
    }
    if (!QFileInfo::exists(nativeIni_)) return;
    QString error;
    auto bytes = ReadWholeFile(nativeIni_, &error);
    if (!bytes) readFailure_ = {false, iniPath_, error};
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
    if (!readFailure_.ok) return readFailure_;
    QList<FileToWrite> planned;
    for (const File& file : files()) planned.append(file.planned);
    CommitOutcome outcome = writeWithHistory(nativeIni_, planned, what_, changedKeys_ + addedKeys_);
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

CommitOutcome RestoreHistoryEntry(const UserFolderLock& lock, int number, HistoryEntry* restored) {
    if (lock.busy()) return lock.busyOutcome();
    const QString nativeIni = lock.nativeIniPath();
    const QList<HistoryEntry> history = ReadHistory(nativeIni);
    const auto entry = std::find_if(history.rbegin(), history.rend(),
                                    [&](const HistoryEntry& e) { return number == 0 || e.number == number; });
    if (entry == history.rend())
        return {false, HistoryFolder(nativeIni),
                number ? QStringLiteral("no entry %1").arg(number) : QStringLiteral("no entry")};
    if (restored) *restored = *entry;
    // Each file gets its bytes back; one that did not exist before that
    // commit goes.
    const QString folder = QFileInfo(nativeIni).absolutePath() + QLatin1Char('/');
    QList<FileToWrite> planned;
    QByteArray iniAfter = ReadWholeFile(nativeIni).value_or(QByteArray());
    const QByteArray iniBefore = iniAfter;
    for (const KeptFile& file : entry->files) {
        planned.append({folder + file.name, file.bytes});
        if (folder + file.name == nativeIni) iniAfter = file.bytes.value_or(QByteArray());
    }
    CommitOutcome outcome = writeWithHistory(nativeIni, planned, QStringLiteral("restore %1").arg(entry->number),
                                             ChangedKeys(iniBefore, iniAfter));
    if (!outcome.ok && outcome.file == nativeIni) outcome.file = lock.iniPath();
    return outcome;
}

Recovery RecoverInterruptedCommit(const InstallInfo& info) { return UserFolderLock(info.prefix, BrimoIniPath(info)).recovery(); }

} // namespace brimo
