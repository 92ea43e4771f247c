// set and apply: the given values on top of what each dialog opens with,
// written by the dialog's commit, prefix by prefix.
#include "settings/Commands.h"
#include "settings/UserFiles.h"
#include "model/FailureText.h"

#include "platform/Cp1252.h"
#include "platform/FileAccess.h"

#include "platform/WindowsPaths.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>

namespace brimo {

namespace {

using SectionEdits = QList<QPair<SettingSection, QList<Edit>>>;

// Every refusal is told and kept; then nothing is written anywhere.
std::optional<Edit> parseOrRefuse(SettingSection section, const QString& assignment, QStringList& refusals) {
    QString error;
    std::optional<Edit> edit = ParseEdit(section, assignment, &error);
    if (!edit) {
        Complain(error);
        refusals.append(error);
    }
    return edit;
}

void refuse(const QString& error, QStringList& refusals) {
    Complain(error);
    refusals.append(error);
}

// A key that the office standard locks takes no other value than its.
void refuseLocked(const Options& options, SettingSection section, const Edit& edit, QStringList& refusals) {
    const OfficeKey* office = options.standard ? options.standard->find(section, edit.key->key) : nullptr;
    if (office && office->locked && office->value != edit.value)
        refuse(SettingsText::tr("%1: the office standard %2 locks it at \"%3\"").arg(edit.key->key, options.standard->file, office->value),
               refusals);
}

SectionEdits editsOfCommandLine(const Options& options, QStringList& refusals) {
    QList<Edit> edits;
    for (const QString& assignment : options.arguments)
        if (auto edit = parseOrRefuse(options.section, assignment, refusals)) {
            refuseLocked(options, options.section, *edit, refusals);
            edits.append(*edit);
        }
    return SectionEdits{{options.section, edits}};
}

std::optional<QByteArray> readInput(const QString& file) {
    if (file != QLatin1String("-")) return ReadGivenFile(file);
    QFile in;
    if (!in.open(stdin, QIODevice::ReadOnly)) return std::nullopt;
    return in.readAll();
}

// The keys of [Brimo_Gene] and [Brimo_Talus] of a profile file, as values
// given on the command line.
SectionEdits editsOfProfile(const Options& options, QStringList& refusals) {
    SectionEdits all;
    if (options.arguments.size() != 1) {
        refuse(SettingsText::tr("apply takes one FILE"), refusals);
        return all;
    }
    const QString& file = options.arguments.first();
    const std::optional<QByteArray> bytes = readInput(file);
    if (!bytes) {
        refuse(SettingsText::tr("%1: cannot be read").arg(file), refusals);
        return all;
    }
    const ProfileDocument profile(*bytes);
    for (SettingSection section : {SettingSection::General, SettingSection::Slope}) {
        const QByteArray name = toCp1252(SectionName(section));
        QList<Edit> edits;
        for (const QByteArray& key : profile.keyNames(name))
            if (auto edit = parseOrRefuse(section, fromCp1252(key + '=' + profile.getString(name, key)), refusals)) {
                refuseLocked(options, section, *edit, refusals);
                edits.append(*edit);
            }
        if (!edits.isEmpty()) all.append({section, edits});
    }
    if (all.isEmpty() && refusals.isEmpty())
        refuse(SettingsText::tr("%1: no key of [Brimo_Gene] or [Brimo_Talus]").arg(file), refusals);
    return all;
}

// A value that a commit changes, and why: asked for, written out with what
// the dialog shows because nothing was stored, or neither (a text cut).
struct KeyReport {
    enum class Why { Other, Given, Filled };
    QString section, key, before, after;
    Why why = Why::Other;
};

// The locked keys of the office standard (with `all`, every key it gives)
// at its values, by section.
SectionEdits editsOfStandard(const OfficeStandard& standard, bool all) {
    SectionEdits edits;
    for (SettingSection section : {SettingSection::General, SettingSection::Slope})
        if (const QList<Edit> office = standard.edits(section, all); !office.isEmpty()) edits.append({section, office});
    return edits;
}

// What a commit did on one prefix, for the text report and --json.
struct PrefixReport {
    QString prefix;
    QString user;
    bool changed = false;
    QList<KeyReport> keys;
    QStringList files;
    QString error;
};

QJsonObject jsonOf(const PrefixReport& report) {
    QJsonArray keys;
    for (const KeyReport& key : report.keys)
        keys.append(QJsonObject{{"section", key.section}, {"key", key.key}, {"old", key.before}, {"new", key.after},
                                {"given", key.why == KeyReport::Why::Given}});
    QJsonObject json{{"prefix", report.prefix},
                     {"user", report.user},
                     {"changed", report.changed},
                     {"keys", keys},
                     {"files", QJsonArray::fromStringList(report.files)}};
    if (!report.error.isEmpty()) json.insert(QStringLiteral("error"), report.error);
    return json;
}

void printText(const PrefixReport& report, bool check) {
    if (!report.changed) {
        Print(SettingsText::tr("%1: already so").arg(Printable(report.prefix)) + QLatin1Char('\n'));
        return;
    }
    QString text = (check ? SettingsText::tr("%1: would change") : SettingsText::tr("%1: changed")).arg(Printable(report.prefix)) +
                   QLatin1Char('\n');
    // A key that nothing stored and that the commit writes out with what the
    // dialog shows is counted, not listed: the keys asked for stand out.
    int filled = 0;
    for (const KeyReport& key : report.keys) {
        if (key.why == KeyReport::Why::Filled) ++filled;
        else text += QStringLiteral("  %1: \"%2\" -> \"%3\"\n").arg(Printable(key.key), Printable(key.before), Printable(key.after));
    }
    if (filled) text += QStringLiteral("  ") + SettingsText::tr("keys written out as the dialog shows them, none being stored: %1").arg(filled) + QLatin1Char('\n');
    for (const QString& file : report.files) text += QStringLiteral("  ") + SettingsText::tr("file %1").arg(Printable(file)) + QLatin1Char('\n');
    Print(text);
}

// One prefix: compose every commit, compare with the files, write when they
// differ (unless only checking).
PrefixReport commitOnPrefix(const Options& options, const SectionEdits& edits, const QString& what, const WinePrefix& prefix) {
    const UserFiles user(prefix, options.user, options.standard);
    PrefixReport report{prefix.name(), user.info().actuel, false, {}, {}, {}};
    if (const FolderLock::State state = user.lock().state(); state == FolderLock::State::Busy || state == FolderLock::State::Unavailable) {
        report.error = QStringLiteral("%1: %2").arg(user.lock().iniPath(), FailureText(user.lock().failure().reason));
        return report;
    }
    CommitPlan plan(user.lock());
    plan.setWhat(what);
    QStringList given;
    for (const auto& [section, sectionEdits] : edits)
        for (const Edit& edit : sectionEdits) given.append(SectionName(section) + QLatin1Char('/') + edit.key->key);
    plan.setGivenKeys(given);
    for (const auto& [section, sectionEdits] : edits) {
        QString error;
        const std::optional<QList<CommittedRow>> rows = user.planCommit(plan, section, sectionEdits, &error);
        if (!rows) {
            report.error = error;
            return report;
        }
        for (const CommittedRow& row : *rows)
            if (const QString before = user.storedText(section, row.key); before != row.value) {
                const bool asked = given.contains(SectionName(section) + QLatin1Char('/') + row.key, Qt::CaseInsensitive);
                report.keys.append({SectionName(section), row.key, before, row.value,
                                    asked              ? KeyReport::Why::Given
                                    : before.isEmpty() ? KeyReport::Why::Filled
                                                       : KeyReport::Why::Other});
            }
    }
    report.files = plan.changedFiles();
    report.changed = !report.files.isEmpty();
    if (report.changed && !options.check) {
        const CommitOutcome outcome = plan.write();
        if (!outcome.ok) report.error = QStringLiteral("%1: %2").arg(outcome.file, FailureText(outcome.reason));
    }
    return report;
}

// Runs `each` on every prefix, reports each as text or gathers it for one
// JSON document, and counts.
RunResult reportEverywhere(const Options& options, const QStringList& refusals,
                           const std::function<PrefixReport(const WinePrefix& prefix)>& each) {
    RunResult result;
    result.refused = !refusals.isEmpty();
    QJsonArray prefixes;
    int alreadySo = 0;
    if (!result.refused) {
        result.failed = ForEachPrefix(options, [&](const WinePrefix& prefix) {
            PrefixReport report = each(prefix);
            // A prefix that failed wrote nothing (the commit is all or
            // nothing): no key and no file changed there.
            if (!report.error.isEmpty()) report = {report.prefix, report.user, false, {}, {}, report.error};
            if (options.json) prefixes.append(jsonOf(report));
            // A failure is said on the standard error in both forms.
            if (!report.error.isEmpty()) {
                Complain(QStringLiteral("%1: %2").arg(report.prefix, report.error));
                return false;
            }
            if (!options.json) printText(report, options.check);
            (report.changed ? result.changed : alreadySo) += 1;
            return true;
        }, [&](const QString& prefix, const QString& error) {
            if (options.json) prefixes.append(jsonOf({prefix, {}, false, {}, {}, error}));
        });
        if (!options.json)
            Print((options.check ? SettingsText::tr("would change %1, already so %2, failed %3")
                                 : SettingsText::tr("changed %1, already so %2, failed %3"))
                      .arg(result.changed)
                      .arg(alreadySo)
                      .arg(result.failed) +
                  QLatin1Char('\n'));
    }
    if (options.json) {
        const char* status = result.refused  ? "refused"
                             : result.failed ? "failed"
                             : result.changed ? "changed"
                                              : "already so";
        Print(QString::fromUtf8(QJsonDocument(QJsonObject{{"command", options.command},
                                                          {"check", options.check},
                                                          {"status", status},
                                                          {"refusals", QJsonArray::fromStringList(refusals)},
                                                          {"changed", result.changed},
                                                          {"already_so", alreadySo},
                                                          {"failed", result.failed},
                                                          {"prefixes", prefixes}})
                                    .toJson()));
    }
    return result;
}

// `what` names the commit in the history: the command, by default.
RunResult commitEverywhere(const Options& options, const SectionEdits& edits, const QStringList& refusals,
                           const QString& what = {}) {
    return reportEverywhere(options, refusals, [&](const WinePrefix& prefix) {
        return commitOnPrefix(options, edits, what.isEmpty() ? options.command : what, prefix);
    });
}

// One prefix: the files of a history entry brought back.
PrefixReport restoreOnPrefix(const Options& options, int number, const WinePrefix& prefix) {
    const UserFiles user(prefix, options.user, options.standard);
    PrefixReport report{prefix.name(), user.info().actuel, false, {}, {}, {}};
    const QString nativeIni = user.lock().nativeIniPath();
    // --run: back to before the first commit of that run here; a prefix that
    // it did not touch is already so, and one where a later commit stands on
    // top of it is refused, naming that commit.
    if (!options.run.isEmpty()) {
        const QList<HistoryEntry> history = ReadHistory(nativeIni);
        const auto first = std::find_if(history.begin(), history.end(), [&](const HistoryEntry& e) { return e.run == options.run; });
        if (first == history.end()) return report;
        for (auto later = first; later != history.end(); ++later)
            if (later->run != options.run) {
                report.error = SettingsText::tr("%1: commit %2 (%3) came after run %4; restore it first")
                                   .arg(HistoryFolder(nativeIni))
                                   .arg(later->number)
                                   .arg(later->what, options.run);
                return report;
            }
        number = first->number;
    }
    QString error;
    const std::optional<HistoryEntry> entry = ReadHistoryEntry(nativeIni, number, &error);
    if (!entry) {
        report.error = QStringLiteral("%1: %2").arg(HistoryFolder(nativeIni), error);
        return report;
    }
    const QString folder = QFileInfo(nativeIni).absolutePath() + QLatin1Char('/');
    const QString windowsFolder = user.lock().iniPath().left(user.lock().iniPath().lastIndexOf(QLatin1Char('\\')) + 1);
    QByteArray iniBack = ReadWholeFile(nativeIni).value_or(QByteArray());
    for (const KeptFile& file : entry->files) {
        if (ReadWholeFile(folder + file.name) == file.bytes) continue;
        report.files.append(windowsFolder + file.name);
        if (folder + file.name == nativeIni) iniBack = file.bytes.value_or(QByteArray());
    }
    const QByteArray now = ReadWholeFile(nativeIni).value_or(QByteArray());
    for (const KeyChange& change : KeyChanges(now, iniBack, ChangedKeys(now, iniBack)))
        report.keys.append({change.key.section(QLatin1Char('/'), 0, 0), change.key.section(QLatin1Char('/'), 1), change.before,
                            change.after});
    report.changed = !report.files.isEmpty();
    if (report.changed && !options.check) {
        const CommitOutcome outcome = RestoreHistoryEntry(user.lock(), *entry);
        if (!outcome.ok) report.error = QStringLiteral("%1: %2").arg(outcome.file, FailureText(outcome.reason));
    }
    return report;
}

// The files brought back byte for byte, the keys that the office standard
// locks take its values again, in a commit of their own when they differ
// ("heal FILE" in the history); the report tells both.
void keepLocks(const Options& options, const WinePrefix& prefix, PrefixReport& report) {
    const SectionEdits locked = options.standard ? editsOfStandard(*options.standard, false) : SectionEdits();
    if (locked.isEmpty()) return;
    const PrefixReport healed = commitOnPrefix(options, locked, QStringLiteral("heal %1").arg(options.standard->file), prefix);
    if (!healed.error.isEmpty()) report.error = healed.error;
    for (const KeyReport& key : healed.keys) {
        const auto same = std::find_if(report.keys.begin(), report.keys.end(),
                                       [&](const KeyReport& k) { return k.section == key.section && k.key == key.key; });
        if (same != report.keys.end()) same->after = key.after;
        else report.keys.append(key);
    }
    // A key that the restore took away and the locks put back did not change.
    erase_if(report.keys, [](const KeyReport& key) { return key.before == key.after; });
    for (const QString& file : healed.files)
        if (!report.files.contains(file)) report.files.append(file);
}

} // namespace

RunResult RunSet(const Options& options) {
    QStringList refusals;
    const SectionEdits edits = editsOfCommandLine(options, refusals);
    return commitEverywhere(options, edits, refusals);
}

RunResult RunApply(const Options& options) {
    QStringList refusals;
    const SectionEdits edits = editsOfProfile(options, refusals);
    return commitEverywhere(options, edits, refusals);
}

// Every key that the office standard gives or locks, at its value, on each
// prefix: with --check, which users differ from the standard and in what.
RunResult RunHeal(const Options& options) {
    QStringList refusals;
    SectionEdits edits;
    if (!options.arguments.isEmpty()) refuse(SettingsText::tr("heal takes no argument"), refusals);
    else if (!options.standard) refuse(SettingsText::tr("%1: no office standard to heal to").arg(OfficeStandardPath()), refusals);
    else edits = editsOfStandard(*options.standard, true);
    return commitEverywhere(options, edits, refusals,
                            options.standard ? QStringLiteral("heal %1").arg(options.standard->file) : QString());
}

RunResult RunRestore(const Options& options) {
    QStringList refusals;
    int number = 0;
    if (options.arguments.size() > 1 || (!options.run.isEmpty() && !options.arguments.isEmpty()))
        refuse(SettingsText::tr("restore takes at most one entry number, or --run ID"), refusals);
    else if (options.arguments.size() == 1) {
        bool ok = false;
        number = options.arguments.first().toInt(&ok);
        if (!ok || number <= 0) refuse(SettingsText::tr("%1: no entry number").arg(options.arguments.first()), refusals);
    }
    return reportEverywhere(options, refusals, [&](const WinePrefix& prefix) {
        PrefixReport report = restoreOnPrefix(options, number, prefix);
        if (report.changed && !options.check && report.error.isEmpty()) keepLocks(options, prefix, report);
        return report;
    });
}

} // namespace brimo
