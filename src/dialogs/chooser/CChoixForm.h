#pragma once
// Dialog layer (src/dialogs/chooser): one form, handed what it uses; it sees
// the window kit and the layers below it, and no other dialog.
//
// The module chooser: a small fixed window whose buttons open the other
// dialogs. Its captions and the dialogs they open cross over: "Général"
// opens CVarGlobale, "Cadre et Layers" opens CGeneralForm.

#include "forms/BrimoForm.h"
#include "forms/Navigator.h"

namespace brimo {

class CChoixForm : public BrimoForm {
    Q_OBJECT
public:
    explicit CChoixForm(Navigator& navigator);

    void CmdChoixPiedTalus_Click();
    void CmdChoixAbout_Click();
    void CmdChoixQuitter_Click();
    void CmdChoixGeneral_Click();
    void CmdCadreLayers_Click();

private:
    Navigator& navigator_;
};

} // namespace brimo
