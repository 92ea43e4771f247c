#pragma once
// What the start finds that will make OK fail, or that the user must know
// before editing: a Brimo.ini that cannot be read, a lock that cannot be had,
// a damaged journal removed, an office standard ignored. Said on stderr as found (in English), and in one
// box of the program's language once the first window stands.

#include "model/OfficeStandard.h"
#include "model/VariableCommit.h"
#include "platform/Failure.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <optional>

namespace brimo {

class StartProblems {
    Q_DECLARE_TR_FUNCTIONS(StartProblems)

public:
    // Brimo.ini is there and cannot be read.
    void iniUnreadable(const QString& iniPath, const Failure& failure);
    // What the recovery of an interrupted commit found in the folder of Brimo.ini.
    void recovered(const QString& iniPath, const StartRecovery& found);
    // The office standard is there but cannot be read or holds a value that
    // brimo-settings would refuse: it is ignored whole.
    void standardIgnored(const QString& file, const StandardProblem& problem);

    bool any() const { return !found_.isEmpty(); }
    // The box's text, in the program's language at the moment it is asked.
    QString text() const;

private:
    enum class Kind { IniUnreadable, LockKept, LockUnusable, JournalDamaged, StandardIgnored };
    struct Found {
        Kind kind;
        QString file;
        Failure failure;
        std::optional<StandardProblem> standard;
    };
    QList<Found> found_;
};

} // namespace brimo
