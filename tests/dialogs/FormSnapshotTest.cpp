// Every form as built and loaded, against its snapshot in tests/golden/forms:
// the controls' kinds, places, captions, design states and the Tab order.
// The legends read "FRA n" on line n, so each caption names its legend.

#include "dialogs/about/CAboutForm.h"
#include "dialogs/chooser/CChoixForm.h"
#include "dialogs/drawing/CVarGlobale.h"
#include "dialogs/general/CGeneralForm.h"
#include "dialogs/slope/CParamRechTalus.h"
#include "support/FormDump.h"
#include "support/FormServices.h"
#include "support/Golden.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

#include <functional>

namespace brimo::test {
namespace {

struct Form {
    const char* snapshot;
    std::function<QWidget*(FormServices&)> make;
};

const Form kForms[] = {
    {"chooser.txt", [](FormServices& s) { return s.show(new CChoixForm(s)); }},
    {"general.txt",
     [](FormServices& s) { return s.show(new CGeneralForm(s, s.info, s.variables, s.legends, s)); }},
    {"slope.txt", [](FormServices& s) { return s.show(new CParamRechTalus(s, s.info, s.legends)); }},
    {"about.txt", [](FormServices& s) { return s.show(new CAboutForm(s.info, s.legends)); }},
    {"drawing.txt", [](FormServices& s) { return s.show(new CVarGlobale); }},
};

TEST(FormSnapshot, EveryFormAsBuiltAndLoaded) {
    ScratchPrefix prefix;
    prefix.writeZorelIni(QStringLiteral("C:\\Zorel"), QStringLiteral("C:\\Zorel\\Var"), QStringLiteral("jo"));
    QByteArray legends;
    for (int n = 1; n <= 174; ++n) legends += "0000 FRA " + QByteArray::number(n) + "\r\n";
    prefix.write(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_FRA.txt"), legends);
    for (const Form& form : kForms) {
        FormServices services;
        services.load();
        ExpectGolden(QStringLiteral("forms/") + QLatin1String(form.snapshot), DumpForm(form.make(services)));
    }
}

} // namespace
} // namespace brimo::test
