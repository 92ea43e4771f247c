#include "settings/Commands.h"

#include "platform/WindowsPaths.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

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

namespace {

// Run as root, the tool does the work of a prefix that another user owns as
// that user (the prefix folder's owner and group): its files keep their owner
// and mode, and nothing is written where that user could not write, whatever
// the user's own zorel.ini names. A prefix owned by root is done as root.
class AsPrefixOwner {
public:
    explicit AsPrefixOwner(const QString& prefix) {
        struct stat info {};
        if (::geteuid() != 0 || ::stat(QFile::encodeName(prefix).constData(), &info) != 0 || info.st_uid == 0) return;
        groups_.resize(static_cast<std::size_t>(std::max(::getgroups(0, nullptr), 0)));
        groups_.resize(static_cast<std::size_t>(std::max(::getgroups(static_cast<int>(groups_.size()), groups_.data()), 0)));
        gid_ = ::getegid();
        switched_ = true;
        if (::setgroups(1, &info.st_gid) != 0 || ::setegid(info.st_gid) != 0 || ::seteuid(info.st_uid) != 0) {
            error_ = QStringLiteral("cannot act as its owner (uid %1): %2")
                         .arg(info.st_uid)
                         .arg(QString::fromLocal8Bit(std::strerror(errno)));
            back();
        }
    }
    ~AsPrefixOwner() { back(); }
    const QString& error() const { return error_; }

private:
    void back() {
        if (!switched_) return;
        switched_ = false;
        // Going on as another user than root would do the next prefix wrong.
        if (::seteuid(0) != 0 || ::setegid(gid_) != 0 || ::setgroups(groups_.size(), groups_.data()) != 0) {
            Complain(QStringLiteral("cannot become root again: %1").arg(QString::fromLocal8Bit(std::strerror(errno))));
            std::_Exit(kFailed);
        }
    }
    std::vector<gid_t> groups_;
    gid_t gid_ = 0;
    bool switched_ = false;
    QString error_;
};

} // namespace

int ForEachPrefix(const Options& options, const std::function<bool(const WinePrefix& prefix)>& each,
                  const std::function<void(const QString& prefix, const QString& error)>& missing) {
    // No --prefix: the one of the environment, as the program finds it.
    QList<WinePrefix> prefixes;
    for (const QString& folder : options.prefixes) prefixes.append({folder});
    if (prefixes.isEmpty()) prefixes.append(WinePrefix::FromEnvironment());
    int failures = 0;
    for (const WinePrefix& prefix : prefixes) {
        const QString& inForce = prefix.folder;
        if (!QFileInfo(inForce).isDir()) {
            Complain(QStringLiteral("%1: no such folder").arg(inForce));
            if (missing) missing(inForce, QStringLiteral("no such folder"));
            ++failures;
            continue;
        }
        const AsPrefixOwner owner(inForce);
        if (!owner.error().isEmpty()) {
            Complain(QStringLiteral("%1: %2").arg(inForce, owner.error()));
            if (missing) missing(inForce, owner.error());
        }
        if (!owner.error().isEmpty() || !each(prefix)) ++failures;
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
