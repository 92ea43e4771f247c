#pragma once
// Window kit (src/forms): what every form uses and nothing that knows a
// particular form; it sees the model and the platform.
//
// The keyboard of the option buttons of a form, as the platform's dialogs
// have it. The buttons of one frame form a group, in the order of the tab
// chain. Tab and Shift+Tab enter a group on its selected button, or on its
// first enabled one when the selected one is disabled or none is selected,
// and leave it from there; the arrow keys move the focus and the selection
// to the next (Down, Right) or previous (Up, Left) enabled button of the
// group, round the end, and a button that becomes selected raises its click.

class QWidget;

namespace brimo {

// Gives the keyboard of groups to every option button of the form; called
// again, to the buttons made since.
void UseOptionGroupKeys(QWidget* form);

} // namespace brimo
