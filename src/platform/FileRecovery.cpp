// The start's half of WriteFilesTogether: finish or drop what a kill cut off.

#include "platform/CommitJournal.h"
#include "platform/FileAccess.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace brimo {

namespace {

void report(const QString& path, const char* what) {
    std::fprintf(stderr, "Brimo: %s: %s\n", QFile::encodeName(path).constData(), what);
}

// Moves each staged copy that is still there over its file, following the
// file's links as the commit did, and removes each file that goes. A copy
// that is gone was moved before the kill.
bool rollForward(const QString& folder, const QList<JournalEntry>& entries, const QString& journalPath) {
    for (const JournalEntry& entry : entries) {
        Failure why;
        const std::optional<QString> target = FollowLinks(folder + QLatin1Char('/') + QFile::decodeName(entry.target), &why);
        const QString staged = target.value_or(QString()) + QLatin1String(kStagedSuffix);
        const bool removal = entry.staged.isEmpty();
        if (target && !removal && !QFileInfo::exists(staged)) continue;
        if (!target || (removal ? !RemoveFile(*target)
                                : ::rename(QFile::encodeName(staged).constData(), QFile::encodeName(*target).constData()) != 0)) {
            const int reason = target ? errno : why.systemError;
            const QByteArray what = "cannot " + (removal ? "remove " + entry.target : "move " + entry.staged) + ": " + std::strerror(reason) +
                                    "; the commit is left to finish at the next start";
            report(journalPath, what.constData());
            return false;
        }
        if (QFileInfo(*target).absolutePath() != folder) SyncFolder(QFileInfo(*target).absolutePath());
    }
    SyncFolder(folder);
    return true;
}

// Staged copies that no complete journal names are what a kill left before
// the journal was on the disk: they never reached their files. They lie in
// the folder, or beside the file that a link of the folder leads to.
bool removeStagedCopies(const QString& folder) {
    // One walk of the folder, without a name pattern: a pattern would be
    // compiled at every start for a folder of a few files.
    QStringList staged;
    QDirIterator entries(folder, QDir::Files | QDir::System | QDir::Hidden | QDir::CaseSensitive);
    while (entries.hasNext()) {
        const QFileInfo entry = entries.nextFileInfo();
        if (entry.fileName().endsWith(QLatin1String(kStagedSuffix))) staged.append(entry.filePath());
        if (entry.isSymLink())
            if (const std::optional<QString> target = FollowLinks(entry.filePath()))
                if (QFileInfo(*target + QLatin1String(kStagedSuffix)).isFile()) staged.append(*target + QLatin1String(kStagedSuffix));
    }
    for (const QString& path : staged) QFile::remove(path);
    return !staged.isEmpty();
}

} // namespace

Recovery RecoverFilesTogether(const QString& journalPath) {
    const QString folder = QDir::cleanPath(QFileInfo(journalPath).absolutePath());
    Recovery outcome = Recovery::Nothing;
    if (QFileInfo::exists(journalPath)) {
        const JournalReading journal = ReadCommitJournal(ReadWholeFile(journalPath).value_or(QByteArray()));
        switch (journal.kind) {
        case JournalReading::Complete:
            if (!rollForward(folder, journal.entries, journalPath)) return Recovery::Failed;
            report(journalPath, "an interrupted commit was finished");
            outcome = Recovery::RolledForward;
            break;
        case JournalReading::Incomplete:
            report(journalPath, "an interrupted commit was undone");
            outcome = Recovery::RolledBack;
            break;
        case JournalReading::Damaged:
            // Not followed: the files stay as they are. It is removed, with
            // the staged copies, so that it is reported once and a later
            // commit starts clean.
            report(journalPath, (QByteArray("damaged (") + journal.problem + "), ignored and removed").constData());
            outcome = Recovery::Ignored;
            break;
        }
    }
    if (removeStagedCopies(folder) && outcome == Recovery::Nothing) {
        report(folder, "the staged files of an interrupted commit were removed");
        outcome = Recovery::RolledBack;
    }
    if (outcome != Recovery::Nothing) {
        QFile::remove(journalPath);
        SyncFolder(folder);
    }
    return outcome;
}

} // namespace brimo
