#include "dialogs/general/GeneralLayout.h"

#include "forms/AccessibleNames.h"
#include "forms/RuleField.h"
#include "forms/WindowServices.h"
#include "model/FieldRules.h"
#include "model/GeneralVariableCatalogue.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

#include <array>
#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

namespace brimo {

namespace {

using namespace std::literals;
using K = ControlKind;

constexpr ControlRow frameRow(int tab, const char* name, const char* parent, const char* caption, int l, int t, int w, int h) {
    return {tab, name, K::Frame, parent, caption, l, t, w, h, DesignState::Plain};
}
constexpr ControlRow labelRow(int tab, const char* name, const char* parent, const char* caption, int l, int t, int w, int h) {
    return {tab, name, K::Label, parent, caption, l, t, w, h, DesignState::Plain};
}
constexpr ControlRow fieldRow(int tab, const char* name, const char* parent, const char* text, int l, int t, int w, int h) {
    return {tab, name, K::RuleText, parent, text, l, t, w, h, DesignState::Plain};
}
constexpr ControlRow pathRow(int tab, const char* name, const char* parent, int l, int t, int w, int h) {
    return {tab, name, K::PathText, parent, "", l, t, w, h, DesignState::Plain};
}
constexpr ControlRow optionRow(int tab, const char* name, const char* parent, const char* caption, int l, int t, int w, int h,
                               DesignState state = DesignState::Plain) {
    return {tab, name, K::Option, parent, caption, l, t, w, h, state};
}
constexpr ControlRow checkRow(int tab, const char* name, const char* parent, const char* caption, int l, int t, int w, int h) {
    return {tab, name, K::Check, parent, caption, l, t, w, h, DesignState::Plain};
}
constexpr ControlRow buttonRow(int tab, const char* name, const char* parent, const char* caption, int l, int t, int w, int h) {
    return {tab, name, K::Button, parent, caption, l, t, w, h, DesignState::Plain};
}
constexpr ControlRow shapeRow(int tab, const char* name, const char* parent, int l, int t, int w, int h) {
    return {tab, name, K::Shape, parent, "", l, t, w, h, DesignState::Plain};
}

// Rows of label and field share a line: the label sits 30 twips lower, so
// that its text stands level with the field's.
constexpr int F = 300; // height of a text field
constexpr int L = 240; // height of a label, an option, a check box
constexpr int B = 330; // height of a program button

// Every control of the form in the order in which it is built: the controls
// of each tab in the order of the tabs, then the buttons below the tabs.
constexpr auto kGeneralLayout = std::to_array<ControlRow>({
    // Tab 0, "Début": the frame with its sketch, the default units, the zmult colours.
    frameRow(0, "Frame7", "", "Cadre", 120, 45, 3540, 3240),
    labelRow(0, "Txt2", "Frame7", "Nom du calque", 120, 300, 1440, L),
    fieldRow(0, "Val4", "Frame7", "", 1620, 270, 1800, F),
    labelRow(0, "Txt1", "Frame7", "Dimension [user] en mm.", 120, 690, 3300, L),
    shapeRow(0, "Shape1", "Frame7", 660, 1305, 1455, 615),
    fieldRow(0, "Val1", "Frame7", "", 938, 960, 900, F),
    fieldRow(0, "Val0", "Frame7", "", 2190, 1462, 900, F),
    frameRow(0, "Box2", "Frame7", "Double cadre", 120, 2040, 3300, 1080),
    labelRow(0, "Txt3", "Box2", "Couleur (no)", 120, 300, 1200, L),
    fieldRow(0, "Val2", "Box2", "", 1380, 270, 720, F),
    labelRow(0, "Txt4", "Box2", "Décalage", 120, 675, 1200, L),
    fieldRow(0, "Val3", "Box2", "", 1380, 645, 720, F),
    labelRow(0, "Txt4_1", "Box2", "[mm papier]", 2160, 675, 1080, L),
    frameRow(0, "Frame4", "", "Valeurs par défaut", 3780, 45, 3180, 1755),
    frameRow(0, "Frame5", "Frame4", "Unité dans l'espace objet", 120, 255, 2940, 660),
    optionRow(0, "Option1(0)", "Frame5", "mm", 180, 300, 780, L),
    optionRow(0, "Option1(1)", "Frame5", "cm", 1140, 300, 780, L),
    optionRow(0, "Option1(2)", "Frame5", "m", 2100, 300, 720, L),
    frameRow(0, "Frame6", "Frame4", "Unité dans l'espace papier", 120, 975, 2940, 660),
    optionRow(0, "Option2(0)", "Frame6", "mm", 180, 300, 780, L),
    optionRow(0, "Option2(1)", "Frame6", "cm", 1140, 300, 780, L),
    optionRow(0, "Option2(2)", "Frame6", "m", 2100, 300, 720, L),
    frameRow(0, "Frame9", "", "Couleurs des zmults", 3780, 1905, 3180, 1380),
    labelRow(0, "Label9", "Frame9", "1:10", 120, 330, 510, L),
    fieldRow(0, "Text5", "Frame9", "", 660, 300, 390, F),
    labelRow(0, "Label10", "Frame9", "1:20", 1170, 330, 510, L),
    fieldRow(0, "Text6", "Frame9", "", 1710, 300, 390, F),
    labelRow(0, "Label11", "Frame9", "1:50", 2220, 330, 510, L),
    fieldRow(0, "Text7", "Frame9", "", 2760, 300, 390, F),
    labelRow(0, "Label12", "Frame9", "1:100", 120, 765, 510, L),
    fieldRow(0, "Text8", "Frame9", "", 660, 735, 390, F),
    labelRow(0, "Label13", "Frame9", "1:200", 1170, 765, 510, L),
    fieldRow(0, "Text9", "Frame9", "", 1710, 735, 390, F),
    labelRow(0, "Label14", "Frame9", "1:500", 2220, 765, 510, L),
    fieldRow(0, "Text10", "Frame9", "", 2760, 735, 390, F),
    // Tab 1, "Style": two columns of four styles (label, height, font), then the
    // dimension style.
    frameRow(1, "Box5", "", "Hauteur des styles (mm papier)", 120, 45, 6840, 2265),
    labelRow(1, "Label1", "Box5", "Type de police", 1680, 240, 1560, L),
    labelRow(1, "Label19", "Box5", "Type de police", 5100, 240, 1560, L),
    labelRow(1, "Txt7", "Box5", "GC1", 120, 525, 540, L),
    fieldRow(1, "Val7", "Box5", "", 660, 495, 900, F),
    fieldRow(1, "Text1", "Box5", "ROMANS", 1680, 495, 1560, F),
    labelRow(1, "Txt8", "Box5", "GC2", 120, 870, 540, L),
    fieldRow(1, "Val8", "Box5", "", 660, 840, 900, F),
    fieldRow(1, "Text20", "Box5", "ROMANS", 1680, 840, 1560, F),
    labelRow(1, "Txt9", "Box5", "GC3", 120, 1215, 540, L),
    fieldRow(1, "Val9", "Box5", "", 660, 1185, 900, F),
    fieldRow(1, "Text21", "Box5", "ROMANS", 1680, 1185, 1560, F),
    labelRow(1, "Txt10", "Box5", "GC4", 120, 1560, 540, L),
    fieldRow(1, "Val10", "Box5", "", 660, 1530, 900, F),
    fieldRow(1, "Text22", "Box5", "ROMANS", 1680, 1530, 1560, F),
    labelRow(1, "Txt11", "Box5", "GC5", 3540, 525, 540, L),
    fieldRow(1, "Val11", "Box5", "", 4080, 495, 900, F),
    fieldRow(1, "Text23", "Box5", "ROMANS", 5100, 495, 1560, F),
    labelRow(1, "Txt12", "Box5", "GC7", 3540, 870, 540, L),
    fieldRow(1, "Val12", "Box5", "", 4080, 840, 900, F),
    fieldRow(1, "Text24", "Box5", "ROMANS", 5100, 840, 1560, F),
    labelRow(1, "Txt13", "Box5", "GC10", 3540, 1215, 540, L),
    fieldRow(1, "Val13", "Box5", "", 4080, 1185, 900, F),
    fieldRow(1, "Text25", "Box5", "ROMANS", 5100, 1185, 1560, F),
    labelRow(1, "Txt14", "Box5", "GC15", 3540, 1560, 540, L),
    fieldRow(1, "Val14", "Box5", "", 4080, 1530, 900, F),
    fieldRow(1, "Text26", "Box5", "ROMANS", 5100, 1530, 1560, F),
    checkRow(1, "Check3", "Box5", "Ecrire dans le layer courant", 120, 1935, 6540, L),
    frameRow(1, "Frame2", "", "Cotations (style GC_Cote)", 120, 2415, 6840, 780),
    labelRow(1, "Label7", "Frame2", "Hauteur du texte", 120, 345, 1500, L),
    fieldRow(1, "Text4", "Frame2", "", 1620, 315, 720, F),
    labelRow(1, "Label17", "Frame2", "Couleur", 2520, 345, 780, L),
    fieldRow(1, "Text19", "Frame2", "", 3300, 315, 600, F),
    labelRow(1, "Label2", "Frame2", "Type de police", 4080, 345, 1380, L),
    fieldRow(1, "Text2", "Frame2", "ROMANS", 5460, 315, 1260, F),
    // Tab 2, "Texte": slant and compression; the command after a style is chosen.
    frameRow(2, "Box3", "", "Texte", 120, 45, 3300, 1140),
    labelRow(2, "Txt5", "Box3", "Inclinaison", 120, 330, 1260, L),
    fieldRow(2, "Val5", "Box3", "", 1440, 300, 720, F),
    labelRow(2, "Txt5_1", "Box3", "degrés", 2280, 330, 900, L),
    labelRow(2, "Txt6", "Box3", "Compression", 120, 720, 1260, L),
    fieldRow(2, "Val6", "Box3", "", 1440, 690, 720, F),
    frameRow(2, "Box4", "", "Texte après l'appel du style", 3540, 45, 3420, 1500),
    optionRow(2, "Option4(5)", "Box4", "Texte sur une ligne", 180, 300, 3120, L),
    optionRow(2, "Option4(6)", "Box4", "Texte paragraphe", 180, 585, 3120, L),
    optionRow(2, "Option4(4)", "Box4", "Texte dynamique", 180, 870, 3120, L),
    optionRow(2, "Option4(3)", "Box4", "Aucun", 180, 1155, 3120, L),
    // Tab 3, "Bureau d'ingénieurs": the office, one line each, town beside postcode.
    frameRow(3, "Frame1", "", "Nom du bureau", 120, 45, 6840, 2250),
    labelRow(3, "Etiquette1", "Frame1", "Nom", 120, 330, 1380, L),
    fieldRow(3, "Val15", "Frame1", "Nom du bureau", 1560, 300, 5100, F),
    labelRow(3, "Label3", "Frame1", "Adresse", 120, 705, 1380, L),
    fieldRow(3, "Val16", "Frame1", "Adresse", 1560, 675, 5100, F),
    labelRow(3, "Label4", "Frame1", "Localité", 120, 1080, 1380, L),
    fieldRow(3, "Val17", "Frame1", "N postal", 1560, 1050, 1200, F),
    fieldRow(3, "Val18", "Frame1", "Ville", 2880, 1050, 3780, F),
    labelRow(3, "Label5", "Frame1", "Téléphone", 120, 1455, 1380, L),
    fieldRow(3, "Val19", "Frame1", "No de téléphone", 1560, 1425, 2700, F),
    labelRow(3, "Label8", "Frame1", "Fax", 120, 1830, 1380, L),
    fieldRow(3, "Val20", "Frame1", "No Fax", 1560, 1800, 2700, F),
    // Tab 4, "Divers": the languages (French and German alone can be chosen) and
    // two display switches.
    frameRow(4, "Frame8", "", "Langues", 120, 45, 4200, 1005),
    optionRow(4, "Option5(0)", "Frame8", "Français", 240, 300, 1800, L),
    optionRow(4, "Option5(2)", "Frame8", "Allemand", 2160, 300, 1800, L),
    optionRow(4, "Option5(3)", "Frame8", "Italien", 240, 615, 1800, L, DesignState::Disabled),
    optionRow(4, "Option5(1)", "Frame8", "Anglais", 2160, 615, 1800, L, DesignState::Disabled),
    checkRow(4, "Check1", "", "Affichage des slides lors du chargement des modules Morlak", 120, 1200, 6840,
          L),
    checkRow(4, "Check2", "", "Affichage du profil utilisateur du dessin", 120, 1560, 6840, L),
    // Tab 5, "Programmes": one line per program, Acrobat Reader before the
    // personal program.
    frameRow(5, "Frame10", "", "Emplacement des programmes", 120, 45, 6840, 2625),
    buttonRow(5, "Command1", "Frame10", "Explorer", 120, 270, 1800, B),
    pathRow(5, "Text11", "Frame10", 2040, 285, 4620, F),
    buttonRow(5, "Command2", "Frame10", "Calculatrice", 120, 645, 1800, B),
    pathRow(5, "Text12", "Frame10", 2040, 660, 4620, F),
    buttonRow(5, "Command3", "Frame10", "Editeur WordPad", 120, 1020, 1800, B),
    pathRow(5, "Text13", "Frame10", 2040, 1035, 4620, F),
    buttonRow(5, "Command4", "Frame10", "Bloc-Notes", 120, 1395, 1800, B),
    pathRow(5, "Text14", "Frame10", 2040, 1410, 4620, F),
    buttonRow(5, "Command6", "Frame10", "Acrobat Reader", 120, 1770, 1800, B),
    pathRow(5, "Text18", "Frame10", 2040, 1785, 4620, F),
    buttonRow(5, "Command5", "Frame10", "Personnel", 120, 2145, 1800, B),
    pathRow(5, "Text15", "Frame10", 2040, 2160, 4620, F),
    buttonRow(5, "Command8", "", "variable", 5760, 2805, 1200, 375),
    // Below the tabs, on the form: the four buttons.
    buttonRow(kOnForm, "Command7", "", "Choisir", 117, 3978, 975, 375),
    buttonRow(kOnForm, "cmdAbout", "", "A propos", 1170, 3978, 975, 375),
    buttonRow(kOnForm, "cmdOK", "", "OK", 3978, 3978, 975, 375),
    buttonRow(kOnForm, "CmdCancel", "", "Annuler", 5031, 3978, 975, 375),
});

// The captions of the six tabs of SSTab1 at design time, in the order of
// their numbers, UTF-8.
constexpr auto kTabCaptions =
    std::to_array<const char*>({"Début", "Style", "Texte", "Bureau d'ingénieurs", "Divers", "Programmes"});

// The tab order over all tabs: indexes 0 to 70, then SSTab1 (81) and
// Command8 (117).
constexpr auto kTabOrder = std::to_array<const char*>({
    "cmdOK",                                                                 // 0
    "Val4", "Val1", "Val0", "Val2", "Val3",                                  // 1 to 5
    "Option1(0)", "Option1(1)", "Option1(2)",                                // 6 to 8
    "Option2(0)", "Option2(1)", "Option2(2)",                                // 9 to 11
    "Text5", "Text6", "Text7", "Text8", "Text9", "Text10",                   // 12 to 17
    "Command7", "cmdAbout", "CmdCancel",                                     // 18 to 20
    "Val7", "Text1", "Val8", "Text20", "Val9", "Text21", "Val10", "Text22",  // 21 to 28
    "Val11", "Text23", "Val12", "Text24", "Val13", "Text25", "Val14", "Text26", // 29 to 36
    "Check3", "Text4", "Text19", "Text2",                                    // 37 to 40
    "Val5", "Val6", "Option4(5)", "Option4(6)", "Option4(4)", "Option4(3)",  // 41 to 46
    "Val15", "Val16", "Val17", "Val18", "Val19", "Val20",                    // 47 to 52
    "Option5(0)", "Option5(1)", "Option5(2)", "Option5(3)", "Check1", "Check2", // 53 to 58
    "Command1", "Text11", "Command2", "Text12", "Command3", "Text13",        // 59 to 64
    "Command4", "Text14", "Command6", "Text18", "Command5", "Text15",        // 65 to 70
    "SSTab1",                                                                // 81
    "Command8",                                                              // 117
});
static_assert(kTabOrder.size() == 73);

// The two dimensions of the frame share their label: the sketch tells them
// apart, Val1 standing above it and Val0 beside it.
constexpr std::pair<const char*, const char*> kNameQualifiers[] = {{"Val1", "x"}, {"Val0", "y"}};

// A click moves between empty and ticked; the grey state comes from a stored
// value alone.
class FlagCheckBox : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    void nextCheckState() override { setCheckState(checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked); }
};

QWidget* createControl(const ControlRow& row, QWidget* parent, const LegendTable& legends, RefusalGuard& guard) {
    const QString caption = QString::fromUtf8(row.caption);
    switch (row.kind) {
    case K::Frame: return new QGroupBox(caption, parent);
    case K::Label: {
        auto* text = new QLabel(caption, parent);
        text->setTextFormat(Qt::PlainText);
        return text;
    }
    case K::RuleText: {
        const FieldRule* rule = FindFieldRule(GeneralFieldRules(), QString::fromLatin1(row.name));
        Q_ASSERT(rule);
        auto* text = new RuleField(*rule, legends, guard, parent);
        if (!caption.isEmpty()) text->setText(caption);
        if (rule->kind != RuleKind::TextRule) text->setAlignment(Qt::AlignCenter);
        return text;
    }
    case K::PathText: return new QLineEdit(parent);
    case K::Option: return new QRadioButton(caption, parent);
    case K::Check: {
        auto* box = new FlagCheckBox(caption, parent);
        box->setTristate(true);
        return box;
    }
    case K::Button: return new QPushButton(caption, parent);
    case K::Shape: {
        auto* rectangle = new QFrame(parent);
        rectangle->setFrameStyle(QFrame::Box | QFrame::Plain);
        return rectangle;
    }
    }
    return nullptr;
}

QWidget* buildRow(const ControlRow& row, QWidget* base, QHash<QString, QWidget*>& byName, const LegendTable& legends,
                  RefusalGuard& guard) {
    QWidget* parent = *row.parent ? byName.value(QLatin1String(row.parent)) : base;
    QWidget* control = createControl(row, parent, legends, guard);
    control->setObjectName(QLatin1String(row.name));
    PlaceInTwips(control, row.left, row.top, row.width, row.height);
    for (const GeneralChoice& choice : kGeneralChoices)
        if (choice.designSelected && QLatin1String(choice.button) == control->objectName())
            static_cast<QRadioButton*>(control)->setChecked(true);
    if (row.state == DesignState::Disabled) control->setEnabled(false);
    for (const auto& [name, qualifier] : kNameQualifiers)
        if (control->objectName() == QLatin1String(name)) SetNameQualifier(control, QLatin1String(qualifier));
    // A child made on a page that already shows is not shown with it.
    if (parent->isVisible()) control->show();
    byName.insert(control->objectName(), control);
    return control;
}

} // namespace

GeneralControls::GeneralControls(QWidget* form, const LegendTable& legends, RefusalGuard& guard)
    : legends_(&legends), guard_(&guard), built_(static_cast<qsizetype>(kTabCaptions.size()), false) {
    tabs = new QTabWidget(form);
    tabs->setObjectName(QStringLiteral("SSTab1"));
    tabs->setUsesScrollButtons(false);
    PlaceInTwips(tabs, 117, 117, 7137, 3887);
    byName.insert(QStringLiteral("SSTab1"), tabs);
    for (const char* caption : kTabCaptions) tabs->addTab(new QWidget, QString::fromUtf8(caption));
    for (const ControlRow& row : kGeneralLayout)
        if (row.tab == kOnForm) buildRow(row, form, byName, legends, guard);
    require<QPushButton>(u"cmdOK")->setDefault(true);
    orderTabs();
}

QList<QWidget*> GeneralControls::buildTab(int tab) {
    if (isBuilt(tab)) return {};
    built_[tab] = true;
    QList<QWidget*> made;
    for (const ControlRow& row : kGeneralLayout)
        if (row.tab == tab) made.append(buildRow(row, tabs->widget(tab), byName, *legends_, *guard_));
    orderTabs();
    return made;
}

void GeneralControls::orderTabs() {
    // Each control after the one before it that is built: a control not
    // built is on a tab that does not show, where the focus cannot go. The
    // round starts at SSTab1, the form's first child, which so stays next to
    // the form in the chain.
    const auto first = std::ranges::find_if(kTabOrder, [](const char* name) { return name == "SSTab1"sv; });
    QWidget* previous = nullptr;
    for (std::size_t i = 0; i < kTabOrder.size(); ++i) {
        const char* name = kTabOrder[(static_cast<std::size_t>(first - kTabOrder.begin()) + i) % kTabOrder.size()];
        if (QWidget* control = byName.value(QLatin1String(name))) {
            if (previous) QWidget::setTabOrder(previous, control);
            previous = control;
        }
    }
}

int TabOfControl(QAnyStringView name) {
    // Asked for each control that a tab's building or the form's state
    // touches: a walk of the layout for each would cost more than the rest.
    static const QHash<QString, int> tabOf = [] {
        QHash<QString, int> byName{{QStringLiteral("SSTab1"), kOnForm}};
        for (const ControlRow& row : kGeneralLayout) byName.insert(QLatin1String(row.name), row.tab);
        return byName;
    }();
    const QString control = name.toString();
    const auto found = tabOf.constFind(control);
    if (found == tabOf.cend()) qFatal("CGeneralForm has no control %s", qPrintable(control));
    return *found;
}

void SetCaption(QWidget* control, const QString& caption) {
    if (auto* frame = qobject_cast<QGroupBox*>(control)) frame->setTitle(caption);
    else if (auto* text = qobject_cast<QLabel*>(control)) text->setText(caption);
    else if (auto* clickable = qobject_cast<QAbstractButton*>(control)) clickable->setText(caption);
}

} // namespace brimo
