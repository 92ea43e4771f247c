#pragma once
// Window kit (src/forms): what every form uses and nothing that knows a
// particular form; it sees the model and the platform.
//
// The window icon of the add-on, shared by the chooser and the about window.

#include <QIcon>

namespace brimo {

QIcon ZorelWindowIcon();

} // namespace brimo
