#include "platform/ProfileFile.h"

#include "platform/Cp1252.h"
#include "platform/FileAccess.h"
#include "platform/WindowsPaths.h"

#include <QFileInfo>

namespace brimo {

ProfileDocument LoadProfile(const WinePrefix& prefix, const QString& windowsPath, Failure* failure) {
    const QString native = ToNativePath(prefix, windowsPath);
    Failure why;
    std::optional<QByteArray> bytes = ReadWholeFile(native, &why);
    if (!bytes && QFileInfo::exists(native)) Report(failure, std::move(why));
    return ProfileDocument(std::move(bytes).value_or(QByteArray()));
}

QString ReadProfileString(const ProfileDocument& profile, const QString& section, const QString& key, int bufferSize) {
    return fromCp1252(profile.getString(toCp1252(section), toCp1252(key), bufferSize));
}

int GetPrivateProfileString(const WinePrefix& prefix, const QString& section, const QString& key, QString& buffer, int bufferSize,
                            const QString& windowsPath) {
    buffer = ReadProfileString(LoadProfile(prefix, windowsPath), section, key, bufferSize);
    return static_cast<int>(buffer.size());
}

bool WriteProfileSection(const WinePrefix& prefix, const QString& windowsPath, const QString& section,
                         const QList<QPair<QString, QString>>& keyValues, Failure* failure) {
    const QString native = ToNativePath(prefix, windowsPath);
    QByteArray existing;
    if (QFileInfo::exists(native)) {
        auto bytes = ReadWholeFile(native, failure);
        if (!bytes) return false;
        existing = std::move(*bytes);
    }
    ProfileDocument document(std::move(existing));
    QList<ProfileDocument::KeyValue> encoded;
    encoded.reserve(keyValues.size());
    for (const auto& kv : keyValues) encoded.append({toCp1252(kv.first), toCp1252(kv.second)});
    if (!document.setStrings(toCp1252(section), encoded) && QFileInfo::exists(native)) return true;
    return WriteWholeFile(native, document.bytes(), failure);
}

bool WritePrivateProfileString(const WinePrefix& prefix, const QString& section, const QString& key, const QString& value,
                               const QString& windowsPath, Failure* failure) {
    return WriteProfileSection(prefix, windowsPath, section, {{key, value}}, failure);
}

} // namespace brimo
