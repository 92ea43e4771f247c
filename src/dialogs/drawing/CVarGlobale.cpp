#include "dialogs/drawing/CVarGlobale.h"

#include "dialogs/drawing/DrawingControls.h"
#include "dialogs/drawing/FrameBox.h"
#include "dialogs/drawing/SSTabControl.h"
#include "dialogs/drawing/WrappingCheckBox.h"
#include "forms/AccessibleNames.h"
#include "forms/DesignFont.h"
#include "forms/WindowServices.h"

#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <utility>
#include <vector>

// The pictures live in a static library: their registration must be pulled in.
static void initDrawingImages() { Q_INIT_RESOURCE(drawing); }

namespace brimo {

namespace {

void setGreyText(QWidget* field, bool onFaceColour) {
    QPalette palette = field->palette();
    palette.setColor(QPalette::Text, palette.color(QPalette::Disabled, QPalette::Text));
    if (onFaceColour) palette.setColor(QPalette::Base, palette.color(QPalette::Button));
    field->setPalette(palette);
}

// No button of this window is its default button: Enter presses none.
QPushButton* plainButton(QPushButton* button) {
    button->setAutoDefault(false);
    return button;
}

// A point symbol button says the symbol it chooses, as its picture shows it.
constexpr std::pair<const char*, const char*> kSymbolNames[] = {
    {"Command3(0)", "Symbole plus"},   {"Command3(1)", "Symbole croix"},       {"Command3(2)", "Symbole cercle"},
    {"Command3(3)", "Symbole cercle et plus"}, {"Command3(4)", "Symbole carré plein"},
};

QWidget* makeControl(const DrawingControl& control, QWidget* parent) {
    const QString text = QString::fromUtf8(control.text);
    switch (control.kind) {
    case DrawingKind::TabControl: return new SSTabControl(parent);
    case DrawingKind::Tab: return static_cast<SSTabControl*>(parent)->addCanvasTab(
        QString::fromLatin1(control.name), text);
    case DrawingKind::Frame: return new FrameBox(text, parent);
    case DrawingKind::Label: {
        auto* label = new QLabel(text, parent);
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        return label;
    }
    case DrawingKind::Field: {
        auto* field = new QLineEdit(text, parent);
        if (IsCentredField(control.name)) field->setAlignment(Qt::AlignCenter);
        if (control.state & (kGreyText | kGreyColours)) setGreyText(field, control.state & kGreyColours);
        return field;
    }
    case DrawingKind::Check: {
        auto* check = new WrappingCheckBox(text, parent);
        if (control.state & kTicked) check->setCheckState(Qt::Checked);
        if (control.state & kGrey) check->setCheckState(Qt::PartiallyChecked);
        return check;
    }
    case DrawingKind::Button: return plainButton(new QPushButton(text, parent));
    case DrawingKind::PictureButton: {
        auto* button = plainButton(new QPushButton(parent));
        button->setIcon(QIcon(text));
        button->setIconSize(QSize(16, 16));
        return button;
    }
    }
    return nullptr;
}

} // namespace

CVarGlobale::CVarGlobale() {
    static const bool imagesReady = (initDrawingImages(), true);
    Q_UNUSED(imagesReady);

    setObjectName(QStringLiteral("CVarGlobale"));
    setWindowTitle(QStringLiteral("Zorel2004 - Variables"));
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                   Qt::WindowCloseButtonHint);
    setFont(DesignFont());
    resize(TwipsSize(11280, 6285));

    // Each control goes into its parent by name; a tab's controls go onto
    // the tab's canvas.
    QHash<QString, QWidget*> containers{{QString(), this}};
    std::vector<std::pair<int, QWidget*>> tabStops;
    for (const DrawingControl& control : DrawingControls()) {
        const QString name = QString::fromLatin1(control.name);
        QWidget* widget = makeControl(control, containers.value(QString::fromLatin1(control.parent)));
        containers.insert(name, widget);
        if (control.kind == DrawingKind::Tab) continue;
        widget->setObjectName(name);
        PlaceInTwips(widget, control.left, control.top, control.width, control.height);
        if (control.tabIndex != kNoTabStop) tabStops.emplace_back(control.tabIndex, widget);
    }
    chainTabOrder(std::move(tabStops))->setFocus();
    for (const auto& [button, symbol] : kSymbolNames)
        SetSpokenCaption(containers.value(QLatin1String(button)), QString::fromUtf8(symbol));

    findChild<SSTabControl*>(QStringLiteral("SSTab1"))->setCurrentIndex(2);
}

} // namespace brimo
