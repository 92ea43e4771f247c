#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// A commit writes each value twice and in lockstep: a line of the Lisp file
// and a key of one section of Brimo.ini. Both files are written whole, the
// Lisp file first, all or nothing: a failure leaves both as they were, and a
// kill or a power loss at any moment leaves both old or both new once the
// next start has run RecoverInterruptedCommit.

#include "model/InstallInfo.h"
#include "platform/FileAccess.h"

#include "platform/FileAccess.h"
#include "platform/ProfileDocument.h"

#include <QList>
#include <QString>

namespace brimo {

struct CommittedRow {
    QString line;  // the Lisp line
    QString key;   // the key in the section
    QString value; // the key's value
};

struct CommitOutcome {
    bool ok = true;
    QString file;   // the Windows path of the file that could not be written
    QString reason;
};

// One or more commits on the same Brimo.ini, composed in memory and written
// together: each Lisp file, then Brimo.ini, all or nothing.
class CommitPlan {
public:
    // Reads Brimo.ini as it stands; a file that exists and cannot be read
    // makes the plan fail.
    explicit CommitPlan(const QString& iniPath);

    void add(const QString& lispPath, const QString& section, const QList<CommittedRow>& rows);

    // The Windows paths of the files whose bytes would change.
    QStringList changedFiles() const;
    CommitOutcome write() const;

private:
    struct File {
        QString windowsPath;
        FileToWrite planned;
    };
    QList<File> files() const;

    QString iniPath_, nativeIni_;
    CommitOutcome readFailure_;
    ProfileDocument ini_;
    QList<File> lispFiles_;
};

CommitOutcome CommitVariables(const QString& lispPath, const QString& iniPath, const QString& section,
                              const QList<CommittedRow>& rows);

// Finishes or undoes a commit that a kill or a power loss cut off in the
// folder of Brimo.ini: every program that reads or writes these files calls it
// at its start, before it reads any of them. Reports what it did on stderr.
Recovery RecoverInterruptedCommit(const InstallInfo& info);

} // namespace brimo
