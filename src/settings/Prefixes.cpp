#include "settings/Commands.h"

#include "model/FailureText.h"
#include "platform/PrefixOwner.h"
#include "platform/WindowsPaths.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace brimo {

void Print(const QString& text) { std::fputs(text.toUtf8().constData(), stdout); }

void Complain(const QString& text) {
    std::fflush(stdout);
    std::fputs(("brimo-settings: " + Printable(text) + QLatin1Char('\n')).toUtf8().constData(), stderr);
}

QString Printable(const QString& text) {
    QString shown;
    shown.reserve(text.size());
    for (const QChar c : text) {
        if (c.category() != QChar::Other_Control) shown += c;
        else if (c == QLatin1Char('\t')) shown += QStringLiteral("\\t");
        else if (c == QLatin1Char('\n')) shown += QStringLiteral("\\n");
        else if (c == QLatin1Char('\r')) shown += QStringLiteral("\\r");
        else shown += QStringLiteral("\\x") + QString::number(c.unicode(), 16).toUpper().rightJustified(2, QLatin1Char('0'));
    }
    return shown;
}

int ForEachPrefix(const Options& options, const std::function<bool(const WinePrefix& prefix)>& each,
                  const std::function<void(const QString& prefix, const QString& error)>& missing) {
    // No --prefix: the one of the environment, as the program finds it.
    QList<WinePrefix> prefixes;
    for (const QString& folder : options.prefixes) prefixes.append(WinePrefix::FromText(folder));
    if (prefixes.isEmpty()) prefixes.append(WinePrefix::FromEnvironment());
    int failures = 0;
    for (const WinePrefix& prefix : prefixes) {
        const QString& inForce = prefix.folder;
        const QString name = prefix.name();
        if (!QFileInfo(inForce).isDir()) {
            const QString error = SettingsText::tr("no such folder");
            Complain(QStringLiteral("%1: %2").arg(name, error));
            if (missing) missing(name, error);
            ++failures;
            continue;
        }
        const ActingAsPrefixOwner owner(inForce, kFailed);
        if (owner.failure()) {
            Complain(QStringLiteral("%1: %2").arg(name, FailureText(owner.failure())));
            if (missing) missing(name, FailureText(owner.failure()));
        }
        if (owner.failure() || !each(prefix)) ++failures;
    }
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
