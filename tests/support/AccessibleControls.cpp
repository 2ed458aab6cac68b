#include "AccessibleControls.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QWindow>

namespace ZavoTest {

namespace {

QString describe(const QWidget *widget)
{
    return QStringLiteral("%1 \"%2\" in %3")
        .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(),
             widget->parentWidget()
                 ? QLatin1String(widget->parentWidget()->metaObject()->className())
                 : QLatin1String("nothing"));
}

// The line edit of a spin box, the list of a combo box, what Qt puts into an open menu.
bool isPartOfControl(const QWidget *widget)
{
    for (const QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (qobject_cast<const QAbstractSpinBox *>(parent) ||
            qobject_cast<const QComboBox *>(parent) || qobject_cast<const QLineEdit *>(parent) ||
            parent->inherits("QHeaderView"))
            return true;
    }
    return widget->inherits("QHeaderView") || widget->inherits("QTableCornerButton") ||
           widget->objectName() == QLatin1String("qt_menubar_ext_button") ||
           qobject_cast<const QScrollBar *>(widget);
}

bool isControl(const QWidget *widget)
{
    const bool isUsable =
        widget->focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton *>(widget) ||
        qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QAbstractItemView *>(widget);
    return isUsable && !widget->focusProxy() && !widget->inherits("QMenu") &&
           !widget->inherits("QMenuBar") && !isPartOfControl(widget);
}

bool hasName(const QWidget *widget)
{
    auto *const interface = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget));
    if (!interface)
        return false;
    const bool isLabelled = !interface->relations(QAccessible::Label).isEmpty();
    return isLabelled ||
           (!interface->text(QAccessible::Name).trimmed().isEmpty() &&
            !qobject_cast<const QComboBox *>(widget)) ||
           !widget->accessibleName().isEmpty();
}

const QWidget *panelOf(const QWidget *widget)
{
    for (const QWidget *parent = widget; parent; parent = parent->parentWidget()) {
        if (qobject_cast<const QDockWidget *>(parent) || parent->isWindow())
            return parent;
    }
    return nullptr;
}

bool isTabStop(const QWidget *widget)
{
    return widget->isVisible() && widget->isEnabled() &&
           (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !widget->focusProxy() &&
           !isPartOfControl(widget);
}

// Radio buttons of a group are one stop; the arrow keys go on from there.
bool isReachedByArrows(const QWidget *widget)
{
    const auto *const button = qobject_cast<const QAbstractButton *>(widget);
    return button && button->autoExclusive() && !button->isChecked();
}

// True if a person who reads meets @p first after @p second.
bool isReadLater(const QWidget *first, const QWidget *second, const QWidget *window)
{
    if (first->isAncestorOf(second) || second->isAncestorOf(first))
        return false;
    const QRect a(first->mapTo(window, QPoint()), first->size());
    const QRect b(second->mapTo(window, QPoint()), second->size());
    if (a.top() > b.bottom())
        return true;
    const bool areInOneLine = a.top() <= b.center().y() && b.top() <= a.center().y();
    const bool isRightToLeft = window->layoutDirection() == Qt::RightToLeft;
    return areInOneLine && (isRightToLeft ? a.right() < b.left() : a.left() > b.right());
}

} // namespace

QStringList namelessControls(const QWidget *root)
{
    QStringList nameless;
    const QList<QWidget *> widgets = root->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (isControl(widget) && !hasName(widget))
            nameless.append(describe(widget));
    }
    return nameless;
}

QList<QWidget *> tabRound(QWidget *window)
{
    constexpr int manyKeys = 1000;
    QList<QWidget *> visited;
    for (int i = 0; i < manyKeys; ++i) {
        QTest::keyClick(window->windowHandle(), Qt::Key_Tab);
        QWidget *const focus = QApplication::focusWidget();
        // Within a date the key goes from part to part, within a page from link to link.
        const bool hasStops =
            qobject_cast<QAbstractSpinBox *>(focus) || qobject_cast<QTextBrowser *>(focus);
        if (hasStops && !visited.isEmpty() && focus == visited.last())
            continue;
        if (!focus || visited.contains(focus))
            break;
        visited.append(focus);
    }
    return visited;
}

QString tabOrderProblem(QWidget *window)
{
    QList<QWidget *> visited = tabRound(window);
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->window() == window && isTabStop(widget) && !isReachedByArrows(widget) &&
            !visited.contains(widget))
            return QStringLiteral("left out: ") + describe(widget);
    }
    // From where a person begins, and not from where the focus was.
    const QWidget *first = window->nextInFocusChain();
    while (first != window && !visited.contains(const_cast<QWidget *>(first)))
        first = first->nextInFocusChain();
    while (first != window && visited.constFirst() != first)
        visited.append(visited.takeFirst());
    for (int i = 0; i + 1 < visited.size(); ++i) {
        const QWidget *const here = visited.at(i);
        const QWidget *const next = visited.at(i + 1);
        // A calendar hands the focus to its page, below its bar.
        const bool isPage = here->objectName() == QLatin1String("qt_calendar_calendarview");
        if (!isPage && panelOf(here) == panelOf(next) && isReadLater(here, next, window))
            return QStringLiteral("%1 before %2").arg(describe(here), describe(next));
    }
    return {};
}

} // namespace ZavoTest
