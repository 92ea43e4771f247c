#include "dialogs/about/AboutTexts.h"

namespace brimo {

namespace {

struct VersionDisplayDefault {
    QString InstallInfo::*value;
    const char* shown;
};

const VersionDisplayDefault kVersionDisplayDefaults[] = {
    {&InstallInfo::No_version_Zorel, "2009"},
    {&InstallInfo::No_version_acad, "17.0s (Hardware Lock)"},
    {&InstallInfo::No_serie_acad, "Non saisi"},
};

struct VersionLabel {
    const char* label;
    const char* fixedText;
    QString InstallInfo::*value;
};

const VersionLabel kVersionLabels[] = {
    {"txt_about(6)", "Numéro de série : ", &InstallInfo::No_serie_acad},
    {"txt_about(8)", "Zorel  version ", &InstallInfo::No_version_Zorel},
    {"txt_about(9)", "Autocad version ", &InstallInfo::No_version_acad},
};

} // namespace

void ApplyVersionDisplayDefaults(InstallInfo& info) {
    for (const VersionDisplayDefault& entry : kVersionDisplayDefaults)
        if ((info.*entry.value).isEmpty()) info.*entry.value = QString::fromUtf8(entry.shown);
}

QList<ComposedLabel> ComposeVersionLabels(const InstallInfo& info) {
    QList<ComposedLabel> labels;
    for (const VersionLabel& entry : kVersionLabels)
        labels.append({QString::fromLatin1(entry.label), QString::fromUtf8(entry.fixedText) + info.*entry.value});
    return labels;
}

} // namespace brimo
