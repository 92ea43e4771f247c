#include "dialogs/drawing/DrawingControls.h"

#include <string_view>

namespace brimo {

namespace {

using K = DrawingKind;

// Grids: row labels and column heads are 195 high, the head row at top 360;
// a row label stands 45 below its row's top so that its text sits on the
// fields' line; fields and check boxes are 285 high.
const DrawingControl kDrawingControls[] = {
    // The window.
    {"SSTab1", K::TabControl, "", "", 364, 234, 9477, 5161, kEmpty, 0},
    {"Command1(0)", K::Button, "", "OK", 8190, 5499, 1095, 375, kEmpty, 7},
    {"Command1(1)", K::Button, "", "Annuler", 6903, 5499, 1095, 375, kEmpty, 8},
    {"Command1(2)", K::Button, "", "Aide", 585, 5499, 1095, 375, kEmpty, 9},

    // The tabs of SSTab1.
    {"SSTab1.Tab(0)", K::Tab, "SSTab1", "Courbes de niveau", 0, 0, 0, 0},
    {"SSTab1.Tab(1)", K::Tab, "SSTab1", "Report de points", 0, 0, 0, 0},
    {"SSTab1.Tab(2)", K::Tab, "SSTab1", "Talus", 0, 0, 0, 0},
    {"SSTab1.Tab(3)", K::Tab, "SSTab1", "Textes", 0, 0, 0, 0},
    {"SSTab1.Tab(4)", K::Tab, "SSTab1", "Général", 0, 0, 0, 0},
    {"SSTab1.Tab(5)", K::Tab, "SSTab1", "Profil", 0, 0, 0, 0},

    // Tab 0: layers of the contour lines.
    {"Frame2(0)", K::Frame, "SSTab1.Tab(0)", "Propriétés calques CDN", 117, 702, 5295, 2175},
    {"Label5(0)", K::Label, "Frame2(0)", "Créer calque", 1740, 360, 1020, 195},
    {"Label1(1)", K::Label, "Frame2(0)", "Nom calque", 2760, 360, 1695, 195},
    {"Label18(0)", K::Label, "Frame2(0)", "Couleur", 4560, 360, 675, 195},
    {"Label2(0)", K::Label, "Frame2(0)", "Courbes de niveau :", 120, 645, 1860, 195},
    {"Check6(0)", K::Check, "Frame2(0)", "", 2040, 600, 255, 285, kTicked},
    {"Text4(0)", K::Field, "Frame2(0)", "CDN", 2760, 600, 1695, 285},
    {"Text28(0)", K::Field, "Frame2(0)", "1", 4560, 600, 495, 285},
    {"Label5(7)", K::Label, "Frame2(0)", "CDN principales :", 120, 1005, 1860, 195},
    {"Check6(1)", K::Check, "Frame2(0)", "", 2040, 960, 255, 285},
    {"Text4(3)", K::Field, "Frame2(0)", "CDN", 2760, 960, 1695, 285, kGreyText},
    {"Text28(7)", K::Field, "Frame2(0)", "3", 4560, 960, 495, 285},
    {"Label5(5)", K::Label, "Frame2(0)", "Pts générateurs CDN :", 120, 1365, 1860, 195},
    {"Check6(2)", K::Check, "Frame2(0)", "", 2040, 1320, 255, 285, kTicked},
    {"Text4(5)", K::Field, "Frame2(0)", "PtsCDN", 2760, 1320, 1695, 285},
    {"Text28(4)", K::Field, "Frame2(0)", "7", 4560, 1320, 495, 285},
    {"Label5(1)", K::Label, "Frame2(0)", "Aperçu CDN :", 120, 1725, 1860, 195},
    {"Check6(3)", K::Check, "Frame2(0)", "", 2040, 1680, 255, 285, kTicked},
    {"Text4(6)", K::Field, "Frame2(0)", "_Aperçu", 2760, 1680, 1695, 285},
    {"Text28(2)", K::Field, "Frame2(0)", "2", 4560, 1680, 495, 285},

    // Tab 0: contour parameters.
    {"Frame1(0)", K::Frame, "SSTab1.Tab(0)", "Paramètres CDN (en mètre)", 5520, 720, 3015, 1335},
    {"Label18(1)", K::Label, "Frame1(0)", "Equidistance CDN", 120, 285, 2220, 195},
    {"Text28(1)", K::Field, "Frame1(0)", "", 2400, 240, 495, 285},
    {"Label15(2)", K::Label, "Frame1(0)", "Equidistance CDN Principales", 120, 645, 2220, 195},
    {"Text26(2)", K::Field, "Frame1(0)", "", 2400, 600, 495, 285},
    {"Label15(0)", K::Label, "Frame1(0)", "Espacement aperçu CDN", 120, 1005, 2220, 195},
    {"Text26(0)", K::Field, "Frame1(0)", "", 2400, 960, 495, 285},

    // Tab 0: check boxes on the tab itself.
    {"Check7(0)", K::Check, "SSTab1.Tab(0)", "Dessiner CDN principales", 5520, 2160, 3015, 255, kTicked},
    {"Check7(1)", K::Check, "SSTab1.Tab(0)", "Indiquer altitude  sur CDN principales", 5520, 2400, 3015, 255, kTicked},
    {"Check7(2)", K::Check, "SSTab1.Tab(0)", "Indiquer altitude  sur toutes les CDN", 5520, 2640, 3015, 255},
    {"Check7(3)", K::Check, "SSTab1.Tab(0)", "Dessiner CDN dans calque courant", 5640, 4080, 3015, 255},

    // Tab 0: text of the contour lines, heads above their controls.
    {"Frame4", K::Frame, "SSTab1.Tab(0)", "Texte CDN (hauteur en mm papier)", 120, 3000, 8415, 975},
    {"Txt7(0)", K::Label, "Frame4", "Créer style", 180, 360, 900, 195},
    {"Check4(0)", K::Check, "Frame4", "", 480, 600, 255, 285, kTicked},
    {"Txt7(1)", K::Label, "Frame4", "Nom style", 1200, 360, 1455, 195},
    {"Text1(2)", K::Field, "Frame4", "AltitudeCDN", 1200, 600, 1455, 285},
    {"Label1(5)", K::Label, "Frame4", "Haut.", 2760, 360, 495, 195},
    {"Val7(1)", K::Field, "Frame4", "2.0", 2760, 600, 495, 285},
    {"Label1(4)", K::Label, "Frame4", "Police", 3360, 360, 1455, 195},
    {"Text1(1)", K::Field, "Frame4", "ROMANS", 3360, 600, 1695, 285},
    {"Txt7(2)", K::Label, "Frame4", "Créer calque", 4980, 360, 1020, 195},
    {"Check5(0)", K::Check, "Frame4", "", 5280, 600, 255, 285, kTicked},
    {"Txt7(3)", K::Label, "Frame4", "Nom calque", 6000, 360, 1455, 195},
    {"Text1(3)", K::Field, "Frame4", "TXTAltitudeCDN", 6000, 600, 1455, 285},
    {"Label1(11)", K::Label, "Frame4", "Couleur", 7560, 360, 735, 195},
    {"Val7(3)", K::Field, "Frame4", "7", 7560, 600, 495, 285},

    {"Command2", K::Button, "SSTab1.Tab(0)", "variables", 1404, 4212, 1651, 364},

    // Tab 1: heights of the styles of reported points.
    {"Frame2(2)", K::Frame, "SSTab1.Tab(1)", "Hauteur des styles (mm papier)", 240, 840, 8535, 1815},
    {"Label1(12)", K::Label, "Frame2(2)", "Nom style", 1680, 360, 1335, 195},
    {"Label1(0)", K::Label, "Frame2(2)", "Haut.", 3120, 360, 495, 195},
    {"Label1(13)", K::Label, "Frame2(2)", "Police", 3720, 360, 1455, 195},
    {"Txt7(5)", K::Label, "Frame2(2)", "Créer calque", 5220, 360, 1020, 195},
    {"Txt7(4)", K::Label, "Frame2(2)", "Nom calque", 6240, 360, 1455, 195},
    {"Label18(2)", K::Label, "Frame2(2)", "Couleur", 7800, 360, 675, 195},
    {"Label2(1)", K::Label, "Frame2(2)", "Numéro des points :", 120, 645, 1560, 195},
    {"Text4(8)", K::Field, "Frame2(2)", "PointsReport", 1680, 600, 1335, 285},
    {"Val7(5)", K::Field, "Frame2(2)", "2.0", 3120, 600, 495, 285},
    {"Text1(6)", K::Field, "Frame2(2)", "ROMANS", 3720, 600, 1695, 285},
    {"Check5(1)", K::Check, "Frame2(2)", "", 5520, 600, 255, 285, kTicked},
    {"Text1(4)", K::Field, "Frame2(2)", "TxtPointsReport", 6240, 600, 1455, 285},
    {"Val7(4)", K::Field, "Frame2(2)", "7", 7800, 600, 495, 285},
    {"Label5(3)", K::Label, "Frame2(2)", "Altitude des points :", 120, 1005, 1560, 195},
    {"Text4(1)", K::Field, "Frame2(2)", "PointsReport", 1680, 960, 1335, 285},
    {"Val7(7)", K::Field, "Frame2(2)", "2.0", 3120, 960, 495, 285},
    {"Text1(8)", K::Field, "Frame2(2)", "ROMANS", 3720, 960, 1695, 285},
    {"Check5(2)", K::Check, "Frame2(2)", "", 5520, 960, 255, 285},
    {"Text1(7)", K::Field, "Frame2(2)", "TxtPointsReport", 6240, 960, 1455, 285},
    {"Val7(6)", K::Field, "Frame2(2)", "7", 7800, 960, 495, 285},
    {"Label5(8)", K::Label, "Frame2(2)", "Points reportés :", 120, 1365, 1560, 195},
    {"Check5(3)", K::Check, "Frame2(2)", "", 5520, 1320, 255, 285, kTicked},
    {"Text1(9)", K::Field, "Frame2(2)", "PointsReport", 6240, 1320, 1455, 285},
    {"Val7(8)", K::Field, "Frame2(2)", "7", 7800, 1320, 495, 285},

    // Tab 1: where the texts go, two rings of nine captionless boxes.
    {"Frame5", K::Frame, "SSTab1.Tab(1)", "Emplacement du texte", 240, 2760, 3495, 1815},
    {"Frame6(0)", K::Frame, "SSTab1.Tab(1)", "Position Altitude", 360, 3000, 1575, 1455},
    {"Check9(16)", K::Check, "Frame6(0)", "", 480, 240, 255, 375},
    {"Check9(17)", K::Check, "Frame6(0)", "", 840, 240, 255, 375},
    {"Check9(18)", K::Check, "Frame6(0)", "", 1200, 240, 255, 375, kTicked},
    {"Check9(19)", K::Check, "Frame6(0)", "", 480, 600, 255, 375},
    {"Check9(20)", K::Check, "Frame6(0)", "", 1200, 600, 255, 375},
    {"Check9(21)", K::Check, "Frame6(0)", "", 480, 960, 255, 375},
    {"Check9(22)", K::Check, "Frame6(0)", "", 840, 960, 255, 375},
    {"Check9(23)", K::Check, "Frame6(0)", "", 1200, 960, 255, 375},
    {"Check9(24)", K::Check, "Frame6(0)", "", 120, 600, 255, 375, kTicked},
    {"Frame6(1)", K::Frame, "SSTab1.Tab(1)", "Position Numéro", 2040, 3000, 1575, 1455},
    {"Check9(4)", K::Check, "Frame6(1)", "", 480, 240, 255, 375},
    {"Check9(8)", K::Check, "Frame6(1)", "", 840, 240, 255, 375},
    {"Check9(7)", K::Check, "Frame6(1)", "", 1200, 240, 255, 375},
    {"Check9(6)", K::Check, "Frame6(1)", "", 480, 600, 255, 375},
    {"Check9(5)", K::Check, "Frame6(1)", "", 1200, 600, 255, 375},
    {"Check9(3)", K::Check, "Frame6(1)", "", 480, 960, 255, 375},
    {"Check9(2)", K::Check, "Frame6(1)", "", 840, 960, 255, 375},
    {"Check9(1)", K::Check, "Frame6(1)", "", 1200, 960, 255, 375},
    {"Check9(0)", K::Check, "Frame6(1)", "", 120, 600, 255, 375},

    // Tab 1: symbol of the points.
    {"Frame7", K::Frame, "SSTab1.Tab(1)", "Symbole des points", 3840, 2760, 4935, 1695},
    {"Command3(3)", K::PictureButton, "Frame7", ":/drawing/point3.png", 120, 360, 735, 495},
    {"Command3(4)", K::PictureButton, "Frame7", ":/drawing/point4.png", 1080, 360, 735, 495},
    {"Command3(1)", K::PictureButton, "Frame7", ":/drawing/point1.png", 2040, 360, 735, 495},
    {"Command3(2)", K::PictureButton, "Frame7", ":/drawing/point2.png", 3000, 360, 735, 495},
    {"Command3(0)", K::PictureButton, "Frame7", ":/drawing/point0.png", 3960, 360, 735, 495},
    {"Label2(2)", K::Label, "Frame7", "Nbr de décimales altitude", 120, 1005, 1860, 195},
    {"Text4(2)", K::Field, "Frame7", "2", 2040, 960, 495, 285},
    {"Label2(3)", K::Label, "Frame7", "Taille du point (mm papier)", 120, 1365, 1860, 195},
    {"Text4(4)", K::Field, "Frame7", "3", 2040, 1320, 495, 285, kGreyColours},
    {"Check7(5)", K::Check, "Frame7", "Taille du point, conserver les paramètres Autocad", 2640, 1080, 2175, 495,
     kTicked},

    {"Check7(4)", K::Check, "SSTab1.Tab(1)", "Reportés les points dans calque courant", 5640, 4560, 3255, 255},

    // Tab 2: an empty frame.
    {"Frame3", K::Frame, "SSTab1.Tab(2)", "Paramètres du dessin", 240, 840, 8415, 3495},

    // Tab 3: heights of the text styles; every create-layer box grey.
    {"Box5", K::Frame, "SSTab1.Tab(3)", "Hauteur des styles (mm papier)", 120, 720, 7455, 3255},
    {"Label1(6)", K::Label, "Box5", "Nom du style", 240, 360, 1575, 195},
    {"Label1(3)", K::Label, "Box5", "Haut.", 1920, 360, 495, 195},
    {"Label1(2)", K::Label, "Box5", "Police", 2520, 360, 1455, 195},
    {"Label1(8)", K::Label, "Box5", "Créer calque", 4020, 360, 1020, 195},
    {"Label1(9)", K::Label, "Box5", "Nom du calque", 5040, 360, 1455, 195},
    {"Label1(10)", K::Label, "Box5", "Couleur", 6600, 360, 735, 195},
    {"Text2(0)", K::Field, "Box5", "QZ1", 240, 600, 1575, 285},
    {"Val7(0)", K::Field, "Box5", "1.0", 1920, 600, 495, 285},
    {"Text1(0)", K::Field, "Box5", "ROMANS", 2520, 600, 1695, 285},
    {"Check2(11)", K::Check, "Box5", "", 4320, 600, 255, 285, kGrey},
    {"Text2(11)", K::Field, "Box5", "TxtQZ1", 5040, 600, 1455, 285},
    {"Val7(2)", K::Field, "Box5", "1", 6600, 600, 495, 285},
    {"Text2(1)", K::Field, "Box5", "QZ2", 240, 960, 1575, 285},
    {"Val8(0)", K::Field, "Box5", "2.0", 1920, 960, 495, 285},
    {"Text20", K::Field, "Box5", "ROMANS", 2520, 960, 1695, 285},
    {"Check2(10)", K::Check, "Box5", "", 4320, 960, 255, 285, kGrey},
    {"Text2(10)", K::Field, "Box5", "TxtQZ2", 5040, 960, 1455, 285},
    {"Val8(1)", K::Field, "Box5", "7", 6600, 960, 495, 285},
    {"Text2(2)", K::Field, "Box5", "QZ3", 240, 1320, 1575, 285},
    {"Val9(0)", K::Field, "Box5", "3.0", 1920, 1320, 495, 285},
    {"Text21", K::Field, "Box5", "ROMANS", 2520, 1320, 1695, 285},
    {"Check2(9)", K::Check, "Box5", "", 4320, 1320, 255, 285, kGrey},
    {"Text2(9)", K::Field, "Box5", "TxtQZ3", 5040, 1320, 1455, 285},
    {"Val9(1)", K::Field, "Box5", "3", 6600, 1320, 495, 285},
    {"Text2(3)", K::Field, "Box5", "QZ5", 240, 1680, 1575, 285},
    {"Val11(0)", K::Field, "Box5", "5.0", 1920, 1680, 495, 285},
    {"Text23", K::Field, "Box5", "ROMANS", 2520, 1680, 1695, 285},
    {"Check2(8)", K::Check, "Box5", "", 4320, 1680, 255, 285, kGrey},
    {"Text2(8)", K::Field, "Box5", "TxtQZ5", 5040, 1680, 1455, 285},
    {"Val11(1)", K::Field, "Box5", "2", 6600, 1680, 495, 285},
    {"Text2(4)", K::Field, "Box5", "QZ7", 240, 2040, 1575, 285},
    {"Val12(0)", K::Field, "Box5", "7.0", 1920, 2040, 495, 285},
    {"Text24", K::Field, "Box5", "ROMANS", 2520, 2040, 1695, 285},
    {"Check2(7)", K::Check, "Box5", "", 4320, 2040, 255, 285, kGrey},
    {"Text2(7)", K::Field, "Box5", "TxtQZ7", 5040, 2040, 1455, 285},
    {"Val12(1)", K::Field, "Box5", "5", 6600, 2040, 495, 285},
    {"Text2(5)", K::Field, "Box5", "QZ10", 240, 2400, 1575, 285},
    {"Val13(0)", K::Field, "Box5", "10.0", 1920, 2400, 495, 285},
    {"Text25", K::Field, "Box5", "ARIAL", 2520, 2400, 1695, 285},
    {"Check2(6)", K::Check, "Box5", "", 4320, 2400, 255, 285, kGrey},
    {"Text2(6)", K::Field, "Box5", "TxtQZ10", 5040, 2400, 1455, 285},
    {"Val13(1)", K::Field, "Box5", "7", 6600, 2400, 495, 285},
    {"Check1(6)", K::Check, "Box5", "Créer tout les calques", 5280, 2880, 1935, 255, kTicked},

    // Tab 4: the office.
    {"Frame1(1)", K::Frame, "SSTab1.Tab(4)", "Nom du bureau", 240, 720, 4335, 2055},
    {"Etiquette1", K::Label, "Frame1(1)", "Nom", 120, 285, 900, 195},
    {"Val15", K::Field, "Frame1(1)", "Nom du bureau", 1080, 240, 3135, 285},
    {"Label3", K::Label, "Frame1(1)", "Adresse", 120, 645, 900, 195},
    {"Val16", K::Field, "Frame1(1)", "Adresse", 1080, 600, 3135, 285},
    {"Label4", K::Label, "Frame1(1)", "Localité", 120, 1005, 900, 195},
    {"Val17", K::Field, "Frame1(1)", "N postal", 1080, 960, 735, 285},
    {"Val18", K::Field, "Frame1(1)", "Ville", 1920, 960, 2295, 285},
    {"Label5(6)", K::Label, "Frame1(1)", "Téléphone", 120, 1365, 900, 195},
    {"Val19", K::Field, "Frame1(1)", "No de téléphone", 1080, 1320, 1935, 285},
    {"Label8", K::Label, "Frame1(1)", "Fax", 120, 1725, 900, 195},
    {"Val20", K::Field, "Frame1(1)", "No Fax", 1080, 1680, 1935, 285},

    // Tab 5 holds no control.
};

constexpr std::string_view kCentredArrays[] = {"Val7", "Val8", "Val9", "Val11", "Val12", "Val13", "Text28"};
constexpr std::string_view kLeftAlignedException = "Text28(1)";

} // namespace

std::span<const DrawingControl> DrawingControls() { return kDrawingControls; }

bool IsCentredField(const char* name) {
    const std::string_view whole(name);
    if (whole == kLeftAlignedException) return false;
    const std::string_view array = whole.substr(0, whole.find('('));
    if (array == whole) return false;
    for (std::string_view centred : kCentredArrays)
        if (array == centred) return true;
    return false;
}

} // namespace brimo
