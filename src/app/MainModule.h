#pragma once
// The process's state: installation settings, general variables, legends,
// and one slot per form class. Every form is shown modeless and without owner.

#include "app/InstallInfo.h"
#include "legends/LegendTable.h"
#include "store/GeneralVariables.h"

#include <QPointer>

#include <functional>
#include <memory>

namespace brimo {

class BrimoForm;
class CChoixForm;
class CGeneralForm;
class CParamRechTalus;
class CAboutForm;
class CVarGlobale;

class MainModule {
public:
    MainModule();
    ~MainModule();

    InstallInfo installInfo;
    GeneralVariables generalVariables;
    LegendTable legendTable;

    // LoadLegends with the folder Zorel + "\Lang\" and the current x_lang.
    int LoadLegends();
    QString GetLegends(int number) const { return legendTable.GetLegends(number); }

    // Creates the form if its window is closed (running its Form_Load), or
    // brings the open window forward without Form_Load.
    template <class Form> Form* Show();
    // The form's open window, or nullptr.
    template <class Form> Form* Window() const;

    // An explicit end: stops the process at once with every window.
    void End(int status = 0);

    // Who answers the legend question and ends the process; the window
    // layer by default, tests put their own.
    void setLegendQuestion(std::unique_ptr<LegendFailureQuestion> question);
    std::function<void(int)> endProcess;

private:
    template <class Form> QPointer<Form>& slot() const;
    std::unique_ptr<LegendFailureQuestion> legendQuestion_;
    struct Slots;
    std::unique_ptr<Slots> slots_;
};

// The program's entry: the three loads, the dispatch on the command word.
int Main(int argc, char* argv[]);

} // namespace brimo
