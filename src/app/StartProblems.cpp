#include "app/StartProblems.h"

#include "model/FailureText.h"

#include <cstdio>

namespace brimo {

namespace {

void sayOnStderr(const QString& iniPath, const Failure& failure) {
    std::fprintf(stderr, "Brimo2010: %s: %s\n", iniPath.toLocal8Bit().constData(),
                 FailureText(failure, Wording::English).toLocal8Bit().constData());
}

} // namespace

void StartProblems::iniUnreadable(const QString& iniPath, const Failure& failure) {
    sayOnStderr(iniPath, failure);
    found_.append({Kind::IniUnreadable, iniPath, failure, std::nullopt});
}

void StartProblems::standardIgnored(const QString& file, const StandardProblem& problem) {
    std::fprintf(stderr, "Brimo2010: %s\n", StandardProblemText(file, problem).toLocal8Bit().constData());
    found_.append({Kind::StandardIgnored, file, {}, problem});
}

// A damaged journal is already on stderr (RecoverFilesTogether).
void StartProblems::recovered(const QString& iniPath, const StartRecovery& found) {
    if (!found.lock.ok) {
        sayOnStderr(iniPath, found.lock.reason);
        found_.append({found.lock.busy ? Kind::LockKept : Kind::LockUnusable, iniPath, found.lock.reason, std::nullopt});
    }
    if (found.recovery == Recovery::Ignored) found_.append({Kind::JournalDamaged, iniPath, {}, std::nullopt});
}

QString StartProblems::text() const {
    QStringList paragraphs;
    for (const Found& found : found_) {
        switch (found.kind) {
        case Kind::IniUnreadable:
            paragraphs.append(tr("The file %1 cannot be read: %2. The dialog shows the default values, and OK will "
                                 "fail until the file is put right.").arg(found.file, FailureText(found.failure)));
            break;
        case Kind::LockKept:
            paragraphs.append(tr("Another program kept the file %1 locked through the whole wait: %2. The dialog shows "
                                 "the file as it stands, and OK will fail while that program keeps it.")
                                  .arg(found.file, FailureText(found.failure)));
            break;
        case Kind::LockUnusable:
            paragraphs.append(tr("The lock of the file %1 cannot be had: %2. OK will fail: nothing can be saved.")
                                  .arg(found.file, FailureText(found.failure)));
            break;
        case Kind::StandardIgnored:
            paragraphs.append(tr("%1 The dialog shows your own values and the program's defaults.")
                                  .arg(StandardProblemText(found.file, *found.standard)));
            break;
        case Kind::JournalDamaged:
            paragraphs.append(tr("A save into the folder of %1 was cut off, and its journal was damaged: the journal "
                                 "was removed and the files were left as they stand. Check the values before you "
                                 "press OK.").arg(found.file));
            break;
        }
    }
    return paragraphs.join(QStringLiteral("\r\n\r\n"));
}

} // namespace brimo
