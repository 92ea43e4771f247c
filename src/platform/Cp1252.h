#pragma once
// Every file the program reads or writes is Windows-1252, one byte a character.

#include <QByteArray>
#include <QString>

namespace brimo {

// A character that Windows-1252 lacks becomes '?'.
QByteArray toCp1252(const QString& text);
QString fromCp1252(const QByteArray& bytes);
QString fromCp1252(const char* data, qsizetype size);

} // namespace brimo
