#include "app/CommandWord.h"

#include <QStringList>

namespace brimo {

QString CommandLineOf(int argc, const char* const argv[]) {
    QStringList words;
    for (int i = 1; i < argc; ++i) words.append(QString::fromLocal8Bit(argv[i]));
    return words.join(QLatin1Char(' '));
}

StartDialog DialogForCommandLine(const QString& commandLine) {
    if (commandLine == QLatin1String("VTalus")) return StartDialog::SlopeSearch;
    if (commandLine == QLatin1String("VGene")) return StartDialog::General;
    if (commandLine == QLatin1String("VAbout")) return StartDialog::About;
    return StartDialog::Chooser;
}

} // namespace brimo
