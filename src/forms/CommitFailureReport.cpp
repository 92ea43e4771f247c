#include "forms/CommitFailureReport.h"

#include "forms/WindowServices.h"

namespace brimo {

void ReportCommitFailure(BrimoForm& form, Navigator& navigator, const CommitOutcome& outcome) {
    QString text = QStringLiteral("Le fichier %1 n'a pas pu être écrit : %2.\r\n"
                                  "Aucun fichier n'a été modifié.\r\n\r\n"
                                  "The file %1 could not be written: %2.\r\n"
                                  "No file was changed.")
                       .arg(outcome.file, outcome.reason);
    if (outcome.busy)
        text += QStringLiteral("\r\n\r\nLa fenêtre reste ouverte : validez à nouveau dans un instant.\r\n"
                               "The window stays open: press OK again in a moment.");
    form.messageBoxes().ShowInformationBox(text, QStringLiteral("Brimo"));
    if (!outcome.busy) navigator.End(1);
}

QString UnwritableQuoteMessage(const UnwritableField& field) {
    return QStringLiteral("Le champ « %1 » (%2) contient un guillemet (\"), que le fichier Lisp ne peut pas "
                          "recevoir. Retirez-le, puis validez à nouveau.\r\n\r\n"
                          "The field \"%1\" (%2) holds a double quote (\"), which the Lisp file cannot take. "
                          "Remove it, then press OK again.")
        .arg(field.comment, field.key);
}

} // namespace brimo
