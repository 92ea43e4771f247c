#include "WineOracle.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <cstdio>

namespace brimo::winetest {

namespace {

QString wineProgram() { return QStringLiteral(BRIMO_WINE); }

QString wineServer() {
    const QString sibling = QFileInfo(wineProgram()).absolutePath() + QStringLiteral("/wineserver");
    if (QFileInfo(sibling).isExecutable()) return sibling;
    return QStandardPaths::findExecutable(QStringLiteral("wineserver"));
}

// Wine's first start in a new prefix sets up a whole Windows folder.
constexpr int kFirstStartMs = 480000;
constexpr int kRunMs = 240000;

QProcessEnvironment wineEnvironment(const QString& prefix, const QString& locale) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("WINEPREFIX"), prefix);
    env.insert(QStringLiteral("WINEDEBUG"), QStringLiteral("-all"));
    // No Mono or Gecko installers, no windows on a display.
    env.insert(QStringLiteral("WINEDLLOVERRIDES"), QStringLiteral("mscoree,mshtml="));
    env.remove(QStringLiteral("DISPLAY"));
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    env.remove(QStringLiteral("LC_NUMERIC"));
    env.insert(QStringLiteral("LC_ALL"), locale);
    env.insert(QStringLiteral("LANG"), locale);
    return env;
}

} // namespace

QString profileOracle() { return QStringLiteral(BRIMO_PROFILE_ORACLE); }
QString numberOracle() { return QStringLiteral(BRIMO_NUMBER_ORACLE); }

QString missingTools() {
    if (wineProgram().isEmpty()) return QStringLiteral("wine64 was not found when the build was configured");
    if (!QFileInfo(wineProgram()).isExecutable()) return wineProgram() + QStringLiteral(" is not there any more");
    if (profileOracle().isEmpty() || numberOracle().isEmpty())
        return QStringLiteral("x86_64-w64-mingw32-g++ was not found, so the Windows reference programs were not built");
    for (const QString& exe : {profileOracle(), numberOracle()})
        if (!QFileInfo::exists(exe)) return exe + QStringLiteral(" is missing");
    return {};
}

QByteArray encodeField(QByteArrayView bytes) {
    if (bytes.isEmpty()) return "%-";
    QByteArray out;
    for (char ch : bytes) {
        const auto c = static_cast<unsigned char>(ch);
        if (c > 0x20 && c < 0x7F && c != '%') {
            out += ch;
        } else {
            char hex[4];
            std::snprintf(hex, sizeof hex, "%%%02X", c);
            out += hex;
        }
    }
    return out;
}

QByteArray decodeField(QByteArrayView field) {
    if (field == "%-") return {};
    QByteArray out;
    for (qsizetype i = 0; i < field.size(); ++i) {
        if (field[i] == '%' && i + 2 < field.size()) {
            out += static_cast<char>(field.sliced(i + 1, 2).toByteArray().toInt(nullptr, 16));
            i += 2;
        } else {
            out += field[i];
        }
    }
    return out;
}

WineSession& WineSession::instance() {
    static WineSession session;
    return session;
}

bool WineSession::start(QString* error) {
    if (!prefix_.isValid()) {
        *error = QStringLiteral("no temporary folder for the prefix");
        return false;
    }
    QElapsedTimer timer;
    timer.start();
    QProcess wine;
    wine.setProcessEnvironment(wineEnvironment(prefix_.path(), QStringLiteral("en_US.UTF-8")));
    wine.start(wineProgram(), {profileOracle()});
    wine.closeWriteChannel();
    if (!wine.waitForFinished(kFirstStartMs) || wine.exitStatus() != QProcess::NormalExit) {
        wine.kill();
        wine.waitForFinished();
        *error = QStringLiteral("Wine did not start in a new prefix: ") + QString::fromLocal8Bit(wine.readAllStandardError());
        return false;
    }
    started_ = true;
    std::printf("Wine started in a new prefix in %.1f s\n", timer.elapsed() / 1000.0);
    return true;
}

void WineSession::stop() {
    if (!started_) return;
    const QString server = wineServer();
    if (!server.isEmpty()) {
        QProcess kill;
        kill.setProcessEnvironment(wineEnvironment(prefix_.path(), QStringLiteral("en_US.UTF-8")));
        kill.start(server, {QStringLiteral("-k")});
        kill.waitForFinished(60000);
    }
    started_ = false;
}

QList<QByteArray> WineSession::run(const QString& program, const QByteArray& input, const QString& locale,
                                   QString* error) const {
    QProcess wine;
    wine.setProcessEnvironment(wineEnvironment(prefix_.path(), locale));
    wine.start(wineProgram(), {program});
    wine.write(input);
    wine.closeWriteChannel();
    if (!wine.waitForFinished(started_ ? kRunMs : kFirstStartMs) || wine.exitStatus() != QProcess::NormalExit ||
        wine.exitCode() != 0) {
        wine.kill();
        wine.waitForFinished();
        *error = QStringLiteral("%1 failed under Wine: %2").arg(program, QString::fromLocal8Bit(wine.readAllStandardError()));
        return {};
    }
    QByteArray out = wine.readAllStandardOutput();
    if (out.endsWith('\n')) out.chop(1);
    return out.isEmpty() ? QList<QByteArray>() : out.split('\n');
}

QByteArray WineSession::windowsPath(const QString& nativePath) {
    QString path = nativePath;
    path.replace(QLatin1Char('/'), QLatin1Char('\\'));
    return "Z:" + QFile::encodeName(path);
}

} // namespace brimo::winetest
