#include "app/MainModule.h"

#include "app/CommandWord.h"
#include "app/StartProblems.h"
#include "dialogs/about/CAboutForm.h"
#include "dialogs/chooser/CChoixForm.h"
#include "dialogs/drawing/CVarGlobale.h"
#include "dialogs/general/CGeneralForm.h"
#include "dialogs/slope/CParamRechTalus.h"
#include "forms/DesignFont.h"
#include "forms/MessageBoxLegendQuestion.h"
#include "model/FailureText.h"
#include "model/ProgramLanguage.h"
#include "model/UserLegends.h"
#include "model/VariableCommit.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

#include <unistd.h>

namespace brimo {

struct MainModule::Slots {
    QPointer<CChoixForm> choix;
    QPointer<CGeneralForm> general;
    QPointer<CParamRechTalus> slope;
    QPointer<CAboutForm> about;
    QPointer<CVarGlobale> drawing;
};

template <> QPointer<CChoixForm>& MainModule::slot<CChoixForm>() const { return slots_->choix; }
template <> QPointer<CGeneralForm>& MainModule::slot<CGeneralForm>() const { return slots_->general; }
template <> QPointer<CParamRechTalus>& MainModule::slot<CParamRechTalus>() const { return slots_->slope; }
template <> QPointer<CAboutForm>& MainModule::slot<CAboutForm>() const { return slots_->about; }
template <> QPointer<CVarGlobale>& MainModule::slot<CVarGlobale>() const { return slots_->drawing; }

// Each form is handed what it uses.
template <> CChoixForm* MainModule::create<CChoixForm>() { return new CChoixForm(*this); }
template <> CGeneralForm* MainModule::create<CGeneralForm>() {
    return new CGeneralForm(*this, installInfo, generalVariables, storedGeneralVariables, legendTable, *legendQuestion_);
}
template <> CParamRechTalus* MainModule::create<CParamRechTalus>() {
    return new CParamRechTalus(*this, installInfo, legendTable);
}
template <> CAboutForm* MainModule::create<CAboutForm>() { return new CAboutForm(installInfo, legendTable); }
template <> CVarGlobale* MainModule::create<CVarGlobale>() { return new CVarGlobale(); }

MainModule::MainModule()
    : legendQuestion_(std::make_unique<MessageBoxLegendQuestion>(*this)), slots_(std::make_unique<Slots>()) {}

MainModule::~MainModule() {
    // Windows still open belong to the module's life.
    delete slots_->choix;
    delete slots_->general;
    delete slots_->slope;
    delete slots_->about;
    delete slots_->drawing;
}

void MainModule::setLegendQuestion(std::unique_ptr<LegendFailureQuestion> question) {
    legendQuestion_ = std::move(question);
}

int MainModule::LoadLegends() { return LoadUserLegends(legendTable, installInfo, generalVariables, *legendQuestion_); }

template <class Form> Form* MainModule::Window() const {
    Form* form = slot<Form>().data();
    return form && form->isVisible() ? form : nullptr;
}

template <class Form> Form* MainModule::Show() {
    QPointer<Form>& form = slot<Form>();
    if (form && form->isVisible()) {
        form->raise();
        form->activateWindow();
        return form.data();
    }
    delete form.data();
    form = create<Form>();
    form->Form_Load();
    form->show();
    return form.data();
}

void MainModule::Show(FormKind form) {
    switch (form) {
    case FormKind::Chooser: Show<CChoixForm>(); break;
    case FormKind::General: Show<CGeneralForm>(); break;
    case FormKind::Slope: Show<CParamRechTalus>(); break;
    case FormKind::About: Show<CAboutForm>(); break;
    case FormKind::Drawing: Show<CVarGlobale>(); break;
    }
}

void MainModule::End(int status) {
    if (endProcess) {
        endProcess(status);
        return;
    }
    std::fflush(nullptr);
    ::_exit(status);
}

#define BRIMO_FORM_SLOT(Form)                  \
    template Form* MainModule::Show<Form>();   \
    template Form* MainModule::Window<Form>() const;
BRIMO_FORM_SLOT(CChoixForm)
BRIMO_FORM_SLOT(CGeneralForm)
BRIMO_FORM_SLOT(CParamRechTalus)
BRIMO_FORM_SLOT(CAboutForm)
BRIMO_FORM_SLOT(CVarGlobale)
#undef BRIMO_FORM_SLOT

int Main(int argc, char* argv[]) {
    // Qt is given the program's name alone: the user's words are ours.
    const QString commandLine = CommandLineOf(argc, argv);
    int qtArgc = 1;
    char* qtArgv[] = {argv[0], nullptr};
    QApplication app(qtArgc, qtArgv);
    // Every window speaks in the design font: one font engine serves them all.
    QApplication::setFont(DesignFont());

    MainModule module;
    // A file that is there but cannot be read is told, and the dialog opens
    // as without it; its commit then refuses that file.
    Failure zorelIni;
    LoadInstallInfo(WinePrefix::FromEnvironment(), module.installInfo, &zorelIni);
    if (zorelIni)
        std::fprintf(stderr, "Brimo2010: %s: %s\n", ZorelIniPath().toLocal8Bit().constData(),
                     FailureText(zorelIni, Wording::English).toLocal8Bit().constData());
    StartProblems problems;
    // Before anything is read from the user's files: the office's values and
    // locks stand in them. Said before the language is set, so in English.
    const LoadedStandard standard = LoadOfficeStandard();
    module.installInfo.standard = standard.standard;
    if (standard.problem) problems.standardIgnored(standard.file, *standard.problem);
    // A commit cut off by a kill is finished or undone before Brimo.ini is read.
    problems.recovered(BrimoIniPath(module.installInfo), RecoverInterruptedCommit(module.installInfo));
    Failure brimoIni;
    LoadGeneralVariables(module.installInfo, module.generalVariables, &brimoIni);
    if (brimoIni) problems.iniUnreadable(BrimoIniPath(module.installInfo), brimoIni);
    module.storedGeneralVariables = module.generalVariables;
    // The program speaks the user's language; without Brimo.ini to say it,
    // the language of the desktop.
    SetProgramLanguage(brimoIni ? LanguageOfEnvironment() : module.generalVariables.text(u"x_lang"));
    module.LoadLegends();

    BrimoForm* first = nullptr;
    switch (DialogForCommandLine(commandLine)) {
    case StartDialog::SlopeSearch: first = module.Show<CParamRechTalus>(); break;
    case StartDialog::General: first = module.Show<CGeneralForm>(); break;
    case StartDialog::About: first = module.Show<CAboutForm>(); break;
    case StartDialog::Chooser: first = module.Show<CChoixForm>(); break;
    }
    // Told once the window stands, so that the box has a window to belong to.
    if (problems.any())
        QTimer::singleShot(0, first, [first, text = problems.text()] {
            first->messageBoxes().ShowInformationBox(text, QStringLiteral("Brimo"));
        });
    return app.exec();
}

} // namespace brimo
