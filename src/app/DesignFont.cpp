#include "app/DesignFont.h"

#include <QStringList>

namespace brimo {

// MS Sans Serif sets narrower than Arial; of the faces found on Linux, the
// narrow Arial-like ones come nearest to its widths, so that the captions
// fit their controls as they were drawn.
QFont DesignFont() {
    QFont font;
    font.setFamilies({QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
                      QStringLiteral("Liberation Sans Narrow"), QStringLiteral("Nimbus Sans Narrow")});
    font.setPointSize(8);
    return font;
}

} // namespace brimo
