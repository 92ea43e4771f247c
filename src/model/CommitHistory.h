#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The history of commits in a user's folder: before each commit that changes
// a file, the files as they were go into a numbered entry of Brimo.history/
// beside Brimo.ini, with when, by which program, for what and which keys
// changed. The last kHistoryLength entries are kept. An entry is written in
// a temporary folder inside Brimo.history/, flushed, then moved to its
// number, so that an entry that exists under a number is whole; a temporary
// one that a kill left behind is never read, and the next record removes it.
// Every function here runs under the lock of the user's folder.

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace brimo {

inline constexpr int kHistoryLength = 20;

// A file of the user's folder, by its name there, as it was before a commit;
// no bytes when it did not exist.
struct KeptFile {
    QString name;
    std::optional<QByteArray> bytes;
};

struct HistoryEntry {
    int number = 0;
    QDateTime when;
    QString program; // the process that committed: Brimo2010, brimo-settings
    QString what;    // "OK", "set", "apply", "restore 3"
    QStringList keys; // "Section/key" of each value that the commit changed
    QList<KeptFile> files; // the files as they were before the commit
};

// The folder of the history of the Brimo.ini at `nativeIni`.
QString HistoryFolder(const QString& nativeIni);

// The whole entries, oldest first.
QList<HistoryEntry> ReadHistory(const QString& nativeIni);

// Records an entry and prunes the oldest beyond kHistoryLength. Gives its
// number, or nothing with `error`.
std::optional<int> RecordHistory(const QString& nativeIni, const HistoryEntry& entry, QString* error);

// Removes an entry, as a commit that failed after its record does.
void DropHistoryEntry(const QString& nativeIni, int number);

// The name under which this process records its commits: the name of its
// program file.
QString CommitProgramName();

// "Section/key" of each key of the two sections whose value differs between
// two versions of Brimo.ini.
QStringList ChangedKeys(const QByteArray& iniBefore, const QByteArray& iniAfter);

} // namespace brimo
