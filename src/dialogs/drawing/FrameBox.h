#pragma once
// A frame drawn as the form's frames are: an etched rectangle whose top
// line runs through the middle of the caption, the caption standing on it.
// Its controls are placed from the frame's outer corner.

#include <QGroupBox>

namespace brimo {

class FrameBox : public QGroupBox {
    Q_OBJECT
public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace brimo
