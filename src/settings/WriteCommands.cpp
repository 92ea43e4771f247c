// set and apply: the given values on top of what each dialog opens with,
// written by the dialog's commit, prefix by prefix.
#include "settings/Commands.h"
#include "settings/UserFiles.h"

#include "platform/Cp1252.h"
#include "platform/FileAccess.h"

#include <QFile>

#include <cstdio>

namespace brimo {

namespace {

using SectionEdits = QList<QPair<SettingSection, QList<Edit>>>;

// Every refusal is told, then nothing is written anywhere.
std::optional<Edit> parseOrComplain(SettingSection section, const QString& assignment, bool& refused) {
    QString error;
    std::optional<Edit> edit = ParseEdit(section, assignment, &error);
    if (!edit) {
        Complain(error);
        refused = true;
    }
    return edit;
}

std::optional<SectionEdits> editsOfCommandLine(const Options& options) {
    QList<Edit> edits;
    bool refused = false;
    for (const QString& assignment : options.arguments)
        if (auto edit = parseOrComplain(options.section, assignment, refused)) edits.append(*edit);
    if (refused) return std::nullopt;
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
std::optional<SectionEdits> editsOfProfile(const QString& file) {
    const std::optional<QByteArray> bytes = readInput(file);
    if (!bytes) {
        Complain(QStringLiteral("%1: cannot be read").arg(file));
        return std::nullopt;
    }
    const ProfileDocument profile(*bytes);
    SectionEdits all;
    bool refused = false;
    for (SettingSection section : {SettingSection::General, SettingSection::Slope}) {
        const QByteArray name = toCp1252(SectionName(section));
        QList<Edit> edits;
        for (const QByteArray& key : profile.keyNames(name))
            if (auto edit = parseOrComplain(section, fromCp1252(key + '=' + profile.getString(name, key)), refused))
                edits.append(*edit);
        if (!edits.isEmpty()) all.append({section, edits});
    }
    if (all.isEmpty() && !refused) Complain(QStringLiteral("%1: no key of [Brimo_Gene] or [Brimo_Talus]").arg(file));
    if (refused || all.isEmpty()) return std::nullopt;
    return all;
}

struct Tally {
    int changed = 0;
    int alreadySo = 0;
};

// One prefix: compose every commit, compare with the files, write when they
// differ (unless only checking). False when the prefix failed.
bool commitOnPrefix(const Options& options, const SectionEdits& edits, const WinePrefix& wine, Tally& tally) {
    const QString& prefix = wine.folder;
    const UserFiles user(wine, options.user);
    if (user.lock().busy()) {
        Complain(QStringLiteral("%1: %2: %3").arg(prefix, user.lock().iniPath(), user.lock().busyOutcome().reason));
        return false;
    }
    CommitPlan plan(user.lock());
    QString report;
    for (const auto& [section, sectionEdits] : edits) {
        QString error;
        const std::optional<QList<CommittedRow>> rows = user.planCommit(plan, section, sectionEdits, &error);
        if (!rows) {
            Complain(QStringLiteral("%1: %2").arg(prefix, error));
            return false;
        }
        for (const CommittedRow& row : *rows)
            if (const QString before = user.storedText(section, row.key); before != row.value)
                report += QStringLiteral("  %1: \"%2\" -> \"%3\"\n").arg(row.key, before, row.value);
    }
    const QStringList files = plan.changedFiles();
    if (files.isEmpty()) {
        ++tally.alreadySo;
        Print(QStringLiteral("%1: already so\n").arg(prefix));
        return true;
    }
    if (!options.check) {
        const CommitOutcome outcome = plan.write();
        if (!outcome.ok) {
            Complain(QStringLiteral("%1: %2: %3").arg(prefix, outcome.file, outcome.reason));
            return false;
        }
    }
    ++tally.changed;
    for (const QString& file : files) report += QStringLiteral("  file %1\n").arg(file);
    Print(QStringLiteral("%1: %2\n").arg(prefix, options.check ? "would change" : "changed") + report);
    return true;
}

int commitEverywhere(const Options& options, const std::optional<SectionEdits>& edits) {
    if (!edits) return kRefused;
    Tally tally;
    const int failed = ForEachPrefix(options, [&](const WinePrefix& prefix) {
        return commitOnPrefix(options, *edits, prefix, tally);
    });
    Print(QStringLiteral("%1 %2, already so %3, failed %4\n")
              .arg(options.check ? "would change" : "changed")
              .arg(tally.changed)
              .arg(tally.alreadySo)
              .arg(failed));
    return failed ? kFailed : tally.changed ? kChanged : kAlreadySo;
}

} // namespace

int RunSet(const Options& options) { return commitEverywhere(options, editsOfCommandLine(options)); }

int RunApply(const Options& options) {
    if (options.arguments.size() != 1) {
        Complain(QStringLiteral("apply takes one FILE"));
        return kRefused;
    }
    return commitEverywhere(options, editsOfProfile(options.arguments.first()));
}

} // namespace brimo
