#include "model/CommitHistory.h"

#include "model/FailureText.h"

#include "model/GeneralVariables.h"
#include "model/SlopeCommit.h"
#include "platform/Cp1252.h"
#include "platform/FileAccess.h"
#include "platform/ProfileDocument.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <cstdio>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brimo {

namespace {

const QString kEntryFile = QStringLiteral("entry.json");
const QString kPartialPrefix = QStringLiteral(".partial-");
const QString kStaged = QStringLiteral(".staged");

// An entry's folder is its number, six digits; anything else is not an entry.
std::optional<int> numberOf(const QString& name) {
    bool ok = false;
    const int number = name.toInt(&ok);
    if (!ok || number <= 0 || name.size() != 6) return std::nullopt;
    return number;
}

QString entryFolder(const QString& history, int number) {
    return history + QLatin1Char('/') + QStringLiteral("%1").arg(number, 6, 10, QLatin1Char('0'));
}

QString partialFolder(const QString& history) {
    static int count = 0;
    return history + QLatin1Char('/') + kPartialPrefix + QString::number(::getpid()) + QLatin1Char('-') +
           QString::number(++count);
}

// The record of an entry, and whether each file it says existed stands in
// the entry as a regular file; `damaged` says what is wrong.
HistoryEntry readRecord(const QString& folder, int number) {
    HistoryEntry entry;
    entry.number = number;
    Failure failure;
    const std::optional<QByteArray> bytes = ReadWholeFile(folder + QLatin1Char('/') + kEntryFile, &failure, false);
    if (!bytes) {
        entry.damaged = QStringLiteral("%1: %2").arg(kEntryFile, FailureText(failure));
        return entry;
    }
    const QJsonObject json = QJsonDocument::fromJson(*bytes).object();
    if (json.isEmpty()) {
        entry.damaged = QStringLiteral("%1: %2").arg(kEntryFile, QCoreApplication::translate("History", "no record of a commit"));
        return entry;
    }
    entry.when = QDateTime::fromString(json.value(QLatin1String("when")).toString(), Qt::ISODate);
    entry.program = json.value(QLatin1String("program")).toString();
    entry.what = json.value(QLatin1String("what")).toString();
    for (const QJsonValue& key : json.value(QLatin1String("keys")).toArray()) entry.keys.append(key.toString());
    entry.user = json.value(QLatin1String("user")).toString();
    entry.sudoUser = json.value(QLatin1String("sudo_user")).toString();
    entry.host = json.value(QLatin1String("host")).toString();
    entry.run = json.value(QLatin1String("run")).toString();
    for (const QJsonValue& value : json.value(QLatin1String("changes")).toArray()) {
        const QJsonObject change = value.toObject();
        entry.changes.append({change.value(QLatin1String("key")).toString(), change.value(QLatin1String("old")).toString(),
                              change.value(QLatin1String("new")).toString()});
    }
    for (const QJsonValue& value : json.value(QLatin1String("files")).toArray()) {
        const QJsonObject file = value.toObject();
        const QString name = file.value(QLatin1String("name")).toString();
        if (name.isEmpty() || name.contains(QLatin1Char('/')) || name.startsWith(QLatin1Char('.'))) {
            entry.damaged = QStringLiteral("%1: %2").arg(kEntryFile, QCoreApplication::translate("History", "\"%1\" names no file of the user's folder").arg(name));
            return entry;
        }
        const KeptFile kept{name, file.value(QLatin1String("existed")).toBool(), std::nullopt};
        const QFileInfo saved(folder + QLatin1Char('/') + name);
        if (kept.existed && (saved.isSymLink() || !saved.isFile()))
            entry.damaged = QStringLiteral("%1: %2").arg(
                name, FailureText({saved.exists() || saved.isSymLink() ? FailureKind::NotRegularFile : FailureKind::Missing, 0, 0, {}}));
        entry.files.append(kept);
    }
    return entry;
}

QByteArray entryJson(const HistoryEntry& entry) {
    QJsonArray files;
    for (const KeptFile& file : entry.files)
        files.append(QJsonObject{{"name", file.name}, {"existed", file.existed}});
    QJsonArray changes;
    for (const KeyChange& change : entry.changes)
        changes.append(QJsonObject{{"key", change.key}, {"old", change.before}, {"new", change.after}});
    return QJsonDocument(QJsonObject{{"when", entry.when.toString(Qt::ISODateWithMs)},
                                     {"program", entry.program},
                                     {"what", entry.what},
                                     {"keys", QJsonArray::fromStringList(entry.keys)},
                                     {"files", files},
                                     {"user", entry.user},
                                     {"sudo_user", entry.sudoUser},
                                     {"host", entry.host},
                                     {"run", entry.run},
                                     {"changes", changes}})
        .toJson();
}

bool renameFolder(const QString& from, const QString& to, Failure* failure) {
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0) return true;
    *failure = FailureOfErrno(errno);
    return false;
}

// A folder is first renamed out of the numbers, then removed: a kill in the
// middle leaves a partial folder, never a damaged entry.
void removeFolder(const QString& history, const QString& folder) {
    const QString doomed = partialFolder(history);
    if (QDir().rename(folder, doomed)) QDir(doomed).removeRecursively();
}

void removeStaged(const QString& history) {
    if (!QFileInfo(history + QLatin1Char('/') + kStaged).isDir()) return;
    removeFolder(history, history + QLatin1Char('/') + kStaged);
    SyncFolder(history);
}

void removePartials(const QString& history) {
    for (const QString& name : QDir(history).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden))
        if (name.startsWith(kPartialPrefix)) QDir(history + QLatin1Char('/') + name).removeRecursively();
}

} // namespace

QString HistoryFolder(const QString& nativeIni) {
    return QFileInfo(nativeIni).absolutePath() + QStringLiteral("/Brimo.history");
}

QList<HistoryEntry> ReadHistory(const QString& nativeIni) {
    QList<HistoryEntry> entries;
    if (nativeIni.isEmpty()) return entries; // a Brimo.ini that names no folder here
    const QString history = HistoryFolder(nativeIni);
    for (const QString& name : QDir(history).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        if (const std::optional<int> number = numberOf(name)) entries.append(readRecord(history + QLatin1Char('/') + name, *number));
    return entries;
}

std::optional<HistoryEntry> ReadHistoryEntry(const QString& nativeIni, int number, QString* error) {
    const QList<HistoryEntry> history = ReadHistory(nativeIni);
    const auto found = std::find_if(history.rbegin(), history.rend(), [&](const HistoryEntry& e) { return number == 0 || e.number == number; });
    if (found == history.rend()) {
        *error = number ? QCoreApplication::translate("History", "no entry %1").arg(number) : QCoreApplication::translate("History", "no entry");
        return std::nullopt;
    }
    HistoryEntry entry = *found;
    const QString folder = entryFolder(HistoryFolder(nativeIni), entry.number) + QLatin1Char('/');
    for (KeptFile& file : entry.files) {
        if (!entry.damaged.isEmpty()) break;
        Failure why;
        if (file.existed && !(file.bytes = ReadWholeFile(folder + file.name, &why, false)))
            entry.damaged = QStringLiteral("%1: %2").arg(file.name, FailureText(why));
    }
    if (!entry.damaged.isEmpty()) {
        *error = QCoreApplication::translate("History", "entry %1 is damaged (%2)").arg(entry.number).arg(entry.damaged);
        return std::nullopt;
    }
    return entry;
}

bool StageHistoryEntry(const QString& nativeIni, const HistoryEntry& entry, Failure* failure) {
    const QString history = HistoryFolder(nativeIni);
    if (!QDir(history).exists() && ::mkdir(QFile::encodeName(history).constData(), 0777) != 0) { // never the user's folder itself
        *failure = FailureOfErrno(errno);
        return false;
    }
    removePartials(history);
    removeStaged(history);

    const QString partial = partialFolder(history);
    if (::mkdir(QFile::encodeName(partial).constData(), 0777) != 0) {
        *failure = FailureOfErrno(errno);
        return false;
    }
    bool written = WriteWholeFile(partial + QLatin1Char('/') + kEntryFile, entryJson(entry), failure);
    const QString folder = QFileInfo(nativeIni).absolutePath() + QLatin1Char('/');
    for (const KeptFile& file : entry.files)
        if (written && file.existed && file.bytes)
            written = KeepFileAs(folder + file.name, *file.bytes, partial + QLatin1Char('/') + file.name, failure);
    const QString staged = history + QLatin1Char('/') + kStaged;
    if (written && (!SyncFolder(partial) || !renameFolder(partial, staged, failure))) written = false;
    if (!written) {
        QDir(partial).removeRecursively();
        QDir().rmdir(history); // when it holds nothing else
    }
    return written && SyncFolder(history);
}

std::optional<int> KeepStagedHistoryEntry(const QString& nativeIni) {
    const QString history = HistoryFolder(nativeIni);
    const QString staged = history + QLatin1Char('/') + kStaged;
    if (!QFileInfo(staged).isDir()) return std::nullopt;
    int last = 0;
    QStringList numbered;
    for (const QString& name : QDir(history).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        if (const std::optional<int> number = numberOf(name)) {
            last = std::max(last, *number);
            numbered.append(name);
        }
    Failure failure;
    if (!renameFolder(staged, entryFolder(history, last + 1), &failure)) {
        std::fprintf(stderr, "Brimo: %s: %s\n", QFile::encodeName(entryFolder(history, last + 1)).constData(),
                     FailureText(failure, Wording::English).toLocal8Bit().constData());
        return std::nullopt;
    }
    SyncFolder(history);
    for (qsizetype i = 0; i + kHistoryLength <= numbered.size(); ++i)
        removeFolder(history, history + QLatin1Char('/') + numbered[i]);
    return last + 1;
}

void DropStagedHistoryEntry(const QString& nativeIni) {
    const QString history = HistoryFolder(nativeIni);
    removeStaged(history);
    QDir().rmdir(history); // when it holds nothing else
}

void RecoverHistory(const QString& nativeIni, bool tookEffect) {
    removePartials(HistoryFolder(nativeIni));
    if (tookEffect) KeepStagedHistoryEntry(nativeIni);
    else DropStagedHistoryEntry(nativeIni);
}

QString CommitProgramName() {
    const QString exe = QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
    return exe.isEmpty() ? QStringLiteral("unknown") : QFileInfo(exe).fileName();
}

QString CommitRunId() {
    static const QString run = QUuid::createUuid().toString(QUuid::WithoutBraces).left(8);
    return run;
}

void StampHistoryEntry(HistoryEntry& entry) {
    // The real user: run as root on a user's prefix, the tool writes as the
    // prefix's owner, but root ran it.
    const passwd* account = ::getpwuid(::getuid());
    entry.user = account ? QString::fromLocal8Bit(account->pw_name) : QString::number(::getuid());
    entry.sudoUser = qEnvironmentVariable("SUDO_USER");
    entry.host = QSysInfo::machineHostName();
    entry.run = CommitRunId();
}

QList<KeyChange> KeyChanges(const QByteArray& iniBefore, const QByteArray& iniAfter, const QStringList& keys) {
    const ProfileDocument before(iniBefore), after(iniAfter);
    QList<KeyChange> changes;
    for (const QString& key : keys) {
        const QByteArray section = toCp1252(key.section(QLatin1Char('/'), 0, 0)), name = toCp1252(key.section(QLatin1Char('/'), 1));
        changes.append({key, fromCp1252(before.getString(section, name, 1 << 20)), fromCp1252(after.getString(section, name, 1 << 20))});
    }
    return changes;
}

QStringList ChangedKeys(const QByteArray& iniBefore, const QByteArray& iniAfter) {
    const ProfileDocument before(iniBefore), after(iniAfter);
    QStringList changed;
    for (const char* section : {kGeneralSection, kSlopeSection}) {
        QList<QByteArray> keys = after.keyNames(section);
        for (const QByteArray& key : before.keyNames(section))
            if (!keys.contains(key)) keys.append(key);
        for (const QByteArray& key : keys)
            if (before.getString(section, key, 1 << 20) != after.getString(section, key, 1 << 20))
                changed.append(QLatin1String(section) + QLatin1Char('/') + fromCp1252(key));
    }
    return changed;
}

} // namespace brimo
