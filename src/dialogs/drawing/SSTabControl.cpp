#include "dialogs/drawing/SSTabControl.h"

namespace brimo {

SSTabControl::SSTabControl(QWidget* parent) : QTabWidget(parent) {}

QWidget* SSTabControl::addCanvasTab(const QString& pageName, const QString& caption) {
    auto* page = new QWidget;
    page->setObjectName(pageName);
    auto* canvas = new QWidget(page);
    canvases_.push_back(canvas);
    addTab(page, caption);
    alignCanvases();
    return canvas;
}

void SSTabControl::resizeEvent(QResizeEvent* event) {
    QTabWidget::resizeEvent(event);
    alignCanvases();
}

void SSTabControl::showEvent(QShowEvent* event) {
    QTabWidget::showEvent(event);
    alignCanvases();
}

// The pages all lie in one stack; where the stack begins is where the page
// area begins inside the control.
void SSTabControl::alignCanvases() {
    if (count() == 0) return;
    const QPoint pageArea = widget(0)->parentWidget()->pos();
    for (QWidget* canvas : canvases_) canvas->setGeometry(QRect(-pageArea, size()));
}

} // namespace brimo
