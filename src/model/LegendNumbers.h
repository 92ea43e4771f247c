#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The legend numbers that the program reads: the number of a line in the
// language file, counted from 1. Lines of other numbers are never read, but
// they count, so the files keep every line in place.

namespace brimo::Legend {

// CGeneralForm: form, buttons outside the tabs, tab captions
constexpr int GeneralTitle = 48;
constexpr int ZmultColoursFrame = 49;      // Frame9
constexpr int CancelButton = 51;           // CmdCancel
constexpr int ChooserButton = 52;          // Command7
constexpr int AboutButton = 53;            // cmdAbout
constexpr int TabStart = 71;               // tab 0
constexpr int TabText = 72;                // tab 2, and Box3
constexpr int TabOffice = 73;              // tab 3
constexpr int TabMisc = 74;                // tab 4
constexpr int TabPrograms = 75;            // tab 5
constexpr int TabStyle = 76;               // tab 1

// CAboutForm
constexpr int SystemInfoButton = 54;       // Command1
constexpr int DevelopedBy = 56;            // txt_about(4)

// Tab 0
constexpr int DefaultValuesFrame = 77;     // Frame4
constexpr int FrameFrame = 94;             // Frame7
constexpr int DoubleFrame = 95;            // Box2
constexpr int ColourNumber = 96;           // Txt3
constexpr int Offset = 97;                 // Txt4
constexpr int PaperMillimetres = 98;       // Txt4_1
constexpr int LayerName = 99;              // Txt2
constexpr int UserDimension = 100;         // Txt1
constexpr int PaperSpaceUnit = 101;        // Frame6
constexpr int ModelSpaceUnit = 102;        // Frame5

// Tab 1
constexpr int DimensionsFrame = 103;       // Frame2
constexpr int Colour = 104;                // Label17
constexpr int FontType = 105;              // Label1, Label19, Label2
constexpr int TextHeight = 106;            // Label7
constexpr int StyleHeights = 107;          // Box5
constexpr int WriteInCurrentLayer = 108;   // Check3

// Tab 2
constexpr int Slant = 82;                  // Txt5
constexpr int Compression = 84;            // Txt6
constexpr int TextAfterStyle = 85;         // Box4
constexpr int DynamicText = 86;            // Option4(4)
constexpr int SingleLineText = 87;         // Option4(5)
constexpr int ParagraphText = 88;          // Option4(6)
constexpr int NoCommand = 89;              // Option4(3)

// Tab 3
constexpr int Name = 131;                  // Etiquette1
constexpr int OfficeName = 147;            // Frame1
constexpr int Address = 148;               // Label3
constexpr int Town = 149;                  // Label4
constexpr int Telephone = 150;             // Label5
constexpr int Fax = 151;                   // Label8

// Tab 4
constexpr int ShowSlides = 152;            // Check1
constexpr int Languages = 153;             // Frame8
constexpr int French = 154;                // Option5(0)
constexpr int English = 155;               // Option5(1)
constexpr int German = 156;                // Option5(2)
constexpr int Italian = 157;               // Option5(3)
constexpr int ShowUserProfile = 158;       // Check2

// Tab 5
constexpr int ProgramLocations = 159;      // Frame10
constexpr int Explorer = 160;              // Command1
constexpr int Calculator = 161;            // Command2
constexpr int WordPad = 162;               // Command3
constexpr int Notepad = 163;               // Command4
constexpr int Personal = 164;              // Command5
constexpr int AcrobatReader = 165;         // Command6

// Refusal of a number field (CGeneralForm and CParamRechTalus)
constexpr int RefusalText = 166;
constexpr int RefusalTitle = 167;

// File dialogs of Command1 to Command6
constexpr int ExplorerDialogTitle = 168;
constexpr int CalculatorDialogTitle = 169;
constexpr int WordPadDialogTitle = 170;
constexpr int NotepadDialogTitle = 171;
constexpr int PersonalDialogTitle = 172;
constexpr int ProgramFilter = 173;
constexpr int AcrobatDialogTitle = 174;

} // namespace brimo::Legend
