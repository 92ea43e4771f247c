#pragma once
// Every file the program reads or writes is Windows-1252, one byte a character.

#include <QByteArray>
#include <QString>

namespace brimo {

// A character that Windows-1252 lacks becomes '?'.
QByteArray toCp1252(const QString& text);
QString fromCp1252(const QByteArray& bytes);
QString fromCp1252(const char* data, qsizetype size);

// Folds one Windows-1252 byte to lower case, as Windows compares names
// without regard to case (é matches É, Š matches š).
unsigned char foldCp1252(unsigned char byte);

} // namespace brimo
