#include "platform/CommitJournal.h"

#include <QCryptographicHash>

namespace brimo {

namespace {

constexpr QByteArrayView kHeader = "Brimo commit journal 1\n";
constexpr QByteArrayView kEnd = "end\t";

QByteArray digest(QByteArrayView bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

// A bare name of the folder: no separator, no way up, nothing that would
// break a line of the journal.
bool isBareName(QByteArrayView name) {
    if (name.isEmpty() || name == "." || name == "..") return false;
    for (char c : name)
        if (c == '/' || c == '\0' || c == '\t' || c == '\n' || c == '\r') return false;
    return true;
}

bool isEntry(QByteArrayView line, JournalEntry* entry) {
    const qsizetype tab = line.indexOf('\t');
    if (tab < 0) return false;
    const QByteArrayView staged = line.first(tab), target = line.sliced(tab + 1);
    if (!isBareName(target)) return false;
    if (!staged.isEmpty() && staged != QByteArray(target.toByteArray() + kStagedSuffix)) return false;
    if (entry) *entry = {staged.toByteArray(), target.toByteArray()};
    return true;
}

JournalReading incomplete() { return {JournalReading::Incomplete, {}, ""}; }
JournalReading damaged(const char* problem) { return {JournalReading::Damaged, {}, problem}; }

} // namespace

QByteArray ComposeCommitJournal(const QList<JournalEntry>& entries) {
    QByteArray bytes = kHeader.toByteArray();
    for (const JournalEntry& entry : entries) bytes += entry.staged + '\t' + entry.target + '\n';
    return bytes + kEnd.toByteArray() + digest(bytes) + '\n';
}

JournalReading ReadCommitJournal(QByteArrayView bytes) {
    // A kill while the journal was written leaves a prefix of it: the header
    // or part of it, whole entry lines, and at most one line cut short.
    if (bytes.size() < kHeader.size())
        return kHeader.startsWith(bytes) ? incomplete() : damaged("not a commit journal");
    if (!bytes.startsWith(kHeader)) return damaged("not a commit journal");

    JournalReading reading;
    qsizetype pos = kHeader.size();
    while (pos < bytes.size()) {
        const qsizetype newline = bytes.indexOf('\n', pos);
        if (newline < 0) return incomplete();
        const QByteArrayView line = bytes.sliced(pos, newline - pos);
        if (line.startsWith(kEnd)) {
            if (newline + 1 != bytes.size()) return damaged("bytes after its end");
            if (reading.entries.isEmpty()) return damaged("no file named");
            if (line.sliced(kEnd.size()) != digest(bytes.first(pos)))
                return damaged("its checksum does not match");
            reading.kind = JournalReading::Complete;
            return reading;
        }
        JournalEntry entry;
        if (!isEntry(line, &entry))
            return damaged("a line that names no staged file of its folder");
        reading.entries.append(entry);
        pos = newline + 1;
    }
    return incomplete();
}

} // namespace brimo
