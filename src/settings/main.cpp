// brimo-settings: the settings of the general and slope dialogs from the
// command line, read and written as the dialogs read and write them.
#include "model/ProgramLanguage.h"
#include "settings/CommandTable.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <csignal>
#include <cstdio>

int main(int argc, char** argv) {
    using namespace brimo;
    QCoreApplication application(argc, argv);
    // Its own sentences in the language of the locale's messages, as Debian's
    // tools speak; keys, values, JSON keys and statuses never change with it.
    SetProgramLanguage(LanguageOfEnvironment(), QtOwnWords::Translated);
    // A write past the file size limit then fails with EFBIG and is reported
    // as any failed write, instead of killing the tool.
    std::signal(SIGXFSZ, SIG_IGN);
    QStringList arguments;
    // Bytes that are no UTF-8 (a folder named in Latin-1) are kept as they are.
    for (int i = 1; i < argc; ++i) arguments.append(DecodeNativeText(argv[i]));

    QString error;
    const std::optional<Options> options = ParseOptions(arguments, &error);
    if (!options) {
        Complain(error);
        std::fputs(Usage(false).toUtf8().constData(), stderr);
        return ExitStatusOf({true}, arguments.contains(QStringLiteral("--detailed-exitcodes")));
    }
    // A standard that cannot be read or holds a refused value would give the
    // users other values than the office means: nothing is done.
    Options withStandard = *options;
    if (options->command != QLatin1String("help") && options->command != QLatin1String("version")) {
        const LoadedStandard standard = LoadOfficeStandard();
        if (standard.problem) {
            Complain(StandardProblemText(standard.file, *standard.problem));
            return ExitStatusOf({true}, options->detailedExitCodes);
        }
        withStandard.standard = standard.standard;
    }
    const RunResult result = FindCommand(options->command)->run(withStandard);
    return ExitStatusOf(result, options->detailedExitCodes);
}
