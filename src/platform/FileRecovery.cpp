// The start's half of WriteFilesTogether: finish or drop what a kill cut off.

#include "platform/CommitJournal.h"
#include "platform/FileAccess.h"

#include <QDir>
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

// Moves each staged copy that is still there over its file. A copy that is
// gone was moved before the kill.
bool rollForward(const QString& folder, const QList<JournalEntry>& entries, const QString& journalPath) {
    for (const JournalEntry& entry : entries) {
        const QByteArray staged = QFile::encodeName(folder) + '/' + entry.staged;
        const QByteArray target = QFile::encodeName(folder) + '/' + entry.target;
        if (!QFileInfo::exists(QFile::decodeName(staged))) continue;
        if (::rename(staged.constData(), target.constData()) != 0) {
            const QByteArray why = "cannot move " + entry.staged + ": " + std::strerror(errno) +
                                   "; the commit is left to finish at the next start";
            report(journalPath, why.constData());
            return false;
        }
    }
    SyncFolder(folder);
    return true;
}

// Staged copies that no complete journal names are what a kill left before
// the journal was on the disk: they never reached their files.
bool removeStagedCopies(const QString& folder) {
    const QDir dir(folder);
    const QStringList names = dir.entryList({QLatin1Char('*') + QLatin1String(kStagedSuffix)},
                                            QDir::Files | QDir::Hidden | QDir::System | QDir::CaseSensitive);
    for (const QString& name : names) QFile::remove(dir.filePath(name));
    return !names.isEmpty();
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
