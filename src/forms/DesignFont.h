#pragma once
// Window kit (src/forms): what every form uses and nothing that knows a
// particular form; it sees the model and the platform.
//
// The face that the forms were drawn with: 8-point MS Sans Serif, or the
// nearest sans-serif face of the same width where it is not installed. The
// twips positions of the forms only fit their captions at that size.

#include <QFont>

namespace brimo {

QFont DesignFont();

} // namespace brimo
