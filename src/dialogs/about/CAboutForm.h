#pragma once
// The about window: the program's title, the vendor, the versions that
// zorel.ini gives, and a button that starts the system information tool.

#include "app/BrimoForm.h"

namespace brimo {

class CAboutForm : public BrimoForm {
    Q_OBJECT
public:
    explicit CAboutForm(MainModule& module);
    void Form_Load() override;

    void cmdOK_Click();
    void Command1_Click();
};

} // namespace brimo
