#include "dialogs/drawing/SSTabControl.h"

namespace brimo {

SSTabControl::SSTabControl(QWidget* parent) : RowTabControl(3, parent) {}

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
    RowTabControl::resizeEvent(event);
    alignCanvases();
}

void SSTabControl::showEvent(QShowEvent* event) {
    RowTabControl::showEvent(event);
    alignCanvases();
}

void SSTabControl::alignCanvases() {
    for (QWidget* canvas : canvases_) canvas->setGeometry(QRect(-pageArea().topLeft(), size()));
}

} // namespace brimo
