#pragma once
// Window kit (src/forms): what every form uses and nothing that knows a
// particular form; it sees the model and the platform.
//
// A tab control whose tabs stand in several rows of a fixed number of tabs,
// as the platform's tab control with several rows: the row of the current
// tab stands next to the page, so that choosing a tab of another row brings
// that row forward and the others move away from the page, in turn. The tabs
// of a row share its width.
//
// Keyboard: Ctrl+Tab and Ctrl+PgDown go to the next tab, Ctrl+Shift+Tab and
// Ctrl+PgUp to the previous one, round the end, from anywhere in the control;
// on the focused tabs the arrows Right and Down, Left and Up, and Home and
// End move the current tab, without going round.
//
// Screen readers find it as a list of tabs, each tab named by its caption,
// the current one selected, followed by the current page.

#include <QStringList>
#include <QWidget>

class QStackedWidget;
class QStyleOptionTab;

namespace brimo {

class RowTabControl : public QWidget {
    Q_OBJECT
public:
    RowTabControl(int tabsPerRow, QWidget* parent);

    // Adds a tab showing `page`; returns its index.
    int addTab(QWidget* page, const QString& caption);
    int count() const { return static_cast<int>(captions_.size()); }
    int indexOf(const QWidget* page) const;
    QWidget* widget(int index) const;
    QString tabText(int index) const { return captions_.value(index); }
    void setTabText(int index, const QString& caption);
    int currentIndex() const;
    void setCurrentIndex(int index);

    // Where the pages stand, in the control's own coordinates.
    QRect pageArea() const;
    // Where the tab's header stands now, in the control's own coordinates.
    QRect tabRect(int index) const;
    // The row of tabs that holds the tab, 0 for the row of the first tabs.
    int rowOf(int index) const { return index / tabsPerRow_; }
    int rowCount() const { return (count() + tabsPerRow_ - 1) / tabsPerRow_; }
    // The row's place counted from the page: 0 next to it.
    int distanceFromPage(int row) const;

    QSize sizeHint() const override;

signals:
    void currentChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    int rowHeight() const;
    int headerHeight() const { return rowCount() * rowHeight(); }
    void initTabOption(QStyleOptionTab* option, int index) const;
    void placeStack();
    void announceCurrentTab();

    const int tabsPerRow_;
    QStackedWidget* stack_;
    QStringList captions_;
};

} // namespace brimo
