#pragma once
// The controls of CGeneralForm at their design state: one table, tab by tab
// and then the buttons below the tabs, walked by one builder; and the tab
// order over all of them.

#include <QAnyStringView>
#include <QHash>
#include <QList>
#include <QString>
#include <QWidget>

class QTabWidget;
class QWidget;

namespace brimo {

class LegendTable;
struct RefusalGuard;

enum class ControlKind {
    Frame,    // a group box
    Label,
    RuleText, // a text field with a leaving rule (FieldRules)
    PathText, // a program location: a free text field
    Option,   // an option button; the buttons of one frame form a group
    Check,    // a check box with three states
    Button,
    Shape,    // a plain rectangle
};

// The option buttons selected by design are those of kGeneralChoices.
enum class DesignState { Plain, Disabled };

// The tab of the buttons below the tabs, which stand on the form itself.
inline constexpr int kOnForm = -1;

struct ControlRow {
    int tab;             // the tab that holds it, or kOnForm
    const char* name;
    ControlKind kind;
    const char* parent;  // a frame of the same tab; "" for the tab (or the form)
    const char* caption; // caption or text at design time, UTF-8
    int left, top, width, height; // twips inside the parent
    DesignState state;
};

// The tabs of SSTab1 and the controls built so far. The buttons below the
// tabs are built with the form; the controls of a tab when the form first
// needs them (its first look, or the rest built once the window is painted),
// which keeps them out of the start.
class GeneralControls {
public:
    GeneralControls() = default;
    // SSTab1 with its empty tabs and the buttons below them, on `form`. The
    // fields with a rule refuse their texts in `legends`, one at a time
    // under `guard`.
    GeneralControls(QWidget* form, const LegendTable& legends, RefusalGuard& guard);

    QTabWidget* tabs = nullptr;      // SSTab1
    QHash<QString, QWidget*> byName; // every control built, SSTab1 too

    bool isBuilt(int tab) const { return built_.value(tab); }
    // Builds the controls of `tab` at their design state (shown at once on a
    // page that shows) and sets the tab order over every control built.
    // Returns the controls it built, none for a tab already built.
    QList<QWidget*> buildTab(int tab);

    // The control of that name as the kind the caller needs. A name that the
    // tables lack, one not built yet or a control of another kind stops the
    // program with the name, so that a misspelt name fails the first time
    // the form opens.
    template <class Control> Control* require(QAnyStringView name) const {
        auto* control = qobject_cast<Control*>(byName.value(name.toString()));
        if (!control) qFatal("CGeneralForm has no %s %s", Control::staticMetaObject.className(), qPrintable(name.toString()));
        return control;
    }

private:
    void orderTabs();

    const LegendTable* legends_ = nullptr;
    RefusalGuard* guard_ = nullptr;
    QList<bool> built_;
};

// The tab of a control of the tables (kOnForm for the buttons below the
// tabs); a name that the tables lack stops the program with the name.
int TabOfControl(QAnyStringView name);

// Sets a control's caption: a frame's title, a label's or a button's text.
void SetCaption(QWidget* control, const QString& caption);

} // namespace brimo
