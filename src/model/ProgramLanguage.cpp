#include "model/ProgramLanguage.h"

#include <QCoreApplication>
#include <QTranslator>


namespace brimo {

namespace {

struct ProgramLanguageRow {
    const char* code;   // as x_lang says it
    const char* locale; // the language of a locale name, and of the translation file
};

constexpr ProgramLanguageRow kProgramLanguages[] = {
    {"FRA", "fr"},
    {"ENG", "en"},
    {"DEU", "de"},
    {"ITA", "it"},
};

QTranslator& translator() {
    static QTranslator* installed = new QTranslator(QCoreApplication::instance());
    return *installed;
}

} // namespace

void SetProgramLanguage(const QString& code) {
    QCoreApplication::removeTranslator(&translator());
    for (const ProgramLanguageRow& row : kProgramLanguages)
        if (code.compare(QLatin1String(row.code), Qt::CaseInsensitive) == 0 &&
            translator().load(QStringLiteral(":/i18n/brimo_%1.qm").arg(QLatin1String(row.locale))))
            QCoreApplication::installTranslator(&translator());
}

QString LanguageOfEnvironment() {
    QString locale;
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (!(locale = qEnvironmentVariable(name)).isEmpty()) break;
    for (const ProgramLanguageRow& row : kProgramLanguages)
        if (locale.startsWith(QLatin1String(row.locale)) &&
            (locale.size() == 2 || !locale.at(2).isLetter()))
            return QLatin1String(row.code);
    return QStringLiteral("ENG");
}

} // namespace brimo
