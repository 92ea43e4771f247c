#pragma once
// A transparent layer over the whole of a frame that paints the frame's
// sketch below the frame's controls. It takes no mouse input and no focus.

#include "dialogs/slope/SlopeDiagram.h"

#include <QWidget>

namespace brimo {

class SketchLayer : public QWidget {
    Q_OBJECT
public:
    SketchLayer(const FrameSketch& sketch, QWidget* frame);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const FrameSketch& sketch_;
    std::vector<SketchLine> mesh_;
};

} // namespace brimo
