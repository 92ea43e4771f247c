#pragma once
// A form as text, one line a control: name, class, parent, place in pixels,
// caption or text, state, the name a screen reader hears; then the window
// and the order of the Tab key. A snapshot of it (tests/golden/forms/) pins
// every value of a form's layout tables and captions at once.

#include <QByteArray>

class QWidget;

namespace brimo::test {

QByteArray DumpForm(QWidget* form);

} // namespace brimo::test
