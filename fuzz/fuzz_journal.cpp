// The journal reader: whatever the bytes, a journal read as complete is one
// that the writer composes byte for byte, and names only staged copies of
// files of its own folder.

#include "Fuzz.h"
#include "platform/CommitJournal.h"

static void fuzzOne(QByteArrayView bytes) {
    const brimo::JournalReading reading = brimo::ReadCommitJournal(bytes);
    FUZZ_CHECK(reading.kind == brimo::JournalReading::Complete ? brimo::ComposeCommitJournal(reading.entries) == bytes
                                                                 : reading.entries.isEmpty());
    for (const brimo::JournalEntry& entry : reading.entries) {
        FUZZ_CHECK(!entry.target.contains('/') && entry.target != ".." && entry.target != ".");
        FUZZ_CHECK(entry.staged == entry.target + brimo::kStagedSuffix);
    }
}
