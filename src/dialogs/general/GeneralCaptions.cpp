#include "dialogs/general/GeneralCaptions.h"

#include "model/LegendNumbers.h"

namespace brimo {

namespace {

using namespace Legend;

constexpr std::array<CaptionRow, 11> kTab0Captions = {{
    {"Frame7", FrameFrame},
    {"Txt2", LayerName},
    {"Txt1", UserDimension},
    {"Box2", DoubleFrame},
    {"Txt3", ColourNumber},
    {"Txt4", Offset},
    {"Txt4_1", PaperMillimetres},
    {"Frame4", DefaultValuesFrame},
    {"Frame5", ModelSpaceUnit},
    {"Frame6", PaperSpaceUnit},
    {"Frame9", ZmultColoursFrame},
}};

constexpr std::array<CaptionRow, 8> kTab1Captions = {{
    {"Box5", StyleHeights},
    {"Label1", FontType},
    {"Label19", FontType},
    {"Check3", WriteInCurrentLayer},
    {"Frame2", DimensionsFrame},
    {"Label7", TextHeight},
    {"Label17", Colour},
    {"Label2", FontType},
}};

constexpr std::array<CaptionRow, 8> kTab2Captions = {{
    {"Box3", TabText},
    {"Txt5", Slant},
    {"Txt6", Compression},
    {"Box4", TextAfterStyle},
    {"Option4(5)", SingleLineText},
    {"Option4(6)", ParagraphText},
    {"Option4(4)", DynamicText},
    {"Option4(3)", NoCommand},
}};

constexpr std::array<CaptionRow, 6> kTab3Captions = {{
    {"Frame1", OfficeName},
    {"Etiquette1", Name},
    {"Label3", Address},
    {"Label4", Town},
    {"Label5", Telephone},
    {"Label8", Fax},
}};

constexpr std::array<CaptionRow, 7> kTab4Captions = {{
    {"Frame8", Languages},
    {"Option5(0)", French},
    {"Option5(2)", German},
    {"Option5(1)", English},
    {"Option5(3)", Italian},
    {"Check1", ShowSlides},
    {"Check2", ShowUserProfile},
}};

constexpr std::array<CaptionRow, 7> kTab5Captions = {{
    {"Frame10", ProgramLocations},
    {"Command1", Explorer},
    {"Command2", Calculator},
    {"Command3", WordPad},
    {"Command4", Notepad},
    {"Command6", AcrobatReader},
    {"Command5", Personal},
}};

constexpr std::array<CaptionRow, 3> kLoadButtonCaptions = {{
    {"Command7", ChooserButton},
    {"cmdAbout", AboutButton},
    {"CmdCancel", CancelButton},
}};

constexpr std::array<SweepStep, 6> kLoadTabSweep = {{
    {0, TabStart},
    {1, TabStyle},
    {2, TabText},
    {3, TabOffice},
    {4, TabMisc},
    {5, TabPrograms},
}};

constexpr std::array<SweepStep, 6> kLanguageTabSweep = {{
    {0, TabStart},
    {1, TabStyle},
    {2, TabText},
    {3, TabOffice},
    {5, TabPrograms},
    {4, TabMisc},
}};

} // namespace

std::span<const CaptionRow> TabCaptionTable(int tab) {
    switch (tab) {
    case 0: return kTab0Captions;
    case 1: return kTab1Captions;
    case 2: return kTab2Captions;
    case 3: return kTab3Captions;
    case 4: return kTab4Captions;
    case 5: return kTab5Captions;
    default: return {};
    }
}

std::span<const CaptionRow> LoadButtonCaptions() { return kLoadButtonCaptions; }
std::span<const SweepStep> LoadTabSweep() { return kLoadTabSweep; }
std::span<const SweepStep> LanguageTabSweep() { return kLanguageTabSweep; }

} // namespace brimo
