#include "forms/RowTabControl.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QHash>
#include <QMouseEvent>
#include <QPointer>
#include <QStackedWidget>
#include <QStyleOptionFocusRect>
#include <QStyleOptionTab>
#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>

#include <utility>

namespace brimo {

namespace {

// One tab of the control, for screen readers: it has no widget of its own.
class AccessibleRowTab : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleRowTab(RowTabControl* control, int index) : control_(control), index_(index) {}

    bool isValid() const override { return control_ && index_ < control_->count(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return control_ ? control_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(control_.data()); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text t) const override {
        return t == QAccessible::Name && isValid() ? control_->tabText(index_) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!isValid()) return {};
        const QRect local = control_->tabRect(index_);
        return {control_->mapToGlobal(local.topLeft()), local.size()};
    }
    QAccessible::Role role() const override { return QAccessible::PageTab; }
    QAccessible::State state() const override {
        QAccessible::State s;
        if (!isValid()) return s;
        const bool current = control_->currentIndex() == index_;
        s.selectable = s.focusable = true;
        s.selected = current;
        s.focused = current && control_->hasFocus();
        s.disabled = !control_->isEnabled();
        s.invisible = !control_->isVisible();
        return s;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (isValid() && name == pressAction()) control_->setCurrentIndex(index_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<RowTabControl> control_;
    int index_;
};

// The control: its tabs, then its pages.
class AccessibleRowTabControl : public QAccessibleWidget {
public:
    explicit AccessibleRowTabControl(RowTabControl* control) : QAccessibleWidget(control, QAccessible::PageTabList) {}
    ~AccessibleRowTabControl() override {
        for (QAccessible::Id id : std::as_const(tabs_)) QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return control()->count() + 1; }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index > control()->count()) return nullptr;
        if (index == control()->count()) return QAccessible::queryAccessibleInterface(pages());
        if (!tabs_.contains(index))
            tabs_.insert(index, QAccessible::registerAccessibleInterface(new AccessibleRowTab(control(), index)));
        return QAccessible::accessibleInterface(tabs_.value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        if (child && child->object() == pages()) return control()->count();
        for (auto it = tabs_.cbegin(); it != tabs_.cend(); ++it)
            if (QAccessible::accessibleInterface(it.value()) == child) return it.key();
        return -1;
    }
    QAccessibleInterface* focusChild() const override {
        return control()->hasFocus() && control()->currentIndex() >= 0 ? child(control()->currentIndex())
                                                                       : QAccessibleWidget::focusChild();
    }

private:
    RowTabControl* control() const { return static_cast<RowTabControl*>(widget()); }
    QWidget* pages() const { return control()->findChild<QStackedWidget*>(QString(), Qt::FindDirectChildrenOnly); }
    mutable QHash<int, QAccessible::Id> tabs_;
};

} // namespace

RowTabControl::RowTabControl(int tabsPerRow, QWidget* parent)
    : QWidget(parent), tabsPerRow_(tabsPerRow), stack_(new QStackedWidget(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_MacShowFocusRect);
    connect(stack_, &QStackedWidget::currentChanged, this, [this](int index) {
        update();
        announceCurrentTab();
        emit currentChanged(index);
    });
    static const bool accessible = (QAccessible::installFactory([](const QString& key, QObject* object) {
        return key == QLatin1String("brimo::RowTabControl")
                   ? static_cast<QAccessibleInterface*>(new AccessibleRowTabControl(static_cast<RowTabControl*>(object)))
                   : nullptr;
    }), true);
    Q_UNUSED(accessible);
}

// The focus on the control is the focus on its current tab.
void RowTabControl::announceCurrentTab() {
    if (!hasFocus() || currentIndex() < 0 || !QAccessible::isActive()) return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(currentIndex());
    QAccessible::updateAccessibility(&event);
}

void RowTabControl::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    announceCurrentTab();
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
