#pragma once
// The about window: the program's title, the vendor, the versions that
// zorel.ini gives, and a button that starts the system information tool.
// It is handed the installation settings, into which it puts the display
// defaults of the versions, and the legends of its two captions.

#include "forms/BrimoForm.h"
#include "model/InstallInfo.h"
#include "model/LegendTable.h"

namespace brimo {

class CAboutForm : public BrimoForm {
    Q_OBJECT
public:
    CAboutForm(InstallInfo& info, const LegendTable& legends);
    void Form_Load() override;

    void cmdOK_Click();
    void Command1_Click();

private:
    InstallInfo& info_;
    const LegendTable& legends_;
};

} // namespace brimo
