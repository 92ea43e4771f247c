#pragma once
// Every file the program reads or writes is Windows-1252, one byte a character;
// only a profile file that starts with a UTF-8 byte-order mark holds UTF-8.

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace brimo {

// A character that Windows-1252 lacks becomes '?'.
QByteArray toCp1252(const QString& text);
QString fromCp1252(const QByteArray& bytes);
QString fromCp1252(const char* data, qsizetype size);

// The bytes of `text` from `begin` to `end`, UTF-8, as Windows-1252 text the
// way Windows decodes UTF-8 (MultiByteToWideChar, as Wine has it) and hands it
// to a program of that code page: a malformed sequence is one '?', a
// character beyond U+FFFF two (its two UTF-16 halves), and one that
// Windows-1252 lacks '?'. A sequence cut short by the end of `text` (not by
// `end`) is one '?' that takes the rest of `text` with it.
QByteArray utf8ToCp1252(QByteArrayView text, qsizetype begin, qsizetype end);
QByteArray cp1252ToUtf8(QByteArrayView bytes);

} // namespace brimo
