#include "forms/ZorelWindowIcon.h"

// The picture lives in a static library: its registration must be pulled in.
static void initFormImages() { Q_INIT_RESOURCE(forms); }

namespace brimo {

QIcon ZorelWindowIcon() {
    static const bool imagesReady = (initFormImages(), true);
    Q_UNUSED(imagesReady);
    return QIcon(QStringLiteral(":/forms/zorel.png"));
}

} // namespace brimo
