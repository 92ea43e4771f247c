#include "dialogs/about/CAboutForm.h"

#include "dialogs/about/AboutTexts.h"
#include "forms/DesignFont.h"
#include "forms/WindowServices.h"
#include "forms/ZorelWindowIcon.h"
#include "model/LegendNumbers.h"
#include "platform/Programs.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <vector>

// The pictures live in a static library: their registration must be pulled in.
static void initAboutImages() { Q_INIT_RESOURCE(about); }

namespace brimo {

namespace {

// The system information tool, at the fixed path of a French Windows system.
// Under Wine the path lies in the prefix's drive C:, where a user who wants
// the tool installs msinfo32.exe; without it, Command1 stays disabled.
const QString kSystemInfoTool =
    QStringLiteral("C:\\Program Files\\Fichiers Communs\\Microsoft Shared\\MSinfo\\Msinfo32.exe");

enum class Kind { Button, Label, Picture, Line };
// The title is two labels 30 twips apart, the red one over the yellow one.
enum class Look { Plain, TitleYellow, TitleRed };
constexpr int kNoTabStop = -1;

struct AboutControl {
    const char* name;
    Kind kind;
    double left, top, width, height;
    const char* content; // caption of a button or label, resource of a picture
    int tabIndex;
    Look look;
};

// The controls in twips, in the order they are stacked (the last on top).
const AboutControl kAboutControls[] = {
    {"cmdOK", Kind::Button, 3360, 3480, 1095, 375, "OK", 0, Look::Plain},
    {"Command1", Kind::Button, 3360, 2520, 1095, 375, "Info système", 1, Look::Plain},
    {"txt_about(0)", Kind::Label, 825, 105, 2580, 420, "Variables Zorel", kNoTabStop, Look::TitleYellow},
    {"txt_about(10)", Kind::Label, 855, 75, 2580, 420, "Variables Zorel", kNoTabStop, Look::TitleRed},
    {"txt_about(4)", Kind::Label, 840, 2280, 2415, 195, "Ce produit a été développé par", kNoTabStop, Look::Plain},
    {"txt_about(6)", Kind::Label, 840, 2760, 1245, 195, "Numéro de série :", kNoTabStop, Look::Plain},
    {"txt_about(8)", Kind::Label, 120, 3240, 1110, 195, "Zorel  version", kNoTabStop, Look::Plain},
    {"txt_about(9)", Kind::Label, 120, 3480, 1155, 195, "Autocad version", kNoTabStop, Look::Plain},
    {"txt_about(1)", Kind::Label, 2160, 1200, 1785, 195, "www.topoligne.example", kNoTabStop, Look::Plain},
    {"txt_about(11)", Kind::Label, 840, 1440, 1380, 195, "Rue du Jura 8", kNoTabStop, Look::Plain},
    {"txt_about(12)", Kind::Label, 840, 1680, 1110, 195, "1400 Yverdon", kNoTabStop, Look::Plain},
    {"txt_about(2)", Kind::Label, 840, 1920, 1335, 195, "Tél. 024 555 01 23", kNoTabStop, Look::Plain},
    {"txt_about(5)", Kind::Label, 840, 2520, 1365, 195, "Topoligne Sàrl", kNoTabStop, Look::Plain},
    {"Image1", Kind::Picture, 720, 480, 3165, 675, ":/about/vendor.png", kNoTabStop, Look::Plain},
    {"Image2(0)", Kind::Picture, 120, 120, 465, 495, ":/about/icon0.png", kNoTabStop, Look::Plain},
    {"Image2(1)", Kind::Picture, 120, 720, 465, 495, ":/about/icon1.png", kNoTabStop, Look::Plain},
    {"Image2(2)", Kind::Picture, 120, 1320, 465, 495, ":/about/icon2.png", kNoTabStop, Look::Plain},
    {"Image2(3)", Kind::Picture, 120, 1920, 465, 495, ":/about/icon3.png", kNoTabStop, Look::Plain},
    {"Image2(4)", Kind::Picture, 120, 2520, 465, 495, ":/about/icon4.png", kNoTabStop, Look::Plain},
    {"Image2(5)", Kind::Picture, 4080, 120, 465, 495, ":/about/icon5.png", kNoTabStop, Look::Plain},
    {"Image2(6)", Kind::Picture, 4080, 720, 465, 495, ":/about/icon6.png", kNoTabStop, Look::Plain},
    {"Image2(7)", Kind::Picture, 4080, 1320, 465, 495, ":/about/icon7.png", kNoTabStop, Look::Plain},
    {"Image2(8)", Kind::Picture, 4080, 1920, 465, 495, ":/about/icon8.png", kNoTabStop, Look::Plain},
    // A line from 120, 3120 to 3360, 3120, one pixel thick.
    {"Ligne1", Kind::Line, 120, 3120, 3240, 15, nullptr, kNoTabStop, Look::Plain},
};

QFont titleFont() {
    QFont font;
    font.setFamilies({QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif"),
                      QStringLiteral("DejaVu Serif")});
    font.setPointSize(18);
    font.setBold(true);
    return font;
}

// The labels size themselves to their text: a text longer than the label
// widens it and stays on one line.
void setLabelText(QLabel* label, const QString& text) {
    label->setText(text);
    label->resize(std::max(label->width(), label->sizeHint().width()), label->height());
}

QWidget* makeControl(const AboutControl& control, QWidget* form) {
    const QString content = QString::fromUtf8(control.content);
    switch (control.kind) {
    case Kind::Button: return new QPushButton(content, form);
    case Kind::Label: {
        auto* label = new QLabel(content, form);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        if (control.look != Look::Plain) {
            label->setFont(titleFont());
            QPalette palette = label->palette();
            palette.setColor(QPalette::WindowText, control.look == Look::TitleYellow ? Qt::yellow : Qt::red);
            label->setPalette(palette);
        }
        return label;
    }
    case Kind::Picture: {
        auto* picture = new QLabel(form);
        picture->setPixmap(QPixmap(content));
        picture->setScaledContents(true);
        return picture;
    }
    case Kind::Line: {
        auto* line = new QFrame(form);
        line->setFrameShape(QFrame::HLine);
        line->setFrameShadow(QFrame::Plain);
        return line;
    }
    }
    return nullptr;
}

} // namespace

CAboutForm::CAboutForm(InstallInfo& info, const LegendTable& legends) : info_(info), legends_(legends) {
    static const bool imagesReady = (initAboutImages(), true);
    Q_UNUSED(imagesReady);

    setObjectName(QStringLiteral("CAboutForm"));
    setWindowTitle(QStringLiteral("About"));
    setWindowIcon(ZorelWindowIcon());
    setFont(DesignFont());
    useFixedBorder();
    setFixedSize(TwipsSize(4605, 3945));

    std::vector<std::pair<int, QWidget*>> tabStops;
    for (const AboutControl& control : kAboutControls) {
        QWidget* widget = makeControl(control, this);
        widget->setObjectName(QString::fromLatin1(control.name));
        PlaceInTwips(widget, control.left, control.top, control.width, control.height);
        if (control.tabIndex != kNoTabStop) tabStops.emplace_back(control.tabIndex, widget);
    }
    chainTabOrder(std::move(tabStops))->setFocus();

    auto* ok = findChild<QPushButton*>(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &CAboutForm::cmdOK_Click);
    connect(findChild<QPushButton*>(QStringLiteral("Command1")), &QPushButton::clicked, this,
            &CAboutForm::Command1_Click);
    CentreOnScreen(this);
}

void CAboutForm::Form_Load() {
    findChild<QPushButton*>(QStringLiteral("Command1"))->setText(legends_.GetLegends(Legend::SystemInfoButton));
    setLabelText(findChild<QLabel*>(QStringLiteral("txt_about(4)")), legends_.GetLegends(Legend::DevelopedBy));

    ApplyVersionDisplayDefaults(info_);
    for (const ComposedLabel& composed : ComposeVersionLabels(info_))
        setLabelText(findChild<QLabel*>(composed.label), composed.text);

    findChild<QPushButton*>(QStringLiteral("Command1"))->setEnabled(FileExists(info_.prefix, kSystemInfoTool));
}

void CAboutForm::cmdOK_Click() { close(); }

// The command text keeps the blank behind the name, as the tool was always
// started; StartProgram takes the path from it.
void CAboutForm::Command1_Click() { StartProgram(info_.prefix, kSystemInfoTool + QLatin1Char(' ')); }

} // namespace brimo
