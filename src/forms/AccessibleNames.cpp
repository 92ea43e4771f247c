#include "forms/AccessibleNames.h"

#include "forms/RowTabControl.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>
#include <utility>
#include <functional>
#include <vector>

namespace brimo {

namespace {

const char* const kSpokenCaption = "brimoSpokenCaption";
const char* const kNameQualifier = "brimoNameQualifier";

// A caption as it is spoken: without the ampersand of a mnemonic, blanks
// run together, without the colon that leads to its field.
QString spoken(QString caption) {
    for (qsizetype i = 0; i < caption.size(); ++i)
        if (caption[i] == u'&') caption.remove(i, 1); // "&&" keeps one
    caption = caption.simplified();
    while (caption.endsWith(u':')) caption = caption.chopped(1).trimmed();
    return caption;
}

bool isTabControl(const QWidget* w) { return qobject_cast<const QTabWidget*>(w) || qobject_cast<const RowTabControl*>(w); }

// Every control that takes the focus, by the Tab key or not (a group's
// options other than the chosen one take it by the arrows). A row of tabs
// of the toolkit speaks as its current tab, and its scroll buttons keep the
// toolkit's names.
bool isNamed(const QWidget* w) {
    if (w->focusPolicy() == Qt::NoFocus || qobject_cast<const QTabBar*>(w->parentWidget())) return false;
    return qobject_cast<const QLineEdit*>(w) || qobject_cast<const QAbstractButton*>(w) || isTabControl(w);
}

QString captionOf(const QWidget* w) {
    if (const QVariant given = w->property(kSpokenCaption); given.isValid()) return spoken(given.toString());
    if (auto* label = qobject_cast<const QLabel*>(w)) return spoken(label->text());
    if (auto* button = qobject_cast<const QAbstractButton*>(w)) return spoken(button->text());
    return {};
}

// The other widgets that share the control's parent.
std::vector<QWidget*> siblingsOf(const QWidget* control) {
    std::vector<QWidget*> out;
    for (QObject* child : control->parentWidget()->children())
        if (auto* w = qobject_cast<QWidget*>(child); w && w != control && !w->isWindow()) out.push_back(w);
    return out;
}

// On the control's line: the middle of either lies within the other's height.
bool onLineOf(const QRect& other, const QRect& control) {
    const auto within = [](int y, const QRect& r) { return y >= r.top() && y <= r.bottom(); };
    return within(other.center().y(), control) || within(control.center().y(), other);
}

// The widget just left of the control on its line, the nearest label left of
// it (which heads its row), and the leftmost field of the line.
struct Line {
    QWidget* neighbour = nullptr;
    QLabel* rowLabel = nullptr;
    QLineEdit* firstField = nullptr;
};

Line lineOf(const QWidget* control) {
    Line line;
    const QRect own = control->geometry();
    for (QWidget* w : siblingsOf(control)) {
        const QRect r = w->geometry();
        if (!onLineOf(r, own)) continue;
        if (r.right() < own.left() && (!line.neighbour || r.right() > line.neighbour->geometry().right()))
            line.neighbour = w;
        if (auto* label = qobject_cast<QLabel*>(w);
            label && r.right() < own.left() && (!line.rowLabel || r.left() > line.rowLabel->x()))
            line.rowLabel = label;
        if (auto* field = qobject_cast<QLineEdit*>(w); field && (!line.firstField || r.left() < line.firstField->x()))
            line.firstField = field;
    }
    if (auto* field = qobject_cast<QLineEdit*>(const_cast<QWidget*>(control));
        field && (!line.firstField || own.left() < line.firstField->x()))
        line.firstField = field;
    return line;
}

// The nearest label above the control that stands over some of its width:
// the head of its column.
QLabel* headOf(const QWidget* control) {
    const QRect own = control->geometry();
    QLabel* head = nullptr;
    for (QWidget* w : siblingsOf(control)) {
        auto* label = qobject_cast<QLabel*>(w);
        const QRect r = w->geometry();
        if (!label || r.bottom() >= own.top() || r.right() < own.left() || r.left() > own.right()) continue;
        if (!head || r.bottom() > head->geometry().bottom()) head = label;
    }
    return head;
}

QString frameTitleOf(const QWidget* control) {
    for (const QWidget* w = control->parentWidget(); w && !w->isWindow(); w = w->parentWidget())
        if (auto* frame = qobject_cast<const QGroupBox*>(w)) return spoken(frame->title());
    return {};
}

// What the control says of itself, before anything tells it from others.
QString ownName(const QWidget* control) {
    // A tab control says whose tabs it holds; each tab says its caption.
    if (isTabControl(control)) return spoken(control->window()->windowTitle());
    if (QString caption = captionOf(control); !caption.isEmpty()) return caption;
    if (QLabel* head = headOf(control)) return captionOf(head);
    QWidget* neighbour = lineOf(control).neighbour;
    if (qobject_cast<QLabel*>(neighbour))
        if (QString caption = captionOf(neighbour); !caption.isEmpty()) return caption;
    // A field beside a button holds what the button fetches: its frame says
    // what that is, the button whose.
    if (qobject_cast<QPushButton*>(neighbour) && !qobject_cast<const QAbstractButton*>(control))
        if (QString caption = captionOf(neighbour); !caption.isEmpty())
            return frameTitleOf(control).isEmpty() ? caption : frameTitleOf(control) + QStringLiteral(", ") + caption;
    // A second field on a labelled line shares the line's label.
    if (QLabel* row = lineOf(control).rowLabel) return captionOf(row);
    return frameTitleOf(control);
}

struct Named {
    QWidget* control;
    QStringList parts;
    QString name() const { return parts.join(QStringLiteral(", ")); }
};

// Among controls that share a name, adds to each its qualifier, where the
// qualifiers tell some of them apart and say something new.
void qualifyShared(std::vector<Named>& controls, const std::function<QString(const Named&)>& qualifier) {
    QHash<QString, std::vector<Named*>> sharing;
    for (Named& named : controls) sharing[named.name()].push_back(&named);
    for (const std::vector<Named*>& group : std::as_const(sharing)) {
        if (group.size() < 2) continue;
        QStringList extras;
        for (const Named* named : group) extras << qualifier(*named);
        if (extras.count(extras.front()) == extras.size()) continue;
        for (std::size_t i = 0; i < group.size(); ++i) {
            const QString& extra = extras[static_cast<qsizetype>(i)];
            if (!extra.isEmpty() && !group[i]->parts.contains(extra)) group[i]->parts << extra;
        }
    }
}

} // namespace

void SetSpokenCaption(QWidget* control, const QString& caption) { control->setProperty(kSpokenCaption, caption); }

void SetNameQualifier(QWidget* control, const QString& qualifier) { control->setProperty(kNameQualifier, qualifier); }

void NameControls(QWidget* window) {
    std::vector<Named> controls;
    for (QWidget* w : window->findChildren<QWidget*>())
        if (w->window() == window && isNamed(w)) controls.push_back({w, {ownName(w)}});

    qualifyShared(controls, [](const Named& n) { return n.control->property(kNameQualifier).toString(); });
    qualifyShared(controls, [](const Named& n) {
        QLabel* row = lineOf(n.control).rowLabel;
        return row ? captionOf(row) : QString();
    });
    qualifyShared(controls, [](const Named& n) { return frameTitleOf(n.control); });
    qualifyShared(controls, [](const Named& n) {
        QLineEdit* first = lineOf(n.control).firstField;
        return first ? first->text().simplified() : QString();
    });
    // Last, the place in reading order among those that share the name.
    std::ranges::stable_sort(controls, [window](const Named& a, const Named& b) {
        const QPoint pa = a.control->mapTo(window, QPoint()), pb = b.control->mapTo(window, QPoint());
        return std::pair(pa.y(), pa.x()) < std::pair(pb.y(), pb.x());
    });
    QHash<QString, int> uses, seen;
    for (const Named& named : controls) ++uses[named.name()];
    for (Named& named : controls)
        if (const QString name = named.name(); uses.value(name) > 1) named.parts << QString::number(++seen[name]);

    for (const Named& named : controls)
        if (named.control->accessibleName() != named.name()) named.control->setAccessibleName(named.name());
}

QString AccessibleNameOf(QWidget* control) {
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
    return face ? face->text(QAccessible::Name) : QString();
}

void ShowAsFixed(QWidget* control, const QString& why) {
    control->setEnabled(false);
    control->setToolTip(why);
    control->setAccessibleDescription(why);
}

} // namespace brimo
