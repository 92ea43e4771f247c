#include "dialogs/general/GeneralIcon.h"

#include <QPainter>
#include <QPixmap>

namespace brimo {

namespace {

QPixmap drawIcon(int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 32.0, size / 32.0);

    // Two tabs above a sheet.
    painter.setPen(QPen(QColor(40, 60, 110), 1.2));
    painter.setBrush(QColor(200, 215, 240));
    painter.drawRect(QRectF(3.5, 4.5, 9, 5));
    painter.drawRect(QRectF(12.5, 4.5, 9, 5));
    painter.setBrush(QColor(250, 250, 252));
    painter.drawRect(QRectF(2.5, 8.5, 27, 21));
    // The drawing frame with its double border.
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(30, 90, 200), 1.6));
    painter.drawRect(QRectF(6.5, 12.5, 19, 13));
    painter.setPen(QPen(QColor(200, 40, 40), 1.0));
    painter.drawRect(QRectF(9, 15, 14, 8));
    return pixmap;
}

} // namespace

QIcon GeneralWindowIcon() {
    QIcon icon;
    for (int size : {16, 32, 48}) icon.addPixmap(drawIcon(size));
    return icon;
}

} // namespace brimo
