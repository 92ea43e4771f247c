#include "model/FailureText.h"

#include "platform/FileAccess.h"

#include <QCoreApplication>

#include <cstring>

namespace brimo {

namespace {

struct FailureSentence {
    FailureKind kind;
    const char* text; // English; %1 and %2 take the details
    bool systemWords; // the system's own reason follows in parentheses
};

// One row a kind, in the order of FailureKind.
constexpr FailureSentence kFailureSentences[] = {
    {FailureKind::None, "", false},
    {FailureKind::System, QT_TRANSLATE_NOOP("Failure", "the system refused it"), true},
    {FailureKind::NoSpace, QT_TRANSLATE_NOOP("Failure", "no room is left on the disk"), false},
    {FailureKind::ReadOnlyDisk, QT_TRANSLATE_NOOP("Failure", "the disk can only be read"), false},
    {FailureKind::ReadOnlyFile, QT_TRANSLATE_NOOP("Failure", "the file is read-only"), false},
    {FailureKind::NoPermission, QT_TRANSLATE_NOOP("Failure", "you have no right to do this here"), false},
    {FailureKind::SizeLimit, QT_TRANSLATE_NOOP("Failure", "the file would pass the size limit set for this program"), false},
    {FailureKind::Missing, QT_TRANSLATE_NOOP("Failure", "the file does not exist"), false},
    {FailureKind::TooLargeToRead, QT_TRANSLATE_NOOP("Failure", "the file is too large to be read (at most %1 bytes are read)"), false},
    {FailureKind::NotRegularFile, QT_TRANSLATE_NOOP("Failure", "not a regular file"), false},
    {FailureKind::FolderInTheWay, QT_TRANSLATE_NOOP("Failure", "a folder stands where the file should be"), false},
    {FailureKind::FolderMissing, QT_TRANSLATE_NOOP("Failure", "the folder %1 does not exist"), false},
    {FailureKind::NoFolder, QT_TRANSLATE_NOOP("Failure", "the path names no folder on this machine"), false},
    {FailureKind::LinkLoop, QT_TRANSLATE_NOOP("Failure", "too many levels of symbolic links"), false},
    {FailureKind::LockHeld, QT_TRANSLATE_NOOP("Failure", "process %1 (%2) holds the lock"), false},
    {FailureKind::LockUnusable, QT_TRANSLATE_NOOP("Failure", "the lock %1 cannot be used"), true},
    {FailureKind::NotOwner, QT_TRANSLATE_NOOP("Failure", "cannot act as the owner of the prefix (user %1)"), true},
    {FailureKind::CannotPutBack, QT_TRANSLATE_NOOP("Failure", "a file of the commit cannot be read, so it could not be put back"), true},
    {FailureKind::SplitFolders, QT_TRANSLATE_NOOP("Failure", "the files of one commit must share a folder"), false},
};
static_assert(std::size(kFailureSentences) == static_cast<std::size_t>(FailureKind::SplitFolders) + 1);
constexpr bool rowsInKindOrder() {
    for (std::size_t i = 0; i < std::size(kFailureSentences); ++i)
        if (static_cast<std::size_t>(kFailureSentences[i].kind) != i) return false;
    return true;
}
static_assert(rowsInKindOrder());

// A holder that did not write its pid is "another program"; one that wrote
// no name is its number alone.
constexpr const char* kUnknownHolder = QT_TRANSLATE_NOOP("Failure", "another program holds the lock");
constexpr const char* kNamelessHolder = QT_TRANSLATE_NOOP("Failure", "process %1 holds the lock");

} // namespace

QString FailureText(const Failure& failure, Wording wording) {
    const auto say = [wording](const char* text) {
        return wording == Wording::English ? QString::fromUtf8(text) : QCoreApplication::translate("Failure", text);
    };
    const FailureSentence& row = kFailureSentences[static_cast<std::size_t>(failure.kind)];
    QString text;
    switch (failure.kind) {
    case FailureKind::TooLargeToRead: text = say(row.text).arg(kLargestReadFile); break;
    case FailureKind::LockHeld:
        text = !failure.number           ? say(kUnknownHolder)
               : failure.detail.isEmpty() ? say(kNamelessHolder).arg(failure.number)
                                          : say(row.text).arg(failure.number).arg(failure.detail);
        break;
    case FailureKind::NotOwner: text = say(row.text).arg(failure.number); break;
    case FailureKind::FolderMissing:
    case FailureKind::LockUnusable: text = say(row.text).arg(failure.detail); break;
    default: text = say(row.text);
    }
    // The system's reason in parentheses: our own sentence where it has a
    // kind (no right, no room...), else the C library's words.
    if (row.systemWords && failure.systemError) {
        const Failure cause = FailureOfErrno(failure.systemError);
        text += QStringLiteral(" (%1)").arg(cause.kind != FailureKind::System
                                                ? FailureText(cause, wording)
                                                : QString::fromLocal8Bit(std::strerror(failure.systemError)));
    }
    return text;
}

} // namespace brimo
