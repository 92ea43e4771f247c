#pragma once
// The journal of a commit of several files of one folder: which staged file
// goes over which file. It is written and flushed before the first move and
// removed after the last, so that a start after a kill can tell whether to
// finish the moves or to drop the staged files.
//
// Its bytes, all names bare file names of the journal's own folder:
//   Brimo commit journal 1\n
//   <staged>\t<target>\n         one line per file, in the order of the moves
//   \t<target>\n                 a file that is removed in its turn
//   end\t<SHA-256 in hex of every byte before this line>\n

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

namespace brimo {

// The staged copy of a file is its name and this suffix, in its folder: a
// fixed name, so that a later commit overwrites what a killed one left and a
// start can find it.
inline constexpr char kStagedSuffix[] = ".brimo-new";

struct JournalEntry {
    QByteArray staged; // file names, as the file system spells them; no
    QByteArray target; // staged file: the target is removed
    bool operator==(const JournalEntry&) const = default;
};

QByteArray ComposeCommitJournal(const QList<JournalEntry>& entries);

struct JournalReading {
    enum Kind {
        Complete,   // well formed with its end line: the moves may have begun
        Incomplete, // cut short while it was written: no move has begun
        Damaged,    // anything else: never followed
    } kind = Damaged;
    QList<JournalEntry> entries; // only for Complete
    const char* problem = "";    // why, for Damaged
};

// Only a journal that ComposeCommitJournal could have written reads as
// Complete, and each of its entries names a target inside the journal's
// folder and, unless it is removed, its staged file (`target` +
// kStagedSuffix).
JournalReading ReadCommitJournal(QByteArrayView bytes);

} // namespace brimo
