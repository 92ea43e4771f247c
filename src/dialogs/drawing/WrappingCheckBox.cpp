#include "dialogs/drawing/WrappingCheckBox.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace brimo {

void WrappingCheckBox::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = option.text;
    option.text.clear();
    // The focus frame goes around the caption, drawn below, when there is one.
    if (!caption.isEmpty()) option.state &= ~QStyle::State_HasFocus;
    painter.drawControl(QStyle::CE_CheckBox, option);

    option.text = caption;
    const QRect textArea = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    const bool roomForTwoLines = textArea.height() >= 2 * painter.fontMetrics().lineSpacing();
    const int flags = Qt::AlignLeft | Qt::AlignVCenter | (roomForTwoLines ? Qt::TextWordWrap : 0);
    painter.drawItemText(textArea, flags, palette(), isEnabled(), caption, QPalette::WindowText);

    if (hasFocus() && !caption.isEmpty()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = painter.fontMetrics().boundingRect(textArea, flags, caption).adjusted(-1, 0, 1, 0) & textArea;
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

// The whole box answers a click, the second line of a caption too.
bool WrappingCheckBox::hitButton(const QPoint& pos) const { return rect().contains(pos); }

} // namespace brimo
