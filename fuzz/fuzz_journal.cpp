// The journal reader: whatever the bytes, a journal read as complete is one
// that the writer composes byte for byte, and names only staged copies of
// files of its own folder.

#include "Check.h"
#include "platform/CommitJournal.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArrayView bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const brimo::JournalReading reading = brimo::ReadCommitJournal(bytes);
    if (reading.kind != brimo::JournalReading::Complete) {
        FUZZ_CHECK(reading.entries.isEmpty());
        return 0;
    }
    FUZZ_CHECK(brimo::ComposeCommitJournal(reading.entries) == bytes);
    for (const brimo::JournalEntry& entry : reading.entries) {
        FUZZ_CHECK(!entry.target.contains('/') && entry.target != ".." && entry.target != ".");
        FUZZ_CHECK(entry.staged == entry.target + brimo::kStagedSuffix);
    }
    return 0;
}
