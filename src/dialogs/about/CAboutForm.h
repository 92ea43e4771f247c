#pragma once
// The about window: the program's title, the vendor, the versions that
// zorel.ini gives, and a button that starts the system information tool.

#include "app/BrimoForm.h"

namespace brimo {

// The system information tool, at the fixed path of a French Windows system.
// Under Wine the path lies in the prefix's drive C:, where a user who wants
// the tool installs msinfo32.exe; without it, Command1 stays disabled.
extern const QString kSystemInfoTool;

class CAboutForm : public BrimoForm {
    Q_OBJECT
public:
    explicit CAboutForm(MainModule& module);
    void Form_Load() override;

    void cmdOK_Click();
    void Command1_Click();
};

} // namespace brimo
