// Every form as built and loaded, against its snapshot in tests/golden/forms:
// the controls' kinds, places, captions, design states and the Tab order.
// The legends read "FRA n" on line n, so each caption names its legend.

#include "dialogs/about/CAboutForm.h"
#include "dialogs/chooser/CChoixForm.h"
#include "dialogs/drawing/CVarGlobale.h"
#include "dialogs/general/GeneralFormFixture.h"
#include "dialogs/slope/CParamRechTalus.h"
#include "model/ProgramLanguage.h"
#include "support/FormDump.h"
#include "support/Golden.h"

#include <QAccessible>
#include <QFile>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace brimo::test {
namespace {

using namespace Qt::StringLiterals;

struct Form {
    const char* snapshot;
    std::function<QWidget*(FormServices&)> make;
    const char* standard = nullptr; // the office standard in force, under tests/golden
};

QWidget* general(FormServices& s) { return s.show(new CGeneralForm(s, s.info, s.variables, s.variables, s.legends, s)); }
QWidget* slope(FormServices& s) { return s.show(new CParamRechTalus(s, s.info, s.legends)); }

const Form kForms[] = {
    {"chooser.txt", [](FormServices& s) { return s.show(new CChoixForm(s)); }},
    {"general.txt", general},
    {"slope.txt", slope},
    {"about.txt", [](FormServices& s) { return s.show(new CAboutForm(s.info, s.legends)); }},
    {"drawing.txt", [](FormServices& s) { return s.show(new CVarGlobale); }},
    // Office values in the controls; locked ones greyed, saying why.
    {"general-standard.txt", general, "standard/standard.ini"},
    {"slope-standard.txt", slope, "standard/standard.ini"},
};

// The fixture writes French and German legends, whose line n reads "FRA n" and "DEU n".
using FormSnapshot = GeneralFormTest;

// What a screen reader hears of each control that takes the focus, and of
// each tab, in alphabetical order (a row of tabs is heard by its tabs).
QStringList spokenNames(QWidget* form) {
    QStringList names;
    for (QWidget* w : form->findChildren<QWidget*>()) {
        if (w->focusPolicy() == Qt::NoFocus || w->focusProxy()) continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w);
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty()) << w->objectName().toStdString();
        if (face->role() != QAccessible::PageTabList) names << face->text(QAccessible::Name);
        for (int i = 0; i < face->childCount(); ++i)
            if (face->child(i)->role() == QAccessible::PageTab) names << face->child(i)->text(QAccessible::Name);
    }
    names.sort();
    return names;
}

// Every control says a name of its own, in the language of the legends; the
// language switch of the general dialog renames all at once.
TEST_F(FormSnapshot, EveryControlSaysANameOfItsOwnInTheLegendsLanguage) {
    for (const Form& form : kForms) {
        FormServices services;
        services.load();
        QWidget* window = form.make(services);
        const QStringList french = spokenNames(window);
        const auto twice = std::ranges::adjacent_find(french);
        EXPECT_EQ(twice, french.end()) << form.snapshot << ": " << (twice == french.end() ? "" : twice->toStdString());
        auto* german = window->findChild<QRadioButton*>(QStringLiteral("Option5(2)"));
        if (!german) continue;
        window->findChild<QTabWidget*>()->setCurrentIndex(4); // where the languages are
        german->setChecked(true);
        // The buttons below the tabs keep their captions of the load (legends 51 to 53).
        QStringList renamed = french.join(u'|').replace(QRegularExpression(u"FRA (?!5[1-3]\\b)"_s), u"DEU "_s).split(u'|');
        renamed.sort();
        EXPECT_EQ(spokenNames(window), renamed);
    }
}

TEST_F(FormSnapshot, EveryFormAsBuiltAndLoaded) {
    for (const Form& form : kForms) {
        QFile standard(prefix.standardPath());
        standard.remove();
        if (form.standard) ASSERT_TRUE(standard.open(QIODevice::WriteOnly) && standard.write(Golden(form.standard)) > 0 && standard.flush());
        SetProgramLanguage(QStringLiteral("ENG")); // whatever language an earlier test switched to
        FormServices services;
        services.load();
        // The standard's path, which a locked control names, is the scratch folder's.
        ExpectGolden(QStringLiteral("forms/") + QLatin1String(form.snapshot),
                     DumpForm(form.make(services)).replace(QFile::encodeName(prefix.root()), "T"));
    }
}

} // namespace
} // namespace brimo::test
