#pragma once
// The controls of the drawing variables dialog as data: what each control
// is, where it stands, what it shows. The dialog is design data alone; no
// code loads or stores these values.

#include <span>

namespace brimo {

enum class DrawingKind { TabControl, Tab, Frame, Label, Field, Check, Button, PictureButton };

// Check boxes: empty unless ticked or grey. Fields: grey text, or grey text
// on the face colour.
enum DrawingState : unsigned { kEmpty = 0, kTicked = 1, kGrey = 2, kGreyText = 4, kGreyColours = 8 };

constexpr int kNoTabStop = -1;

struct DrawingControl {
    const char* name;
    DrawingKind kind;
    const char* parent; // "" for the window itself
    const char* text;   // caption, value, or picture of a picture button
    double left, top, width, height; // twips, from the parent's corner
    unsigned state = kEmpty;
    int tabIndex = kNoTabStop;
};

// Every control, parents before their children, in the order they stack.
std::span<const DrawingControl> DrawingControls();

// Fields whose text is centred: the arrays Val7, Val8, Val9, Val11, Val12,
// Val13 and Text28, but for the empty Text28(1).
bool IsCentredField(const char* name);

} // namespace brimo
