#pragma once
// The controls of CParamRechTalus as one table: kind, parent, caption or
// text, geometry in twips relative to the parent, tab index, opening state.

#include <span>

namespace brimo {

enum class SlopeControlKind { Frame, CheckBox, Label, OptionButton, TextField, Button };

struct SlopeControl {
    const char* name;
    SlopeControlKind kind;
    const char* parent;   // nullptr: the form itself
    const char* caption;  // caption, or the text of a field; UTF-8
    double left, top, width, height;
    int tabIndex;
    bool setAtOpening;    // a check box ticked, an option button chosen
};

// In the order of the form's design, not the tab order.
std::span<const SlopeControl> SlopeControls();

// Client area of the form, in twips.
inline constexpr double kSlopeFormWidth = 7755;
inline constexpr double kSlopeFormHeight = 4920;

} // namespace brimo
