#pragma once
// Runs the real brimo-settings and keeps what it said.

#include <QProcess>
#include <QStringList>

namespace brimo::test {

struct SettingsRun {
    int status = -1;
    QString output;
    QString errors;
};

inline SettingsRun RunSettings(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(BRIMO_SETTINGS_EXE), arguments);
    process.waitForFinished(60000);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace brimo::test
