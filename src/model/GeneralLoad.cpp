#include "model/GeneralLoad.h"

#include "platform/RegionalNumbers.h"

#include <cmath>

namespace brimo {

namespace {

// A choice of a text is compared as exact text, any other as a number.
bool matches(const GeneralChoice& choice, const QString& stored) {
    if (FindVariableRow(choice.key)->defaultKind == DefaultKind::Txt) return stored == QLatin1String(choice.value);
    const Conversion number = TextToDouble(stored);
    return number.ok() && number.value == QString::fromLatin1(choice.value).toDouble();
}

} // namespace

QStringList StoredSelections(const GeneralVariables& variables) {
    QStringList buttons;
    QString decidedKey;
    for (const GeneralChoice& choice : kGeneralChoices) {
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

QString OptionGroupOf(const QString& button) { return button.section(QLatin1Char('('), 0, 0); }

GeneralControlState DesignControlState() {
    GeneralControlState state;
    for (const GeneralVariableRow& row : kGeneralVariableCatalogue) {
        if (ReadOf(row.type) == ControlRead::Text) state.texts.insert(QLatin1String(row.field), QString());
        if (ReadOf(row.type) == ControlRead::State) state.checkStates.insert(QLatin1String(row.field), 0);
    }
    for (const GeneralChoice& choice : kGeneralChoices)
        if (choice.designSelected) state.selectedOptions.insert(QLatin1String(choice.button));
    return state;
}

GeneralControlState LoadedControlState(const GeneralVariables& variables) {
    GeneralControlState state = DesignControlState();
    for (const GeneralVariableRow& row : kGeneralVariableCatalogue)
        if (ReadOf(row.type) == ControlRead::Text) state.texts.insert(QLatin1String(row.field), variables.text(QLatin1String(row.key)));
    // A selected button deselects the others of its group, as option buttons do.
    for (const QString& button : StoredSelections(variables)) {
        const QString group = OptionGroupOf(button);
        erase_if(state.selectedOptions, [&](const QString& other) { return OptionGroupOf(other) == group; });
        state.selectedOptions.insert(button);
    }
    // A flag whose stored value is no check state keeps the design's box.
    for (const GeneralVariableRow& row : kGeneralVariableCatalogue)
        if (ReadOf(row.type) == ControlRead::State)
            if (const std::optional<int> stored = StoredCheckState(variables.text(QLatin1String(row.key))))
                state.checkStates.insert(QLatin1String(row.field), *stored);
    return state;
}

} // namespace brimo
