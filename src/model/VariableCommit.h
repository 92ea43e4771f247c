#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// A commit writes each value twice and in lockstep: a line of the Lisp file
// and a key of one section of Brimo.ini. Both files are written whole, the
// Lisp file first, all or nothing: a failure leaves both as they were.

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

CommitOutcome CommitVariables(const QString& lispPath, const QString& iniPath, const QString& section,
                              const QList<CommittedRow>& rows);

} // namespace brimo
