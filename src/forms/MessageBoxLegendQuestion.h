#pragma once
// Window kit (src/forms): what every form uses and nothing that knows a
// particular form; it sees the model and the platform.
//
// The question of a failed legend load as a real message box (flags 20);
// Yes ends the process through the navigator.

#include "forms/Navigator.h"
#include "forms/WindowServices.h"
#include "model/LegendTable.h"

namespace brimo {

class MessageBoxLegendQuestion : public LegendFailureQuestion {
public:
    explicit MessageBoxLegendQuestion(Navigator& navigator) : navigator_(navigator) {}
    bool ask(const QString& text, const QString& title) override;
    void endProgram() override { navigator_.End(0); }

private:
    Navigator& navigator_;
    MessageBoxes boxes_;
};

} // namespace brimo
