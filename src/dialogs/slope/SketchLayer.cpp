#include "dialogs/slope/SketchLayer.h"

#include "forms/WindowServices.h"

#include <QAccessibleWidget>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace brimo {

namespace {

// The mesh stays in the background of the figure it stands behind.
const QColor kMeshColour(150, 150, 150);

// Twips to pixels at the screen's DPI, kept on the pixel grid so that
// straight lines stay crisp: a pen of odd width is centred on a pixel, one
// of even width on the boundary between two.
class SketchScale {
public:
    SketchScale() : pixelsPerTwip_(TwipsToPixels(1440) / 1440.0) {}

    double penWidth(int widthAt96Dpi) const { return TwipsToPixels(15.0 * widthAt96Dpi); }
    double pixels(double twips) const { return std::round(twips * pixelsPerTwip_); }
    QPointF point(SketchPoint p, double penWidth) const {
        const double offset = std::fmod(penWidth, 2.0) / 2.0;
        return {pixels(p.x) + offset, pixels(p.y) + offset};
    }

private:
    double pixelsPerTwip_;
};

// Widths are in the widget's pixels, so a high-DPI screen's device pixel
// ratio thickens them with the rest of the window.
QPen sketchPen(const QColor& colour, double width) {
    QPen pen(colour, width);
    pen.setCapStyle(Qt::FlatCap);
    return pen;
}

void drawLines(QPainter& painter, const SketchScale& scale, std::span<const SketchLine> lines, const QColor& colour) {
    for (const SketchLine& line : lines) {
        const double width = scale.penWidth(line.width);
        painter.setPen(sketchPen(colour, width));
        painter.drawLine(scale.point(line.from, width), scale.point(line.to, width));
    }
}

// The border lies wholly inside the shape's bounds.
void drawShape(QPainter& painter, const SketchScale& scale, const SketchShape& shape, const QColor& colour) {
    const double width = scale.penWidth(shape.borderWidth);
    painter.setPen(sketchPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    QRectF bounds(QPointF(scale.pixels(shape.left), scale.pixels(shape.top)),
                  QPointF(scale.pixels(shape.left + shape.width), scale.pixels(shape.top + shape.height)));
    if (shape.kind == SketchShapeKind::Circle) {
        const double diameter = std::min(bounds.width(), bounds.height());
        const QPointF centre = bounds.center();
        bounds = QRectF(centre.x() - diameter / 2, centre.y() - diameter / 2, diameter, diameter);
    }
    bounds.adjust(width / 2, width / 2, -width / 2, -width / 2);
    if (shape.kind == SketchShapeKind::Circle) painter.drawEllipse(bounds);
    else painter.drawRect(bounds);
}

} // namespace

SketchLayer::SketchLayer(const FrameSketch& sketch, QWidget* frame)
    : QWidget(frame), sketch_(sketch), mesh_(MeshLines(sketch.meshRows)) {
    setObjectName(QStringLiteral("%1Sketch").arg(QLatin1String(sketch.frame)));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(frame->rect());
    lower();
    // Screen readers find the sketch as a picture and read what it shows.
    static const bool asPicture = (QAccessible::installFactory([](const QString& key, QObject* object) {
        return key == QLatin1String("brimo::SketchLayer")
                   ? static_cast<QAccessibleInterface*>(new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic))
                   : nullptr;
    }), true);
    Q_UNUSED(asPicture);
    setAccessibleName(QStringLiteral("Schéma"));
    setAccessibleDescription(QString::fromUtf8(sketch.description));
}

void SketchLayer::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const SketchScale scale;
    const QColor ink = palette().color(QPalette::WindowText);
    drawLines(painter, scale, mesh_, kMeshColour);
    drawLines(painter, scale, sketch_.lines, ink);
    for (const SketchShape& shape : sketch_.shapes) drawShape(painter, scale, shape, ink);
}

} // namespace brimo
