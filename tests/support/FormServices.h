#pragma once
// What the program hands its forms, made in a test without the program: the
// installation settings, the general variables and the legends loaded as the
// entry loads them, a navigator that records the forms shown and the ends,
// and a legend question that answers No and counts.

#include "forms/Navigator.h"
#include "model/GeneralVariables.h"
#include "model/InstallInfo.h"
#include "model/LegendTable.h"
#include "model/OfficeStandard.h"
#include "model/UserLegends.h"

#include <gtest/gtest.h>

#include <QList>
#include <QPointer>
#include <QTest>
#include <QWidget>

namespace brimo::test {

class FormServices : public Navigator, public LegendFailureQuestion {
public:
    ~FormServices() override {
        for (const QPointer<QWidget>& form : forms_) delete form.data();
    }

    InstallInfo info{.prefix = WinePrefix::FromEnvironment()}; // the scratch prefix of the test
    GeneralVariables variables;
    LegendTable legends;
    QList<FormKind> shown; // forms asked for, in order
    QList<int> ends;       // statuses of explicit ends
    int legendQuestions = 0;

    void Show(FormKind form) override { shown.append(form); }
    void End(int status) override { ends.append(status); }
    bool ask(const QString&, const QString&) override {
        ++legendQuestions;
        return false;
    }
    void endProgram() override {}

    // The loads in the order of the program's entry.
    void load() {
        LoadInstallInfo(WinePrefix::FromEnvironment(), info);
        info.standard = LoadOfficeStandard().standard;
        LoadGeneralVariables(info, variables);
        loadLegends();
    }
    int loadLegends() { return LoadUserLegends(legends, info, variables, *this); }

    // Shows a form as the program does: its load step, then its window, and
    // what the form leaves until its window has been painted.
    template <class Form> Form* show(Form* form) {
        forms_.append(form);
        form->Form_Load();
        form->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(form));
        QCoreApplication::processEvents();
        return form;
    }

private:
    QList<QPointer<QWidget>> forms_;
};

} // namespace brimo::test
