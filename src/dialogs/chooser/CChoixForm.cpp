#include "dialogs/chooser/CChoixForm.h"

#include "forms/DesignFont.h"
#include "forms/WindowServices.h"
#include "forms/ZorelWindowIcon.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <vector>

// The pictures live in a static library: their registration must be pulled in.
static void initChooserImages() { Q_INIT_RESOURCE(chooser); }

namespace brimo {

namespace {

constexpr int kNoTabStop = -1;

struct ChooserControl {
    const char* name;
    const char* caption;         // nullptr: the banner picture
    double left, top, width, height;
    int tabIndex;
    bool isDefault;
    void (CChoixForm::*click)();
};

// The controls in twips. The last two lie wholly below the client area, out
// of sight, and still take the focus and answer the keyboard.
const ChooserControl kChooserControls[] = {
    {"Image1", nullptr, 120, 120, 4155, 915, kNoTabStop, false, nullptr},
    {"CmdChoixPiedTalus", "Pied Talus", 120, 1200, 1215, 495, 1, false, &CChoixForm::CmdChoixPiedTalus_Click},
    {"CmdChoixAbout", "A propos", 2040, 2400, 1095, 495, 2, false, &CChoixForm::CmdChoixAbout_Click},
    {"CmdChoixQuitter", "Quitter", 3240, 2400, 1095, 495, 3, true, &CChoixForm::CmdChoixQuitter_Click},
    {"CmdChoixGeneral", "Général", 120, 3480, 975, 375, 0, false, &CChoixForm::CmdChoixGeneral_Click},
    {"CmdCadreLayers", "Cadre et Layers", 1200, 3480, 949, 495, 4, false, &CChoixForm::CmdCadreLayers_Click},
};

} // namespace

CChoixForm::CChoixForm(Navigator& navigator) : navigator_(navigator) {
    static const bool imagesReady = (initChooserImages(), true);
    Q_UNUSED(imagesReady);

    setObjectName(QStringLiteral("CChoixForm"));
    setWindowTitle(QStringLiteral("Choix du module"));
    setWindowIcon(ZorelWindowIcon());
    setFont(DesignFont());
    useFixedBorder();
    setFixedSize(TwipsSize(4440, 3000));
    move(TwipsToPixels(12225), TwipsToPixels(5865));

    std::vector<std::pair<int, QWidget*>> tabStops;
    for (const ChooserControl& control : kChooserControls) {
        QWidget* widget;
        if (!control.caption) {
            auto* picture = new QLabel(this);
            picture->setPixmap(QPixmap(QStringLiteral(":/chooser/banner.png")));
            picture->setScaledContents(true);
            widget = picture;
        } else {
            // Every button is autoDefault, so that Enter presses the button
            // that holds the focus, and the default one only otherwise.
            auto* button = new QPushButton(QString::fromUtf8(control.caption), this);
            button->setAutoDefault(true);
            button->setDefault(control.isDefault);
            connect(button, &QPushButton::clicked, this, control.click);
            widget = button;
        }
        widget->setObjectName(QString::fromLatin1(control.name));
        PlaceInTwips(widget, control.left, control.top, control.width, control.height);
        if (control.tabIndex != kNoTabStop) tabStops.emplace_back(control.tabIndex, widget);
    }
    // The first tab stop holds the focus when the window opens; set before
    // the window shows, so that QDialog does not hand it to the default button.
    chainTabOrder(std::move(tabStops))->setFocus();
}

// A new window is shown before the chooser closes, so that the process,
// which ends with its last window, goes on.
void CChoixForm::CmdChoixPiedTalus_Click() {
    navigator_.Show(FormKind::Slope);
    close();
}

void CChoixForm::CmdCadreLayers_Click() {
    navigator_.Show(FormKind::General);
    close();
}

void CChoixForm::CmdChoixGeneral_Click() {
    navigator_.Show(FormKind::Drawing);
    close();
}

void CChoixForm::CmdChoixAbout_Click() { navigator_.Show(FormKind::About); }

void CChoixForm::CmdChoixQuitter_Click() { navigator_.End(0); }

} // namespace brimo
