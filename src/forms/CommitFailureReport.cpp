#include "forms/CommitFailureReport.h"

#include "forms/WindowServices.h"

namespace brimo {

void ReportCommitFailureAndEnd(Navigator& navigator, const CommitOutcome& outcome) {
    const QString text = QStringLiteral("Le fichier %1 n'a pas pu être écrit : %2.\r\n"
                                        "Aucun fichier n'a été modifié.\r\n\r\n"
                                        "The file %1 could not be written: %2.\r\n"
                                        "No file was changed.")
                             .arg(outcome.file, outcome.reason);
    ShowInformationBox(text, QStringLiteral("Brimo"));
    navigator.End(1);
}

} // namespace brimo
