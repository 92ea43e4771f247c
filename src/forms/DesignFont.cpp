#include "forms/DesignFont.h"

#include <QStringList>

namespace brimo {

// The classic dialog font, MS Sans Serif, sets narrower than Arial; of the
// faces found on Linux, the narrow Arial-like ones come nearest to its
// widths, so that the captions fit their controls as they were drawn. They
// come first: a family that is missing costs a search at every start.
QFont DesignFont() {
    QFont font;
    font.setFamilies({QStringLiteral("Liberation Sans Narrow"), QStringLiteral("Nimbus Sans Narrow"),
                      QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif")});
    font.setPointSize(8);
    return font;
}

} // namespace brimo
