#pragma once
// Window kit (src/forms): what every form uses and nothing that knows a
// particular form; it sees the model and the platform.
//
// Names for screen readers, read off the form as a sighted user reads it: a
// button, check box or option button says its caption; a field says the
// caption of the label that stands for it (the column head above it, or the
// label just left of it on its line), or else its frame's title; a tab
// control says the window's title, each tab its caption. Where two
// controls of a window would say the same, each name carries what tells them
// apart on the form: the label heading its row, its frame's title, the first
// text of its row, and last its place among them. A form names its controls
// again each time it changes captions, so the names follow the language.

#include <QString>

class QWidget;

namespace brimo {

// What a control shows without words (a picture, a caption too narrow to be
// seen): it stands for its caption in its name.
void SetSpokenCaption(QWidget* control, const QString& caption);
// What tells a control from others of the same name, where the form shows it
// by a drawing and no word: added to its name only when the name is shared.
void SetNameQualifier(QWidget* control, const QString& qualifier);

// Names every focusable field, button and row of tabs of the window from
// its captions.
void NameControls(QWidget* window);

// The name a control gives screen readers (Qt's accessible interface).
QString AccessibleNameOf(QWidget* control);

// A control whose value another than the user fixes (the office standard):
// greyed, and saying why to the mouse (a tooltip) and to screen readers (its
// description).
void ShowAsFixed(QWidget* control, const QString& why);

} // namespace brimo
