#include "model/GeneralVariables.h"

#include "model/OfficeStandard.h"
#include "platform/ProfileFile.h"
#include "platform/RegionalNumbers.h"

#include <stdexcept>

namespace brimo {

VariableValue DefaultValue(const GeneralVariableRow& entry) {
    switch (entry.defaultKind) {
    case DefaultKind::Int: return static_cast<qint16>(entry.defaultNumber);
    case DefaultKind::Dbl: return entry.defaultNumber;
    case DefaultKind::Txt: return QString::fromUtf8(entry.defaultText);
    }
    return QString();
}

GeneralVariables::GeneralVariables() { resetToDefaults(); }

void GeneralVariables::resetToDefaults() {
    for (std::size_t i = 0; i < values_.size(); ++i) values_[i] = DefaultValue(kGeneralVariableCatalogue[i]);
}

std::size_t GeneralVariables::indexOf(QAnyStringView key) {
    for (std::size_t i = 0; i < kGeneralVariableCatalogue.size(); ++i)
        if (QAnyStringView::compare(key, QLatin1String(kGeneralVariableCatalogue[i].key), Qt::CaseInsensitive) == 0) return i;
    throw std::out_of_range("no general variable " + key.toString().toStdString());
}

const VariableValue& GeneralVariables::value(QAnyStringView key) const { return values_[indexOf(key)]; }

QString GeneralVariables::text(QAnyStringView key) const {
    const VariableValue& v = value(key);
    if (const auto* s = std::get_if<QString>(&v)) return *s;
    if (const auto* i = std::get_if<qint16>(&v)) return NumberToText(*i);
    return NumberToText(std::get<double>(v));
}

void GeneralVariables::setText(QAnyStringView key, const QString& text) { values_[indexOf(key)] = text; }

void GeneralVariables::setValue(QAnyStringView key, VariableValue value) { values_[indexOf(key)] = std::move(value); }

void LoadGeneralVariables(const InstallInfo& info, GeneralVariables& variables, Failure* failure) {
    LoadGeneralVariables(LoadProfile(info.prefix, BrimoIniPath(info), failure), variables, info.standard.get());
}

void LoadGeneralVariables(const ProfileDocument& ini, GeneralVariables& variables, const OfficeStandard* standard) {
    for (const GeneralVariableRow& entry : kGeneralVariableCatalogue) {
        const QString key = QLatin1String(entry.key);
        const OfficeKey* office = standard ? standard->find(SettingSection::General, key) : nullptr;
        const QString read = office && office->locked ? QString() : ReadProfileString(ini, QLatin1String(kGeneralSection), key);
        if (!read.isEmpty()) variables.setText(key, read);
        else if (office) variables.setText(key, office->value);
        else variables.setValue(key, DefaultValue(entry));
    }
}

} // namespace brimo
