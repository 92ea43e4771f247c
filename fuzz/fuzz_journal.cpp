// The journal reader: whatever the bytes, a journal read as complete is one
// that the writer composes byte for byte, and names only files of its own
// folder, each with its staged copy or none (a file that goes).

#include "Fuzz.h"
#include "platform/CommitJournal.h"

static void fuzzOne(QByteArrayView bytes) {
    const brimo::JournalReading reading = brimo::ReadCommitJournal(bytes);
    FUZZ_CHECK(reading.kind == brimo::JournalReading::Complete ? brimo::ComposeCommitJournal(reading.entries) == bytes
                                                                 : reading.entries.isEmpty());
    for (const brimo::JournalEntry& entry : reading.entries) {
        FUZZ_CHECK(!entry.target.isEmpty() && !entry.target.contains('/') && entry.target != ".." && entry.target != ".");
        FUZZ_CHECK(entry.staged.isEmpty() || entry.staged == entry.target + brimo::kStagedSuffix);
    }
}
