#include "dialogs/slope/CParamRechTalus.h"

#include "dialogs/slope/SketchLayer.h"
#include "dialogs/slope/SlopeControls.h"
#include "forms/AccessibleNames.h"
#include "forms/CommitFailureReport.h"
#include "forms/DesignFont.h"
#include "forms/RuleField.h"
#include "forms/WindowServices.h"
#include "model/OfficeStandard.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleFactory>

#include <algorithm>
#include <utility>

namespace brimo {

namespace {

// The events the dialog answers, by control.
struct EventBinding {
    const char* control;
    void (CParamRechTalus::*handler)();
};
constexpr EventBinding kEvents[] = {
    {"Check1", &CParamRechTalus::Check1_Click},
    {"Check2", &CParamRechTalus::Check2_Click},
    {"Command1", &CParamRechTalus::Command1_Click},
    {"CmdCancel", &CParamRechTalus::CmdCancel_Click},
    {"cmdAbout", &CParamRechTalus::cmdAbout_Click},
};

// The two check boxes show no caption: the line and the crosses beside them
// say what they choose. The two legs of the slope share their frame's title.
constexpr std::pair<const char*, const char*> kSpokenCaptions[] = {{"Check1", "Polyligne"}, {"Check2", "Points"}};
constexpr std::pair<const char*, const char*> kNameQualifiers[] = {{"Text1", "horizontale"}, {"Text2", "verticale"}};

constexpr const char* kTextFields[] = {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6"};

// The captions were sized for a narrow 8-point face (the longest label holds
// 42 characters in 188 pixels at 96 DPI); a wider face would cut them.
bool takesFocus(SlopeControlKind kind) {
    return kind != SlopeControlKind::Frame && kind != SlopeControlKind::Label;
}

} // namespace

CParamRechTalus::CParamRechTalus(Navigator& navigator, const InstallInfo& info, const LegendTable& legends)
    : navigator_(navigator), info_(info), legends_(legends) {
    setObjectName(QStringLiteral("CParamRechTalus"));
    setWindowTitle(QStringLiteral("Paramètre de recherche pied de talus"));
    useFixedBorder();
    setFont(DesignFont());
    // A frame's caption sits on its top border, as the controls inside were
    // placed to clear it; the classic style draws frames so.
    // Without that style (a stripped Qt) frames keep the application's.
    frameStyle_ = QStyleFactory::create(QStringLiteral("Windows"));
    if (frameStyle_) frameStyle_->setParent(this);
    setFixedSize(TwipsSize(kSlopeFormWidth, kSlopeFormHeight));

    // Parents come before their children in the table.
    for (const SlopeControl& entry : SlopeControls()) {
        QWidget* parent = entry.parent ? control<QWidget>(entry.parent) : this;
        QWidget* widget = createControl(entry, parent);
        widget->setObjectName(QString::fromLatin1(entry.name));
        PlaceInTwips(widget, entry.left, entry.top, entry.width, entry.height);
    }
    for (const auto& [name, caption] : kSpokenCaptions) SetSpokenCaption(control<QWidget>(name), QString::fromUtf8(caption));
    for (const auto& [name, qualifier] : kNameQualifiers) SetNameQualifier(control<QWidget>(name), QString::fromUtf8(qualifier));
    drawSketches();
    bindEvents();
    chainTabStops();
    control<QWidget>("Check1")->setFocus();
}

QWidget* CParamRechTalus::createControl(const SlopeControl& entry, QWidget* parent) {
    const QString caption = QString::fromUtf8(entry.caption);
    switch (entry.kind) {
    case SlopeControlKind::Frame: {
        auto* frame = new QGroupBox(caption, parent);
        frame->setStyle(frameStyle_);
        return frame;
    }
    case SlopeControlKind::Label: {
        auto* label = new QLabel(caption, parent);
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        return label;
    }
    case SlopeControlKind::CheckBox: {
        auto* box = new QCheckBox(caption, parent);
        box->setChecked(entry.setAtOpening);
        return box;
    }
    case SlopeControlKind::OptionButton: {
        auto* option = new QRadioButton(caption, parent);
        option->setChecked(entry.setAtOpening);
        return option;
    }
    case SlopeControlKind::TextField: {
        auto* field = new RuleField(*FindFieldRule(SlopeFieldRules(), QString::fromLatin1(entry.name)), legends_, refusalGuard_, parent);
        field->setText(caption);
        field->setAlignment(Qt::AlignCenter);
        return field;
    }
    case SlopeControlKind::Button: break;
    }
    // No button is a default one: Enter inside a field must not commit.
    auto* button = new QPushButton(caption, parent);
    button->setAutoDefault(false);
    button->setDefault(false);
    return button;
}

void CParamRechTalus::drawSketches() {
    for (const FrameSketch& sketch : SlopeDiagram()) new SketchLayer(sketch, control<QWidget>(sketch.frame));
}

// Tab order is the table's TabIndex; frames and labels never hold the focus.
void CParamRechTalus::chainTabStops() {
    std::vector<std::pair<int, QWidget*>> stops;
    for (const SlopeControl& entry : SlopeControls())
        if (takesFocus(entry.kind)) stops.emplace_back(entry.tabIndex, control<QWidget>(entry.name));
    chainTabOrder(std::move(stops));
}

// A check box's click follows every change of its state, by the user or by
// an assignment.
void CParamRechTalus::bindEvents() {
    for (const EventBinding& binding : kEvents) {
        const auto handler = binding.handler;
        if (auto* box = control<QCheckBox>(binding.control))
            connect(box, &QCheckBox::stateChanged, this, [this, handler] { (this->*handler)(); });
        else
            connect(control<QPushButton>(binding.control), &QPushButton::clicked, this, [this, handler] { (this->*handler)(); });
    }
}

void CParamRechTalus::Form_Load() {
    showOfficeStandard();
    CentreOnScreen(this);
}

// The office's values in place of the form's own, and the keys it locks
// greyed, saying why. Without a standard the form stays as designed.
void CParamRechTalus::showOfficeStandard() {
    if (!info_.standard || info_.standard->edits(SettingSection::Slope, true).isEmpty()) return;
    const SlopeControlState state = SlopeOpeningWith(info_.standard.get());
    control<QCheckBox>("Check1")->setChecked(state.check1Ticked);
    control<QCheckBox>("Check2")->setChecked(state.check2Ticked);
    control<QRadioButton>(state.option2Chosen ? "Option2" : "Option1")->setChecked(true);
    for (std::size_t i = 0; i < state.texts.size(); ++i) control<RuleField>(kTextFields[i])->setText(state.texts[i]);
    const QString why = LockedByStandardText(*info_.standard);
    for (const Edit& locked : info_.standard->edits(SettingSection::Slope))
        for (const QString& name : SlopeKeyControls(locked.key->key)) ShowAsFixed(control<QWidget>(name.toLatin1().constData()), why);
}

void CParamRechTalus::Check1_Click() { untickOtherWhenTicked("Check1", "Check2"); }
void CParamRechTalus::Check2_Click() { untickOtherWhenTicked("Check2", "Check1"); }

void CParamRechTalus::untickOtherWhenTicked(const char* own, const char* other) {
    if (control<QCheckBox>(own)->isChecked()) control<QCheckBox>(other)->setChecked(false);
}

SlopeControlState CParamRechTalus::ControlState() const {
    SlopeControlState state;
    state.check1Ticked = control<QCheckBox>("Check1")->checkState() == Qt::Checked;
    state.check2Ticked = control<QCheckBox>("Check2")->checkState() == Qt::Checked;
    state.option2Chosen = control<QRadioButton>("Option2")->isChecked();
    for (std::size_t i = 0; i < state.texts.size(); ++i) state.texts[i] = control<RuleField>(kTextFields[i])->text();
    return state;
}

void CParamRechTalus::Command1_Click() {
    const CommitOutcome outcome = CommitSlopeVariables(info_, ControlState());
    if (!outcome.ok) {
        ReportCommitFailure(*this, navigator_, outcome);
        return;
    }
    navigator_.End(0);
}

void CParamRechTalus::CmdCancel_Click() { navigator_.End(0); }

void CParamRechTalus::cmdAbout_Click() { navigator_.Show(FormKind::About); }

template <class Control> Control* CParamRechTalus::control(const char* name) const {
    return findChild<Control*>(QLatin1String(name));
}

} // namespace brimo
