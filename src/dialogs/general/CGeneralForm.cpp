#include "dialogs/general/CGeneralForm.h"

#include "dialogs/general/GeneralIcon.h"
#include "model/GeneralLoad.h"
#include "dialogs/general/ProgramLocations.h"
#include "forms/AccessibleNames.h"
#include "forms/CommitFailureReport.h"
#include "forms/DesignFont.h"
#include "forms/WindowServices.h"
#include "model/LegendNumbers.h"
#include "model/OfficeStandard.h"
#include "model/ProgramLanguage.h"
#include "model/UserLegends.h"
#include "platform/WindowsPaths.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

#include <optional>

namespace brimo {

namespace {

// Check box values as the settings store them: 0 empty, 1 ticked, 2 grey.
int checkValue(Qt::CheckState state) {
    switch (state) {
    case Qt::Unchecked: return 0;
    case Qt::Checked: return 1;
    case Qt::PartiallyChecked: return 2;
    }
    return 0;
}

Qt::CheckState checkStateOf(int value) {
    return value == 0 ? Qt::Unchecked : value == 1 ? Qt::Checked : Qt::PartiallyChecked;
}

// The option button of language n: Option5(n).
QString languageButton(int index) { return QStringLiteral("Option5(%1)").arg(index); }

// The language option selected in `state`: n of Option5(n).
std::optional<int> selectedLanguage(const GeneralControlState& state) {
    for (int index = 0; index < static_cast<int>(kLanguageOptionCount); ++index)
        if (state.selectedOptions.contains(languageButton(index))) return index;
    return std::nullopt;
}

} // namespace

CGeneralForm::CGeneralForm(Navigator& navigator, const InstallInfo& info, GeneralVariables& variables,
                           const GeneralVariables& stored, LegendTable& legends, LegendFailureQuestion& legendQuestion)
    : navigator_(navigator), info_(info), variables_(variables), stored_(stored), legends_(legends),
      legendQuestion_(legendQuestion), shown_(DesignControlState()) {
    setObjectName(QStringLiteral("CGeneralForm"));
    setWindowTitle(QStringLiteral("Général"));
    useFixedBorder();
    setFixedSize(TwipsSize(7470, 4455));
    // The classic dialog font, so that six tabs fit in one row.
    setFont(DesignFont());
    controls_ = GeneralControls(this, legends_, refusalGuard_);
    cmdOK_ = controls_.require<QPushButton>(u"cmdOK");
    CmdCancel_ = controls_.require<QPushButton>(u"CmdCancel");
    Command7_ = controls_.require<QPushButton>(u"Command7");
    cmdAbout_ = controls_.require<QPushButton>(u"cmdAbout");
    // Every control that the form fills, reads or words is one of the
    // tables; those of a tab are resolved when the tab is built.
    for (const GeneralChoice& choice : kGeneralChoices) TabOfControl(QLatin1String(choice.button));
    for (const GeneralVariableRow& row : kGeneralVariableCatalogue)
        if (ReadOf(row.type) != ControlRead::Options) TabOfControl(QLatin1String(row.field));
    for (const ProgramLocation& location : kProgramLocations) TabOfControl(QLatin1String(location.button));
    for (const CaptionRow& row : LoadButtonCaptions()) TabOfControl(QLatin1String(row.control));
    for (int tab = 0; tab < controls_.tabs->count(); ++tab)
        for (const CaptionRow& row : TabCaptionTable(tab)) TabOfControl(QLatin1String(row.control));

    // The focus starts on the control of tab index 0.
    cmdOK_->setFocus();

    connect(controls_.tabs, &QTabWidget::currentChanged, this, [this] { SSTab1_Click(); });
    connect(cmdOK_, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(CmdCancel_, &QPushButton::clicked, this, [this] { CmdCancel_Click(); });
    connect(Command7_, &QPushButton::clicked, this, [this] { Command7_Click(); });
    connect(cmdAbout_, &QPushButton::clicked, this, [this] { cmdAbout_Click(); });
}

// The controls of a tab, made as the tab was designed, then given what the
// form set on them while they were not built: captions, values, locks.
void CGeneralForm::buildTab(int tab) {
    const QList<QWidget*> made = controls_.buildTab(tab);
    if (made.isEmpty()) return;
    const auto onTab = [tab](const char* name) { return TabOfControl(QLatin1String(name)) == tab; };
    for (const GeneralVariableRow& row : kGeneralVariableCatalogue) {
        const QString field = QLatin1String(row.field);
        if (ReadOf(row.type) == ControlRead::Text && onTab(row.field)) fields_.insert(field, controls_.require<QLineEdit>(field));
        if (ReadOf(row.type) == ControlRead::State && onTab(row.field)) checkBoxes_.insert(field, controls_.require<QCheckBox>(field));
    }
    for (const GeneralChoice& choice : kGeneralChoices)
        if (onTab(choice.button)) options_.insert(QLatin1String(choice.button), controls_.require<QRadioButton>(QLatin1String(choice.button)));
    for (int index = 0; index < static_cast<int>(kLanguageOptionCount); ++index) {
        const QString name = languageButton(index);
        if (TabOfControl(name) != tab) continue;
        connect(controls_.require<QRadioButton>(name), &QRadioButton::toggled, this, [this, index](bool selected) {
            if (selected && !showingState_) Option5_Click(index);
        });
    }
    for (const ProgramLocation& location : kProgramLocations) {
        if (!onTab(location.button)) continue;
        connect(controls_.require<QPushButton>(QLatin1String(location.button)), &QPushButton::clicked, this,
                [this, &location] { ProgramLocation_Click(location); });
    }
    for (QWidget* control : made)
        if (const auto caption = captions_.constFind(control->objectName()); caption != captions_.cend())
            SetCaption(control, *caption);
    putState(shown_, tab);
    showLockedKeys();
    takeInNewControls();
}

void CGeneralForm::Form_Load() {
    setCaptions(LoadButtonCaptions());
    setWindowTitle(legends_.GetLegends(Legend::GeneralTitle));
    sweepTabs(LoadTabSweep());
    controls_.tabs->setCurrentIndex(0);
    // Selecting a language other than the design's raises Option5_Click here.
    showControlState(LoadedControlState(variables_));
    showLockedKeys();
    CentreOnScreen(this);
    // What OK compares with, to keep what another program writes meanwhile
    // in the controls that the user leaves alone.
    loadedFrom_ = stored_;
    loaded_ = controlState();
}

// A tab is built when it shows: at the first showing, the tab in front.
void CGeneralForm::showEvent(QShowEvent* event) {
    buildTab(controls_.tabs->currentIndex());
    BrimoForm::showEvent(event);
}

// The tabs not looked at yet, and the window's icon, are made once the
// window has been painted: the start does not wait for them, and they are
// there before a user can reach them.
void CGeneralForm::paintEvent(QPaintEvent* event) {
    BrimoForm::paintEvent(event);
    if (restBuilding_) return;
    restBuilding_ = true;
    QTimer::singleShot(0, this, [this] {
        for (int tab = 0; tab < controls_.tabs->count(); ++tab) buildTab(tab);
        NameControls(this);
        setWindowIcon(GeneralWindowIcon());
    });
}

// A key that the office standard locks: its field (and a location's button),
// check box or every button of its group greyed, saying why.
void CGeneralForm::showLockedKeys() {
    if (!info_.standard) return;
    const QString why = LockedByStandardText(*info_.standard);
    for (const Edit& locked : info_.standard->edits(SettingSection::General)) {
        const QString& control = locked.key->control;
        QList<QWidget*> fixed;
        if (locked.key->kind != KeyKind::Choice) fixed << controls_.byName.value(control);
        // A program's location comes from its field or from its button's file dialog.
        for (const ProgramLocation& location : kProgramLocations)
            if (control == QLatin1String(location.field)) fixed << controls_.byName.value(QLatin1String(location.button));
        for (QWidget* built : fixed)
            if (built) ShowAsFixed(built, why);
        if (locked.key->kind == KeyKind::Choice)
            for (auto button = options_.cbegin(); button != options_.cend(); ++button)
                if (OptionGroupOf(button.key()) == control) ShowAsFixed(button.value(), why);
    }
}

void CGeneralForm::SSTab1_Click() {
    if (isVisible() && !sweeping_) buildTab(controls_.tabs->currentIndex());
    setCaptions(TabCaptionTable(controls_.tabs->currentIndex()));
}

void CGeneralForm::Option5_Click(int index) {
    const QString button = languageButton(index);
    for (const GeneralChoice& choice : kGeneralChoices)
        if (button == QLatin1String(choice.button)) variables_.setText(u"x_lang", QLatin1String(choice.value));
    SetProgramLanguage(variables_.text(u"x_lang"));
    LoadUserLegends(legends_, info_, variables_, legendQuestion_);
    setWindowTitle(legends_.GetLegends(Legend::GeneralTitle));

    // While the tabs pass by the focus waits on the tab bar: left on a page,
    // it would wander through the fields of each tab and run their rules.
    QPointer<QWidget> focused = QApplication::focusWidget();
    const bool onPage = focused && controls_.tabs->isAncestorOf(focused) && focused != controls_.tabs->tabBar();
    if (onPage) controls_.tabs->tabBar()->setFocus(Qt::OtherFocusReason);
    sweepTabs(LanguageTabSweep());
    if (onPage && focused && focused->isVisible()) focused->setFocus(Qt::OtherFocusReason);
}

void CGeneralForm::cmdOK_Click() {
    const GeneralCommitOutcome outcome = CommitGeneral(info_, {loadedFrom_, loaded_, controlState()});
    // The dialog stays open: what the merge took from the file is shown, so
    // that a refusal points at what the user sees.
    if (!outcome.ok && outcome.merged) {
        showControlState(outcome.merged->edited);
        loadedFrom_ = outcome.merged->loadedFrom;
        loaded_ = outcome.merged->loaded;
    }
    if (outcome.unwritable) {
        refuseUnwritableQuote(*outcome.unwritable);
        return;
    }
    if (!outcome.ok) {
        ReportCommitFailure(*this, navigator_, outcome);
        return;
    }
    navigator_.End(0);
}

void CGeneralForm::CmdCancel_Click() { navigator_.End(0); }

void CGeneralForm::Command7_Click() {
    navigator_.Show(FormKind::Chooser);
    close();
}

void CGeneralForm::cmdAbout_Click() { navigator_.Show(FormKind::About); }

void CGeneralForm::ProgramLocation_Click(const ProgramLocation& location) {
    QLineEdit* field = fields_.value(QLatin1String(location.field));
    QFileDialog dialog(this, legends_.GetLegends(location.titleLegend), QString(),
                       ToolkitFileFilter(legends_.GetLegends(kProgramFilterLegend)));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    // Any name comes back, also one of a file that does not exist.
    dialog.setFileMode(QFileDialog::AnyFile);
    if (!field->text().isEmpty()) dialog.selectFile(ToNativePath(info_.prefix, field->text()));
    if (dialog.exec() != QDialog::Accepted) return;
    const QStringList chosen = dialog.selectedFiles();
    if (chosen.isEmpty() || chosen.first().isEmpty()) return;
    field->setText(FieldTextForChosenFile(info_.prefix, chosen.first()));
    field->setCursorPosition(0);
}

// The names for screen readers follow the captions: once the window is on
// the screen (its first showing names every control), and once a sweep of
// the tabs is over.
void CGeneralForm::setCaptions(std::span<const CaptionRow> rows) {
    for (const CaptionRow& row : rows) {
        const QString control = QLatin1String(row.control);
        captions_.insert(control, legends_.GetLegends(row.legend));
        if (QWidget* built = controls_.byName.value(control)) SetCaption(built, captions_.value(control));
    }
    if (isVisible() && !sweeping_) NameControls(this);
}

void CGeneralForm::sweepTabs(std::span<const SweepStep> steps) {
    sweeping_ = true;
    for (const SweepStep& step : steps) {
        controls_.tabs->setCurrentIndex(step.tab);
        controls_.tabs->setTabText(controls_.tabs->currentIndex(), legends_.GetLegends(step.legend));
    }
    sweeping_ = false;
    if (!isVisible()) return;
    buildTab(controls_.tabs->currentIndex());
    NameControls(this);
}

// The controls as they stand; one not built yet holds what the form last
// showed in it.
GeneralControlState CGeneralForm::controlState() const {
    GeneralControlState state = shown_;
    for (const GeneralVariableRow& row : kGeneralVariableCatalogue) {
        const QString name = QLatin1String(row.field);
        switch (ReadOf(row.type)) {
        case ControlRead::Text:
            if (const QLineEdit* field = fields_.value(name)) state.texts.insert(name, field->text());
            break;
        case ControlRead::State:
            if (const QCheckBox* box = checkBoxes_.value(name)) state.checkStates.insert(name, checkValue(box->checkState()));
            break;
        case ControlRead::Options:
            for (const GeneralChoice& choice : kGeneralChoices) {
                const QRadioButton* button = options_.value(QLatin1String(choice.button));
                if (!SameName(choice.key, row.key) || !button) continue;
                if (button->isChecked()) state.selectedOptions.insert(QLatin1String(choice.button));
                else state.selectedOptions.remove(QLatin1String(choice.button));
            }
            break;
        }
    }
    return state;
}

// A change of the language's button raises Option5_Click, as a click does.
void CGeneralForm::showControlState(const GeneralControlState& state) {
    const std::optional<int> languageBefore = selectedLanguage(controlState());
    shown_ = state;
    putState(state, std::nullopt);
    const std::optional<int> language = selectedLanguage(state);
    if (language && language != languageBefore) Option5_Click(*language);
}

// Puts `state` into the controls built (of `tab` alone, when given).
void CGeneralForm::putState(const GeneralControlState& state, std::optional<int> tab) {
    const auto wanted = [tab](const QString& control) { return !tab || TabOfControl(control) == *tab; };
    showingState_ = true;
    for (const GeneralVariableRow& row : kGeneralVariableCatalogue) {
        const QString name = QLatin1String(row.field);
        switch (ReadOf(row.type)) {
        case ControlRead::Text:
            if (QLineEdit* field = fields_.value(name); field && wanted(name)) {
                const bool changes = field->text() != state.texts.value(name);
                if (changes) field->setText(state.texts.value(name));
                if (changes || tab) field->setCursorPosition(0); // a long text shows its beginning
            }
            break;
        case ControlRead::State:
            if (QCheckBox* box = checkBoxes_.value(name); box && wanted(name))
                box->setCheckState(checkStateOf(state.checkStates.value(name)));
            break;
        case ControlRead::Options:
            for (const GeneralChoice& choice : kGeneralChoices) {
                const QString buttonName = QLatin1String(choice.button);
                QRadioButton* button = options_.value(buttonName);
                const bool selected = state.selectedOptions.contains(buttonName);
                if (!SameName(choice.key, row.key) || !button || !wanted(buttonName) || button->isChecked() == selected) continue;
                // A group may end with no button selected, as a stored value
                // outside its choices loads it.
                button->setAutoExclusive(selected);
                button->setChecked(selected);
                button->setAutoExclusive(true);
            }
            break;
        }
    }
    showingState_ = false;
}

// Nothing is written: the field is shown with its edits, ready to be put right.
void CGeneralForm::refuseUnwritableQuote(const UnwritableField& field) {
    buildTab(TabOfControl(field.control));
    QLineEdit* text = fields_.value(field.control);
    // The field is named as a screen reader names it: by its caption on screen.
    NameControls(this);
    messageBoxes().ShowInformationBox(UnwritableQuoteMessage(text->accessibleName()), QStringLiteral("Brimo"));
    showTabOf(text);
    text->setFocus(Qt::OtherFocusReason);
}

void CGeneralForm::showTabOf(QWidget* widget) {
    for (int tab = 0; tab < controls_.tabs->count(); ++tab)
        if (controls_.tabs->widget(tab)->isAncestorOf(widget)) controls_.tabs->setCurrentIndex(tab);
}

} // namespace brimo
