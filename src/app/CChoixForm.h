#pragma once
// The module chooser: a small fixed window whose buttons open the other
// dialogs. Its captions and the dialogs they open cross over: "Général"
// opens CVarGlobale, "Cadre et Layers" opens CGeneralForm.

#include "app/BrimoForm.h"

namespace brimo {

class CChoixForm : public BrimoForm {
    Q_OBJECT
public:
    explicit CChoixForm(MainModule& module);

    void CmdChoixPiedTalus_Click();
    void CmdChoixAbout_Click();
    void CmdChoixQuitter_Click();
    void CmdChoixGeneral_Click();
    void CmdCadreLayers_Click();
};

} // namespace brimo
