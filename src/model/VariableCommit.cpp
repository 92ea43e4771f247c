#include "model/VariableCommit.h"

#include "model/LispFile.h"
#include "platform/Cp1252.h"
#include "platform/WindowsPaths.h"

#include <QFile>
#include <QFileInfo>

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
    for (const CommittedRow& row : rows) {
        lines.append(row.line);
        keys.append({toCp1252(row.key), toCp1252(row.value)});
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
        if (!before || *before != file.planned.bytes) changed.append(file.windowsPath);
    }
    return changed;
}

CommitOutcome CommitPlan::write() const {
    if (!readFailure_.ok) return readFailure_;
    QList<FileToWrite> planned;
    for (const File& file : files()) planned.append(file.planned);
    QString failed, reason;
    if (!WriteFilesTogether(planned, journalBeside(nativeIni_), &failed, &reason)) {
        for (const File& file : files())
            if (file.planned.nativePath == failed) return {false, file.windowsPath, reason};
        return {false, failed, reason};
    }
    return {};
}

CommitOutcome CommitVariables(const WinePrefix& prefix, const QString& lispPath, const QString& iniPath, const QString& section,
                              const QList<CommittedRow>& rows) {
    const UserFolderLock lock(prefix, iniPath);
    CommitPlan plan(lock);
    plan.add(lispPath, section, rows);
    return plan.write();
}

Recovery RecoverInterruptedCommit(const InstallInfo& info) { return UserFolderLock(info.prefix, BrimoIniPath(info)).recovery(); }

} // namespace brimo
