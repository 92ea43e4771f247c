#include "model/ProgramLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>
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

// Ours, built in, and Qt's own when asked for and installed.
QTranslator& translator() {
    static QTranslator* installed = new QTranslator(QCoreApplication::instance());
    return *installed;
}
QTranslator& qtTranslator() {
    static QTranslator* installed = new QTranslator(QCoreApplication::instance());
    return *installed;
}

} // namespace

void SetProgramLanguage(const QString& code, QtOwnWords qtWords) {
    QCoreApplication::removeTranslator(&translator());
    QCoreApplication::removeTranslator(&qtTranslator());
    for (const ProgramLanguageRow& row : kProgramLanguages) {
        if (code.compare(QLatin1String(row.code), Qt::CaseInsensitive) != 0) continue;
        const QString locale = QLatin1String(row.locale);
        if (translator().load(QStringLiteral(":/i18n/brimo_%1.qm").arg(locale)))
            QCoreApplication::installTranslator(&translator());
        if (qtWords == QtOwnWords::Translated && locale != QLatin1String("en") &&
            qtTranslator().load(QStringLiteral("qtbase_") + locale, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(&qtTranslator());
    }
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
