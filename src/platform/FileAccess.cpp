#include "platform/FileAccess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <memory>
#include <vector>

namespace brimo {

std::optional<QByteArray> ReadWholeFile(const QString& nativePath, QString* error) {
    if (QFileInfo(nativePath).isDir()) {
        if (error) *error = QStringLiteral("a folder stands where the file should be");
        return std::nullopt;
    }
    QFile file(nativePath);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error) *error = file.errorString();
        return std::nullopt;
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        if (error) *error = file.errorString();
        return std::nullopt;
    }
    return bytes;
}

namespace {

bool folderAndFileWritable(const QString& nativePath, QString* error) {
    if (nativePath.isEmpty()) {
        if (error) *error = QStringLiteral("the path names no folder on this machine");
        return false;
    }
    const QFileInfo info(nativePath);
    if (!info.absoluteDir().exists()) {
        if (error) *error = QStringLiteral("the folder %1 does not exist").arg(info.absolutePath());
        return false;
    }
    if (info.isDir()) {
        if (error) *error = QStringLiteral("a folder of that name stands in the way");
        return false;
    }
    // A file without any write bit is read-only for every user, root too, as
    // Wine maps the read-only attribute.
    constexpr auto anyWrite = QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    if (info.exists() && (!info.isWritable() || !(info.permissions() & anyWrite))) {
        if (error) *error = QStringLiteral("the file is read-only");
        return false;
    }
    return true;
}

} // namespace

bool WriteFilesTogether(const QList<FileToWrite>& files, QString* failedPath, QString* error) {
    std::vector<std::unique_ptr<QSaveFile>> staged;
    std::vector<std::optional<QByteArray>> previous;
    for (const FileToWrite& file : files) {
        if (failedPath) *failedPath = file.nativePath;
        if (!folderAndFileWritable(file.nativePath, error)) return false;
        auto save = std::make_unique<QSaveFile>(file.nativePath);
        if (!save->open(QIODevice::WriteOnly) || save->write(file.bytes) != file.bytes.size()) {
            if (error) *error = save->errorString();
            return false;
        }
        // Only the files moved before another can need their old content back.
        const bool last = &file == &files.back();
        previous.push_back(!last && QFileInfo::exists(file.nativePath) ? ReadWholeFile(file.nativePath) : std::nullopt);
        staged.push_back(std::move(save));
    }
    for (std::size_t i = 0; i < staged.size(); ++i) {
        if (staged[i]->commit()) continue;
        if (failedPath) *failedPath = files[static_cast<qsizetype>(i)].nativePath;
        if (error) *error = staged[i]->errorString();
        // Put back what the earlier moves replaced.
        for (std::size_t j = 0; j < i; ++j) {
            const QString& path = files[static_cast<qsizetype>(j)].nativePath;
            if (previous[j]) WriteWholeFile(path, *previous[j]);
            else QFile::remove(path);
        }
        return false;
    }
    return true;
}

bool WriteWholeFile(const QString& nativePath, const QByteArray& bytes, QString* error) {
    return WriteFilesTogether({{nativePath, bytes}}, nullptr, error);
}

} // namespace brimo
