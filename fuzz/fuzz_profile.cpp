// The profile file writer and reader: after one write of a key to any file,
// every line that is not the written key is still there byte for byte, and
// reading the key gives the written value as the profile functions return it.

#include "Fuzz.h"
#include "platform/ProfileDocument.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstring>

static QByteArray blanksDropped(const QByteArray& text) {
    qsizetype b = 0, e = text.size();
    while (b < e && brimo::isProfileBlank(static_cast<unsigned char>(text[b]))) ++b;
    while (e > b && brimo::isProfileBlank(static_cast<unsigned char>(text[e - 1]))) --e;
    return text.mid(b, e - b);
}

// A name the program could write: one line, found again by its name.
static bool isWritableName(const QByteArray& name, const char* forbidden) {
    for (char c : name)
        if (c == '\r' || c == '\n' || c == '\0' || std::strchr(forbidden, c)) return false;
    return !blanksDropped(name).isEmpty();
}

static void fuzzOne(QByteArrayView data) {
    FuzzedDataProvider input(reinterpret_cast<const uint8_t*>(data.data()), size_t(data.size()));
    const QByteArray section = QByteArray::fromStdString(input.ConsumeRandomLengthString(40));
    const QByteArray key = QByteArray::fromStdString(input.ConsumeRandomLengthString(40));
    const QByteArray value = QByteArray::fromStdString(input.ConsumeRandomLengthString(200));
    const QByteArray before = QByteArray::fromStdString(input.ConsumeRemainingBytesAsString());

    brimo::ProfileDocument document(before);
    document.getString(section, key); // reads of the untouched file must not fail, whatever it holds
    if (!isWritableName(section, "[]") || !isWritableName(key, "=[;") || !isWritableName(value, "")) return;
    document.setString(section, key, value);
    const QByteArray& after = document.bytes();

    // The write replaced bytes within one line, or added lines, nothing else.
    qsizetype prefix = 0, suffix = 0;
    while (prefix < before.size() && prefix < after.size() && before[prefix] == after[prefix]) ++prefix;
    while (suffix < before.size() - prefix && suffix < after.size() - prefix &&
           before[before.size() - 1 - suffix] == after[after.size() - 1 - suffix])
        ++suffix;
    const QByteArray removed = before.mid(prefix, before.size() - prefix - suffix);
    FUZZ_CHECK(!removed.contains('\r') && !removed.contains('\n'));

    // The value as a read gives it back: no blanks around it, one pair of quotes off.
    QByteArray read = blanksDropped(value);
    if (read.size() >= 2 && (read.front() == '"' || read.front() == '\'') && read.back() == read.front()) read = read.mid(1, read.size() - 2);
    FUZZ_CHECK(brimo::ProfileDocument(after).getString(section, key, 100000) == read);
}
