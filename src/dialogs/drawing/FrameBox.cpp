#include "dialogs/drawing/FrameBox.h"

#include <QPainter>

namespace brimo {

void FrameBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QFontMetrics metrics = fontMetrics();
    const QRect caption(6, 0, title().isEmpty() ? 0 : metrics.horizontalAdvance(title()) + 4, metrics.height());

    // The border leaves a gap for the caption, whatever the ground behind.
    painter.setClipRegion(QRegion(rect()).subtracted(caption));
    const QRect border = rect().adjusted(0, metrics.height() / 2, -2, -2);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(border);
    painter.setPen(palette().color(QPalette::Light));
    painter.drawRect(border.translated(1, 1));
    painter.setClipping(false);

    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(caption, Qt::AlignCenter, title());
}

} // namespace brimo
