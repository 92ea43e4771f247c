#pragma once
// Whole-file reads and all-or-nothing writes on native paths.

#include <QByteArray>
#include <QString>
#include <optional>

namespace brimo {

// The whole file, or nothing when it is missing, a folder, or unreadable.
std::optional<QByteArray> ReadWholeFile(const QString& nativePath, QString* error = nullptr);

// Writes the file through a temporary file in the same folder that is then
// moved over the old one, so that a failure leaves the old file as it was.
// The folder is not created. On failure returns false and says why in `error`.
bool WriteWholeFile(const QString& nativePath, const QByteArray& bytes, QString* error = nullptr);

} // namespace brimo

namespace brimo {

struct FileToWrite {
    QString nativePath;
    QByteArray bytes;
};

// Writes several files all or nothing, in the order given: each goes to a
// temporary file first, and only when every temporary file is written are
// they moved over the old ones. Should a later move fail, the files already
// moved get their old content back. On failure `failedPath` names the file
// and `error` says why.
bool WriteFilesTogether(const QList<FileToWrite>& files, QString* failedPath, QString* error);

} // namespace brimo
