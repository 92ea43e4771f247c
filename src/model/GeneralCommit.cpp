#include "model/GeneralCommit.h"

#include "model/GeneLispCatalogue.h"

namespace brimo {

namespace {

// Row N of the sources reads the control of row N of the Lisp catalogue.
constexpr bool sourcesFollowCatalogue() {
    if (kGeneralCommitSources.size() != kGeneLispCatalogue.size()) return false;
    for (std::size_t i = 0; i < kGeneLispCatalogue.size(); ++i)
        if (kGeneralCommitSources[i].row != kGeneLispCatalogue[i].row) return false;
    return true;
}
static_assert(sourcesFollowCatalogue());

// The value that a row takes from the controls, or nothing for a group in
// which no button is selected.
std::optional<QString> valueOfRow(const CommitSource& source, const GeneralControlState& state) {
    const QString control = QLatin1String(source.control);
    switch (source.read) {
    case ControlRead::Text: return state.texts.value(control);
    case ControlRead::State: return QLatin1String(state.checkStates.value(control) == 0 ? "0" : "1");
    case ControlRead::Options:
        for (const ChoiceTest& test : kGeneralChoiceTests)
            if (test.row == source.row && state.selectedOptions.contains(QLatin1String(test.button)))
                return QString::fromLatin1(test.value);
        return std::nullopt;
    }
    return std::nullopt;
}

bool writtenBetweenQuotes(const GeneLispRow& row) {
    return row.form == LispLineForm::Quoted || row.form == LispLineForm::Path;
}

} // namespace

QList<CommittedRow> ComposeGeneralCommit(const GeneralControlState& state) {
    QList<CommittedRow> rows;
    for (std::size_t i = 0; i < kGeneLispCatalogue.size(); ++i) {
        const GeneLispRow& row = kGeneLispCatalogue[i];
        const std::optional<QString> value = valueOfRow(kGeneralCommitSources[i], state);
        if (!value) continue;
        const std::optional<QString> line = GeneLispLine(row, *value);
        if (!line) continue;
        rows.append({*line, QString::fromLatin1(row.lispName), *value});
    }
    return rows;
}

std::optional<UnwritableField> FindUnwritableQuote(const GeneralControlState& state) {
    for (std::size_t i = 0; i < kGeneLispCatalogue.size(); ++i) {
        const GeneLispRow& row = kGeneLispCatalogue[i];
        const QString control = QLatin1String(kGeneralCommitSources[i].control);
        if (!writtenBetweenQuotes(row) || !state.texts.value(control).contains(QLatin1Char('"'))) continue;
        // The comment of the row, behind ") ;", says what the field holds.
        const QString comment = QString::fromUtf8(row.closing).section(QLatin1Char(';'), 1);
        return UnwritableField{control, QString::fromLatin1(row.lispName), comment};
    }
    return std::nullopt;
}

QString UnwritableQuoteMessage(const UnwritableField& field) {
    return QStringLiteral("Le champ « %1 » (%2) contient un guillemet (\"), que le fichier Lisp ne peut pas "
                          "recevoir. Retirez-le, puis validez à nouveau.\r\n\r\n"
                          "The field \"%1\" (%2) holds a double quote (\"), which the Lisp file cannot take. "
                          "Remove it, then press OK again.")
        .arg(field.comment, field.key);
}

} // namespace brimo
