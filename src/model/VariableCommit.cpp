#include "model/VariableCommit.h"

#include "model/LispFile.h"
#include "platform/Cp1252.h"
#include "platform/FileAccess.h"
#include "platform/ProfileDocument.h"
#include "platform/WindowsPaths.h"

#include <QFileInfo>

namespace brimo {

namespace {

// The commit's journal lies beside Brimo.ini.
QString journalBeside(const QString& nativeIni) {
    return QFileInfo(nativeIni).absolutePath() + QStringLiteral("/Brimo.commit-journal");
}

} // namespace

CommitOutcome CommitVariables(const QString& lispPath, const QString& iniPath, const QString& section,
                              const QList<CommittedRow>& rows) {
    QStringList lines;
    QList<ProfileDocument::KeyValue> keys;
    for (const CommittedRow& row : rows) {
        lines.append(row.line);
        keys.append({toCp1252(row.key), toCp1252(row.value)});
    }

    const QString nativeLisp = ToNativePath(lispPath);
    const QString nativeIni = ToNativePath(iniPath);
    QByteArray iniBytes;
    if (QFileInfo::exists(nativeIni)) {
        QString error;
        auto bytes = ReadWholeFile(nativeIni, &error);
        if (!bytes) return {false, iniPath, error};
        iniBytes = std::move(*bytes);
    }
    ProfileDocument ini(std::move(iniBytes));
    ini.setStrings(toCp1252(section), keys);

    QString failed, reason;
    if (!WriteFilesTogether({{nativeLisp, ComposeLispFile(lines)}, {nativeIni, ini.bytes()}}, journalBeside(nativeIni), &failed, &reason))
        return {false, failed == nativeLisp ? lispPath : iniPath, reason};
    return {};
}

Recovery RecoverInterruptedCommit(const InstallInfo& info) {
    const QString nativeIni = ToNativePath(BrimoIniPath(info));
    if (nativeIni.isEmpty()) return Recovery::Nothing; // a path that names no folder here
    return RecoverFilesTogether(journalBeside(nativeIni));
}

} // namespace brimo
