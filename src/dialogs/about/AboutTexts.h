#pragma once
// The texts of the about window that come from the installation settings.

#include "model/InstallInfo.h"

#include <QString>
#include <QList>

namespace brimo {

// The version values that zorel.ini leaves empty take the text shown in
// their place. The text goes into InstallInfo and stays there.
void ApplyVersionDisplayDefaults(InstallInfo& info);

// A label composed of a fixed French text and a version value; the fixed
// texts are no legends and stay French in every language.
struct ComposedLabel {
    QString label; // control name
    QString text;
};
QList<ComposedLabel> ComposeVersionLabels(const InstallInfo& info);

} // namespace brimo
