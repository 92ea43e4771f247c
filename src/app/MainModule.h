#pragma once
// The program's shell, on top of every other layer: the process's state
// (installation settings, general variables, legends), one slot per form
// class, and the navigator through which the forms reach each other. Every
// form is shown modeless and without owner. Nothing includes this layer.

#include "forms/Navigator.h"
#include "model/GeneralVariables.h"
#include "model/InstallInfo.h"
#include "model/LegendTable.h"

#include <QPointer>

#include <functional>
#include <memory>

namespace brimo {

class CChoixForm;
class CGeneralForm;
class CParamRechTalus;
class CAboutForm;
class CVarGlobale;

class MainModule : public Navigator {
public:
    MainModule();
    ~MainModule() override;

    InstallInfo installInfo;
    GeneralVariables generalVariables;
    // As Brimo.ini held them at the start, whatever the language switch
    // changes since: what the general dialog's OK compares the file with.
    GeneralVariables storedGeneralVariables;
    LegendTable legendTable;

    // LoadLegends with the folder Zorel + "\Lang\" and the current x_lang.
    int LoadLegends();

    // Creates the form if its window is closed (running its Form_Load), or
    // brings the open window forward without Form_Load.
    template <class Form> Form* Show();
    // The form's open window, or nullptr.
    template <class Form> Form* Window() const;

    void Show(FormKind form) override;
    void End(int status) override;

    // Who answers the legend question; the message box by default, tests put
    // their own. Tests also catch the explicit end.
    void setLegendQuestion(std::unique_ptr<LegendFailureQuestion> question);
    std::function<void(int)> endProcess;

private:
    template <class Form> QPointer<Form>& slot() const;
    template <class Form> Form* create();
    std::unique_ptr<LegendFailureQuestion> legendQuestion_;
    struct Slots;
    std::unique_ptr<Slots> slots_;
};

// The program's entry: the three loads, the dispatch on the command word.
int Main(int argc, char* argv[]);

} // namespace brimo
