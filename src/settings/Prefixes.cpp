#include "settings/Commands.h"

#include "platform/WindowsPaths.h"

#include <QFileInfo>

#include <cstdio>

namespace brimo {

void Print(const QString& text) { std::fputs(text.toUtf8().constData(), stdout); }

void Complain(const QString& text) {
    std::fflush(stdout);
    std::fputs(("brimo-settings: " + text + QLatin1Char('\n')).toUtf8().constData(), stderr);
}

int ForEachPrefix(const Options& options, const std::function<bool(const QString& prefix)>& each,
                  const std::function<void(const QString& prefix, const QString& error)>& missing) {
    // No --prefix: the one of the environment, as the program finds it.
    const QStringList prefixes = options.prefixes.isEmpty() ? QStringList{QString()} : options.prefixes;
    int failures = 0;
    for (const QString& prefix : prefixes) {
        SetWinePrefix(prefix);
        const QString inForce = WinePrefix();
        if (!QFileInfo(inForce).isDir()) {
            Complain(QStringLiteral("%1: no such folder").arg(inForce));
            if (missing) missing(inForce, QStringLiteral("no such folder"));
            ++failures;
        } else if (!each(inForce)) {
            ++failures;
        }
    }
    SetWinePrefix(QString());
    return failures;
}

} // namespace brimo

namespace brimo {

int ExitStatusOf(const RunResult& result, bool detailed) {
    if (detailed)
        return result.refused ? kDetailedRefused
                              : (result.changed ? kDetailedChanges : 0) | (result.failed ? kDetailedFailures : 0);
    return result.refused ? kRefused : result.failed ? kFailed : kSucceeded;
}

} // namespace brimo
