#include "dialogs/slope/SlopeControls.h"

#include "model/SlopeOpening.h"

namespace brimo {

namespace {

using enum SlopeControlKind;

constexpr SlopeControl kSlopeControls[] = {
    {"Frame1", Frame, nullptr, "Aspect du dessin final", 117, 117, 2236, 1300, 0, false},
    {"Check1", CheckBox, "Frame1", "Check1", 117, 234, 247, 247, 1, kSlopeOpeningCheck1},
    {"Check2", CheckBox, "Frame1", "Check1", 117, 585, 247, 247, 2, kSlopeOpeningCheck2},
    {"Label1(0)", Label, "Frame1", "X  X  X  X  X  X  X  X", 465, 585, 1590, 240, 14, false},
    {"Option1", OptionButton, "Frame1", "2D", 351, 936, 598, 247, 3, !kSlopeOpeningOption2},
    {"Option2", OptionButton, "Frame1", "3D", 1404, 936, 598, 247, 4, kSlopeOpeningOption2},
    {"Frame2", Frame, nullptr, "Pente des talus", 2640, 117, 1885, 1300, 15, false},
    {"Text1", TextField, "Frame2", kSlopeOpeningTexts[0], 351, 330, 481, 300, 5, false},
    {"Text2", TextField, "Frame2", kSlopeOpeningTexts[1], 1287, 720, 481, 345, 6, false},
    {"Frame3", Frame, nullptr, "Longueur initiale de recherche [m]", 117, 1560, 3991, 2340, 16, false},
    {"Text3", TextField, "Frame3", kSlopeOpeningTexts[2], 2220, 240, 598, 300, 8, false},
    {"Frame4", Frame, nullptr, "Recherche sur point unique", 4800, 120, 2835, 1534, 17, false},
    {"Text4", TextField, "Frame4", kSlopeOpeningTexts[3], 1560, 960, 715, 360, 7, false},
    {"Label2", Label, "Frame4", "Nombre de points de recherche", 1440, 345, 1185, 480, 18, false},
    {"Label3(0)", Label, "Frame4", "1", 550, 234, 78, 169, 20, false},
    {"Label3(1)", Label, "Frame4", "2", 750, 250, 78, 169, 21, false},
    {"Label3(2)", Label, "Frame4", "3", 936, 351, 78, 169, 22, false},
    {"Frame5", Frame, nullptr, "Espacement de de recherche [m]", 4320, 1800, 3315, 2115, 19, false},
    {"Text5", TextField, "Frame5", kSlopeOpeningTexts[4], 117, 1560, 481, 315, 9, false},
    {"Label4", Label, nullptr, "Facteur d'échelle des flèches de direction", 240, 3960, 2820, 240, 23, false},
    {"Text6", TextField, nullptr, kSlopeOpeningTexts[5], 3120, 3915, 715, 330, 10, false},
    {"Command1", Button, nullptr, "OK", 5280, 4320, 1065, 480, 11, false},
    {"CmdCancel", Button, nullptr, "Annuler", 6600, 4320, 975, 495, 12, false},
    {"cmdAbout", Button, nullptr, "A propos", 117, 4320, 975, 495, 13, false},
};

} // namespace

std::span<const SlopeControl> SlopeControls() { return kSlopeControls; }

} // namespace brimo
