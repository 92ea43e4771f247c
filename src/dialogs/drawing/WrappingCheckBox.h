#pragma once
// A check box whose caption wraps at word ends within the box's width when
// the box is high enough for two lines, centred on its height, as a caption
// longer than its box was drawn.

#include <QCheckBox>

namespace brimo {

class WrappingCheckBox : public QCheckBox {
    Q_OBJECT
public:
    using QCheckBox::QCheckBox;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& pos) const override;
};

} // namespace brimo
