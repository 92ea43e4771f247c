#include "dialogs/general/GeneralLoad.h"

#include "platform/RegionalNumbers.h"

#include <cmath>

namespace brimo {

namespace {

bool matches(const StoredChoice& choice, const QString& stored) {
    if (choice.comparison == StoredComparison::ExactText) return stored == QLatin1String(choice.value);
    const Conversion number = TextToDouble(stored);
    return number.ok() && number.value == QString::fromLatin1(choice.value).toDouble();
}

} // namespace

QStringList StoredSelections(const GeneralVariables& variables) {
    QStringList buttons;
    QString decidedKey;
    for (const StoredChoice& choice : kStoredChoices) {
        if (decidedKey == QLatin1String(choice.key)) continue;
        if (!matches(choice, variables.text(QString::fromLatin1(choice.key)))) continue;
        buttons.append(QLatin1String(choice.button));
        decidedKey = QLatin1String(choice.key);
    }
    return buttons;
}

std::optional<int> StoredCheckState(const QString& stored) {
    const Conversion number = TextToDouble(stored);
    if (!number.ok()) return std::nullopt;
    // A whole number as the toolkit makes one: halves go to the even side.
    const double whole = std::nearbyint(number.value);
    if (whole < 0 || whole > 2) return std::nullopt;
    return static_cast<int>(whole);
}

} // namespace brimo
