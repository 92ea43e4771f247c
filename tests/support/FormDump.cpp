#include "support/FormDump.h"

#include "forms/RowTabControl.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabWidget>

namespace brimo::test {

// The current tab and the captions of a tab control of either kind.
template <class Tabs> QStringList tabsOf(const Tabs* tabs) {
    QStringList out{QStringLiteral("tab=%1").arg(tabs->currentIndex())};
    for (int i = 0; i < tabs->count(); ++i) out << QLatin1Char('"') + tabs->tabText(i) + QLatin1Char('"');
    return out;
}

static QString stateOf(QWidget* w) {
    QStringList state;
    if (!w->isEnabled()) state << "disabled";
    if (auto* box = qobject_cast<QCheckBox*>(w)) state << QStringLiteral("state=%1").arg(box->checkState());
    else if (auto* option = qobject_cast<QRadioButton*>(w); option && option->isChecked()) state << "selected";
    if (auto* button = qobject_cast<QPushButton*>(w)) {
        if (button->isDefault()) state << "default";
        if (!button->icon().isNull()) state << "icon";
    }
    if (auto* field = qobject_cast<QLineEdit*>(w)) {
        if (field->alignment() & Qt::AlignHCenter) state << "centred";
        if (field->cursorPosition()) state << QStringLiteral("cursor=%1").arg(field->cursorPosition());
    }
    if (w->focusPolicy() != Qt::NoFocus) {
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w);
        state << QStringLiteral("name=\"%1\"").arg(face->text(QAccessible::Name));
        if (!face->text(QAccessible::Description).isEmpty())
            state << QStringLiteral("description=\"%1\"").arg(face->text(QAccessible::Description));
    }
    if (auto* tabs = qobject_cast<QTabWidget*>(w)) state << tabsOf(tabs);
    if (auto* tabs = qobject_cast<RowTabControl*>(w)) state << tabsOf(tabs);
    return state.join(QLatin1Char(' '));
}

static QString textOf(QWidget* w) {
    if (auto* frame = qobject_cast<QGroupBox*>(w)) return frame->title();
    if (auto* label = qobject_cast<QLabel*>(w))
        return label->pixmap().isNull() ? label->text()
                                        : QStringLiteral("picture %1x%2").arg(label->pixmap().width()).arg(label->pixmap().height());
    if (auto* button = qobject_cast<QAbstractButton*>(w)) return button->text();
    if (auto* field = qobject_cast<QLineEdit*>(w)) return field->text();
    return {};
}

// The named control that holds a widget, or the page of a tab control.
static QString placeOf(const QWidget* w, const QWidget* form) {
    for (const QWidget* parent = w->parentWidget(); parent != form; parent = parent->parentWidget()) {
        if (auto* stack = qobject_cast<const QStackedWidget*>(parent->parentWidget()))
            return QStringLiteral("page %1").arg(stack->indexOf(const_cast<QWidget*>(parent)));
        if (!parent->objectName().isEmpty() && !parent->objectName().startsWith(QLatin1String("qt_")))
            return parent->objectName();
    }
    return QStringLiteral("form");
}

QByteArray DumpForm(QWidget* form) {
    QStringList lines{QStringLiteral("window \"%1\" %2x%3 fixed=%4 minmax=%5 icon=%6")
                          .arg(form->windowTitle())
                          .arg(form->width())
                          .arg(form->height())
                          .arg(form->minimumSize() == form->maximumSize())
                          .arg(bool(form->windowFlags() & Qt::WindowMinMaxButtonsHint))
                          .arg(!form->windowIcon().isNull())};
    QList<QWidget*> named;
    for (QWidget* w : form->findChildren<QWidget*>()) {
        if (w->objectName().isEmpty() || w->objectName().startsWith(QLatin1String("qt_"))) continue;
        named.append(w);
        const QRect g = w->geometry();
        lines << QStringLiteral("%1 %2 in %3 at %4,%5 %6x%7 \"%8\" %9")
                     .arg(w->objectName(), QLatin1String(w->metaObject()->className()), placeOf(w, form))
                     .arg(g.x()).arg(g.y()).arg(g.width()).arg(g.height())
                     .arg(textOf(w), stateOf(w)).trimmed();
    }
    // The Tab key's order over the named controls that take the focus by it.
    QStringList chain;
    QWidget* w = form;
    do {
        w = w->nextInFocusChain();
        if (named.contains(w) && (w->focusPolicy() & Qt::TabFocus)) chain << w->objectName();
    } while (w != form);
    lines << QStringLiteral("tab order: ") + chain.join(QLatin1Char(' '));
    return (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8();
}

} // namespace brimo::test
