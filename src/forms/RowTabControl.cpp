#include "forms/RowTabControl.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStackedWidget>
#include <QStyleOptionFocusRect>
#include <QStyleOptionTab>
#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>

namespace brimo {

RowTabControl::RowTabControl(int tabsPerRow, QWidget* parent)
    : QWidget(parent), tabsPerRow_(tabsPerRow), stack_(new QStackedWidget(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_MacShowFocusRect);
    connect(stack_, &QStackedWidget::currentChanged, this, [this](int index) {
        update();
        emit currentChanged(index);
    });
}

int RowTabControl::addTab(QWidget* page, const QString& caption) {
    captions_.append(caption);
    const int index = stack_->addWidget(page);
    placeStack();
    update();
    return index;
}

int RowTabControl::indexOf(const QWidget* page) const { return stack_->indexOf(page); }
QWidget* RowTabControl::widget(int index) const { return stack_->widget(index); }
int RowTabControl::currentIndex() const { return stack_->currentIndex(); }

void RowTabControl::setTabText(int index, const QString& caption) {
    if (index < 0 || index >= count()) return;
    captions_[index] = caption;
    update();
}

void RowTabControl::setCurrentIndex(int index) {
    if (index >= 0 && index < count()) stack_->setCurrentIndex(index);
}

int RowTabControl::distanceFromPage(int row) const {
    const int rows = rowCount();
    const int front = currentIndex() < 0 ? 0 : rowOf(currentIndex());
    return ((front - row) % rows + rows) % rows;
}

int RowTabControl::rowHeight() const {
    QStyleOptionTab option;
    option.initFrom(this);
    option.shape = QTabBar::RoundedNorth;
    const QSize content(fontMetrics().averageCharWidth(),
                        fontMetrics().height() + style()->pixelMetric(QStyle::PM_TabBarTabVSpace, &option, this));
    return style()->sizeFromContents(QStyle::CT_TabBarTab, &option, content, this).height();
}

QRect RowTabControl::tabRect(int index) const {
    if (index < 0 || index >= count()) return {};
    const int column = index % tabsPerRow_;
    const int left = width() * column / tabsPerRow_;
    const int right = width() * (column + 1) / tabsPerRow_;
    const int line = rowCount() - 1 - distanceFromPage(rowOf(index)); // lines counted from the top
    return QRect(left, line * rowHeight(), right - left, rowHeight());
}

QRect RowTabControl::pageArea() const { return stack_->geometry(); }

// The page frame begins where the rows end, under the current tab's overlap.
void RowTabControl::placeStack() {
    const int overlap = style()->pixelMetric(QStyle::PM_TabBarBaseOverlap, nullptr, this);
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    const QRect pane(0, headerHeight() - overlap, width(), height() - headerHeight() + overlap);
    stack_->setGeometry(pane.adjusted(frame, frame, -frame, -frame));
}

QSize RowTabControl::sizeHint() const {
    QSize page = stack_->sizeHint();
    return {page.width(), page.height() + headerHeight()};
}

void RowTabControl::initTabOption(QStyleOptionTab* option, int index) const {
    option->initFrom(this);
    option->state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
    option->shape = QTabBar::RoundedNorth;
    option->rect = tabRect(index);
    option->text = captions_.at(index);
    option->row = distanceFromPage(rowOf(index));
    const int column = index % tabsPerRow_;
    const int inRow = std::min(tabsPerRow_, count() - rowOf(index) * tabsPerRow_);
    option->position = inRow == 1       ? QStyleOptionTab::OnlyOneTab
                       : column == 0    ? QStyleOptionTab::Beginning
                       : column == inRow - 1 ? QStyleOptionTab::End
                                             : QStyleOptionTab::Middle;
    const int current = currentIndex();
    option->selectedPosition = QStyleOptionTab::NotAdjacent;
    if (rowOf(current) == rowOf(index)) {
        if (current == index - 1) option->selectedPosition = QStyleOptionTab::PreviousIsSelected;
        if (current == index + 1) option->selectedPosition = QStyleOptionTab::NextIsSelected;
    }
    if (index == current) option->state |= QStyle::State_Selected;
}

void RowTabControl::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionTabWidgetFrame frame;
    frame.initFrom(this);
    frame.shape = QTabBar::RoundedNorth;
    frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    frame.rect = QRect(0, headerHeight() - style()->pixelMetric(QStyle::PM_TabBarBaseOverlap, nullptr, this),
                       width(), height());
    frame.rect.setBottom(height() - 1);
    painter.drawPrimitive(QStyle::PE_FrameTabWidget, frame);

    // The rows from the farthest to the page, the current tab last, so that
    // the nearer rows and the current tab stand over the others; as on a tab
    // bar, nothing of a tab reaches below the rows.
    painter.setClipRect(0, 0, width(), headerHeight());
    for (int distance = rowCount() - 1; distance >= 0; --distance)
        for (int index = 0; index < count(); ++index) {
            if (index == currentIndex() || distanceFromPage(rowOf(index)) != distance) continue;
            QStyleOptionTab option;
            initTabOption(&option, index);
            painter.drawControl(QStyle::CE_TabBarTab, option);
        }
    if (currentIndex() < 0) return;
    QStyleOptionTab option;
    initTabOption(&option, currentIndex());
    painter.drawControl(QStyle::CE_TabBarTab, option);
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    const int inset = 1 + style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    focus.rect = option.rect.adjusted(inset, inset, -inset, -inset);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

void RowTabControl::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
    for (int index = 0; index < count(); ++index)
        if (tabRect(index).contains(event->position().toPoint())) {
            setCurrentIndex(index);
            setFocus(Qt::MouseFocusReason);
            return;
        }
    QWidget::mousePressEvent(event);
}

void RowTabControl::keyPressEvent(QKeyEvent* event) {
    const int current = currentIndex();
    const auto around = [this, current](int step) { setCurrentIndex((current + step + count()) % count()); };
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (count() > 0 && modifiers & Qt::ControlModifier) {
        const bool shift = modifiers & Qt::ShiftModifier;
        switch (event->key()) {
        case Qt::Key_Tab: return around(shift ? -1 : +1);
        case Qt::Key_Backtab: return around(-1);
        case Qt::Key_PageDown: return around(+1);
        case Qt::Key_PageUp: return around(-1);
        default: break;
        }
    }
    if (count() > 0 && hasFocus() && modifiers == Qt::NoModifier) {
        switch (event->key()) {
        case Qt::Key_Right:
        case Qt::Key_Down: return setCurrentIndex(std::min(current + 1, count() - 1));
        case Qt::Key_Left:
        case Qt::Key_Up: return setCurrentIndex(std::max(current - 1, 0));
        case Qt::Key_Home: return setCurrentIndex(0);
        case Qt::Key_End: return setCurrentIndex(count() - 1);
        default: break;
        }
    }
    QWidget::keyPressEvent(event);
}

void RowTabControl::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeStack();
}

void RowTabControl::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) placeStack();
}

} // namespace brimo
