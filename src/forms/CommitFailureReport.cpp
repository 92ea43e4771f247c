#include "forms/CommitFailureReport.h"

#include "forms/WindowServices.h"
#include "model/FailureText.h"

#include <QCoreApplication>

namespace brimo {

namespace {
struct CommitFailureReport {
    Q_DECLARE_TR_FUNCTIONS(CommitFailureReport)
};
} // namespace

void ReportCommitFailure(BrimoForm& form, Navigator& navigator, const CommitOutcome& outcome) {
    QString text = CommitFailureReport::tr("The file %1 could not be written: %2.").arg(outcome.file, FailureText(outcome.reason)) +
                   QStringLiteral("\r\n") + CommitFailureReport::tr("No file was changed.");
    if (outcome.busy) text += QStringLiteral("\r\n\r\n") + CommitFailureReport::tr("The window stays open: press OK again in a moment.");
    form.messageBoxes().ShowInformationBox(text, QStringLiteral("Brimo"));
    if (!outcome.busy) navigator.End(1);
}

QString UnwritableQuoteMessage(const QString& caption) {
    return CommitFailureReport::tr("The field \"%1\" holds a double quote (\"), which the Lisp file cannot take. Remove it, then press OK again.")
        .arg(caption);
}

} // namespace brimo
