#pragma once
// A scratch prefix with zorel.ini, legend files and Brimo.ini, the stores
// loaded as the program's entry loads them, and CGeneralForm opened on them.
// Ends, message boxes and legend questions are recorded, not acted on.

#include "dialogs/general/CGeneralForm.h"
#include "forms/WindowServices.h"
#include "support/FormServices.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

#include <QMap>

#include <memory>

namespace brimo::test {

class GeneralFormTest : public ::testing::Test {
public:
    void SetUp() override;
    void TearDown() override;

    // A legend file of 174 lines, line n reading "<code> <n>" unless `texts` holds it.
    void writeLegends(const QString& code, const QMap<int, QString>& texts = {});
    void removeLegends(const QString& code);
    static QString legend(const QString& code, int n) { return code + QLatin1Char(' ') + QString::number(n); }

    void writeBrimoIni(const QByteArray& bytes) { prefix.write(kIniPath, bytes); }
    QByteArray lisp() const { return prefix.read(kLispPath); }
    QByteArray ini() const { return prefix.read(kIniPath); }

    // Loads the three stores in the order of the program's entry, then opens the form.
    CGeneralForm* open();
    // Opens the form anew on the stores as they are, as the chooser does.
    CGeneralForm* reopen();
    template <class Widget = QWidget> Widget* find(const QString& name) const {
        Widget* widget = form->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return widget;
    }
    // Every caption that a legend gives (title, tabs, tab captions, the three
    // buttons named at load) against the form's snapshot, read in the
    // language `code` ("" for empty legends) and `loadButtons` for the three.
    void expectLegendCaptions(const QString& code, const QString& loadButtons);
    // Selects a language option with the mouse, as a user does.
    void clickOption(const char* name);

    static inline const QString kLispPath = QStringLiteral("C:\\Zorel\\Var\\jo\\Brimo_Gene.lsp");
    static inline const QString kIniPath = QStringLiteral("C:\\Zorel\\Var\\jo\\Brimo.ini");

    ScratchPrefix prefix;
    std::unique_ptr<FormServices> services;
    CGeneralForm* form = nullptr;
    QList<int>& ends() const { return services->ends; }
    QList<MessageBoxCall> messages; // message boxes shown
    int legendQuestions() const { return services->legendQuestions; }
};

} // namespace brimo::test
