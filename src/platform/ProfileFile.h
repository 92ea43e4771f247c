#pragma once
// The two profile operations on a file named by a Windows path text.

#include "platform/Failure.h"
#include "platform/ProfileDocument.h"
#include "platform/WindowsPaths.h"

#include <QString>

namespace brimo {

// GetPrivateProfileStringA(section, key, "", buffer, bufferSize, file):
// the number of characters placed in `buffer`, at most bufferSize - 1.
// A missing file, section or key gives the empty text.
int GetPrivateProfileString(const WinePrefix& prefix, const QString& section, const QString& key, QString& buffer,
                            int bufferSize, const QString& windowsPath);

// WritePrivateProfileStringA(section, key, value, file): replaces or adds the
// key, creating the file when its folder exists. False when the file cannot be
// written; `failure` then says why.
bool WritePrivateProfileString(const WinePrefix& prefix, const QString& section, const QString& key, const QString& value,
                               const QString& windowsPath, Failure* failure = nullptr);

// Reads a profile file once for many reads; a missing or unreadable file
// reads as an empty one. A file that is there but cannot be read (a folder,
// no regular file, no right to read, too large) also sets `failure`; a
// missing one does not.
ProfileDocument LoadProfile(const WinePrefix& prefix, const QString& windowsPath, Failure* failure = nullptr);

// Reads with the contract of GetPrivateProfileStringA from a loaded file.
QString ReadProfileString(const ProfileDocument& profile, const QString& section, const QString& key,
                          int bufferSize = 255);

// Applies several writes to one section and saves the file once, all or
// nothing. False when the file cannot be written; `failure` then says why.
bool WriteProfileSection(const WinePrefix& prefix, const QString& windowsPath, const QString& section,
                         const QList<QPair<QString, QString>>& keyValues, Failure* failure = nullptr);

} // namespace brimo
