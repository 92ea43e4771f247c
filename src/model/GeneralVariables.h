#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The 51 values of section Brimo_Gene, each called by its key. A value read
// from the file is text, exactly as read; a default that applied keeps its
// number (16-bit integer or double) until it is shown as text.

#include "model/GeneralVariableCatalogue.h"
#include "model/InstallInfo.h"
#include "platform/ProfileDocument.h"

#include <QString>
#include <array>
#include <variant>

namespace brimo {

// The section of Brimo.ini that holds them.
inline constexpr char kGeneralSection[] = "Brimo_Gene";

using VariableValue = std::variant<QString, qint16, double>;

class GeneralVariables {
public:
    GeneralVariables();

    // The value of a key as the catalogue spells it (case-insensitive).
    const VariableValue& value(QAnyStringView key) const;
    // The text form of the value; numbers are rendered now, under the
    // regional settings in force.
    QString text(QAnyStringView key) const;
    void setText(QAnyStringView key, const QString& text);
    void setValue(QAnyStringView key, VariableValue value);

    // Fills every value with its default.
    void resetToDefaults();

private:
    static std::size_t indexOf(QAnyStringView key);
    std::array<VariableValue, kGeneralVariableCatalogue.size()> values_;
};

// The default of a catalogue row, held as the catalogue says.
VariableValue DefaultValue(const GeneralVariableRow& entry);

// Reads the 51 keys of section Brimo_Gene from BrimoIniPath(info), in the
// catalogue's order; a missing or empty value takes the office's value, else
// its default, and a key that the office standard locks takes the
// standard's. A Brimo.ini that is there but cannot be read reads as a
// missing one and sets `failure`.
void LoadGeneralVariables(const InstallInfo& info, GeneralVariables& variables, Failure* failure = nullptr);
// The same from a Brimo.ini already read.
void LoadGeneralVariables(const ProfileDocument& ini, GeneralVariables& variables, const OfficeStandard* standard = nullptr);

} // namespace brimo
