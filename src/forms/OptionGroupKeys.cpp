#include "forms/OptionGroupKeys.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QRadioButton>
#include <QSet>

#include <algorithm>

#include <deque>
#include <vector>

namespace brimo {

namespace {

using Group = std::vector<QRadioButton*>;

class OptionGroupKeys : public QObject {
public:
    explicit OptionGroupKeys(QWidget* form) : QObject(form) {
        setObjectName(kName);
        takeIn(form);
    }
    static constexpr QLatin1StringView kName{"OptionGroupKeys"};

    // Takes in the option buttons of the form that it does not know yet.
    void takeIn(QWidget* form) {
        // The tab chain gives the order of the buttons within each frame.
        std::vector<Group*> grown;
        for (QWidget* w = form->nextInFocusChain(); w && w != form; w = w->nextInFocusChain()) {
            auto* button = qobject_cast<QRadioButton*>(w);
            if (!button || !button->autoExclusive() || known_.contains(button)) continue;
            known_.insert(button);
            Group& group = groupOf(button->parentWidget());
            group.push_back(button);
            button->installEventFilter(this);
            connect(button, &QAbstractButton::toggled, this, [this, &group] { keepTabStop(group); });
            if (std::ranges::find(grown, &group) == grown.end()) grown.push_back(&group);
        }
        for (Group* group : grown) keepTabStop(*group);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* button = static_cast<QRadioButton*>(watched);
        Group& group = groupOf(button->parentWidget());
        switch (event->type()) {
        case QEvent::KeyPress: {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (key->modifiers() & ~Qt::KeypadModifier) return false;
            if (key->key() == Qt::Key_Down || key->key() == Qt::Key_Right) return move(group, button, +1);
            if (key->key() == Qt::Key_Up || key->key() == Qt::Key_Left) return move(group, button, -1);
            return false;
        }
        case QEvent::FocusOut:
        case QEvent::EnabledChange: keepTabStop(group); return false;
        default: return false;
        }
    }

private:
    Group& groupOf(QWidget* frame) {
        for (std::size_t i = 0; i < frames_.size(); ++i)
            if (frames_[i] == frame) return groups_[i];
        frames_.push_back(frame);
        return groups_.emplace_back();
    }

    static bool canTakeFocus(const QRadioButton* button) { return button->isEnabled() && !button->isHidden(); }

    // The button that Tab and Shift+Tab enter the group on.
    static QRadioButton* entry(const Group& group) {
        for (QRadioButton* button : group)
            if (button->isChecked() && canTakeFocus(button)) return button;
        for (QRadioButton* button : group)
            if (canTakeFocus(button)) return button;
        return nullptr;
    }

    // Only the entry button is a tab stop. While the focus is inside the
    // group the toolkit keeps the focused button the one stop, so that Tab
    // leaves the group; the entry is settled again once the focus has left.
    static void keepTabStop(const Group& group) {
        QWidget* focused = QApplication::focusWidget();
        for (QRadioButton* button : group)
            if (button == focused) return;
        QRadioButton* stop = entry(group);
        for (QRadioButton* button : group)
            button->setFocusPolicy(button == stop ? Qt::StrongFocus : Qt::ClickFocus);
    }

    static bool move(const Group& group, QRadioButton* from, int step) {
        const auto size = static_cast<int>(group.size());
        int at = 0;
        while (at < size && group[static_cast<std::size_t>(at)] != from) ++at;
        for (int k = 1; k < size; ++k) {
            QRadioButton* next = group[static_cast<std::size_t>(((at + step * k) % size + size) % size)];
            if (!canTakeFocus(next)) continue;
            next->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            if (!next->isChecked()) next->click();
            break;
        }
        return true;
    }

    QSet<QRadioButton*> known_;
    std::vector<QWidget*> frames_;
    std::deque<Group> groups_; // a group stays in place: its handlers hold it
};

} // namespace

void UseOptionGroupKeys(QWidget* form) {
    if (auto* keys = form->findChild<QObject*>(OptionGroupKeys::kName, Qt::FindDirectChildrenOnly))
        static_cast<OptionGroupKeys*>(keys)->takeIn(form);
    else
        new OptionGroupKeys(form);
}

} // namespace brimo
