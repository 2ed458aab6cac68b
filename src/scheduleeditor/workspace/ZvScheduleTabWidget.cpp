#include "workspace/ZvScheduleTabWidget.h"

#include "timetable/ZvScheduleWorkingArea.h"
#include "workspace/ZvScheduleRenameTabWidget.h"
#include "workspace/ZvTabBar.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTimer>
#include <QToolTip>

namespace Zavo {

ZvScheduleTabWidget::ZvScheduleTabWidget(QWidget *parent)
    : QTabWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    auto *bar = new ZvTabBar(this);
    bar->installEventFilter(this);
    bar->setMouseTracking(true);
    setTabBar(bar);
    // clang-format off
    connect(this, SIGNAL(requestEditTabName()),
            this, SLOT(editTabNameRequested()), Qt::QueuedConnection);
    connect(this, SIGNAL(requestCorrectFirstTab(int,int)),
            this, SLOT(correctFirstTab(int,int)), Qt::QueuedConnection);
    // clang-format on
}

QRect ZvScheduleTabWidget::currentTabRect() const
{
    return tabBar()->tabRect(tabBar()->currentIndex());
}

void ZvScheduleTabWidget::moveTab(int from, int to)
{
    tabBar()->moveTab(from, to);
}

bool ZvScheduleTabWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != tabBar())
        return QTabWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonDblClick:
        Q_EMIT requestEditTabName();
        break;
    case QEvent::KeyPress:
        if (static_cast<const QKeyEvent *>(event)->key() == Qt::Key_F2)
            Q_EMIT requestEditTabName();
        break;
    case QEvent::MouseButtonPress:
        pressTabBar(*static_cast<const QMouseEvent *>(event));
        break;
    case QEvent::MouseMove:
        if (!watchDrag(*static_cast<const QMouseEvent *>(event))) {
            event->accept();
            QTimer::singleShot(0, this, SLOT(showNotTabMovedToolTip()));
            return true;
        }
        break;
    case QEvent::MouseButtonRelease:
        if (static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton)
            finishDrag();
        break;
    case QEvent::ContextMenu:
    case QEvent::Leave:
    case QEvent::WindowDeactivate:
        m_releaseMayBeLost = true;
        break;
    default:
        break;
    }
    return QTabWidget::eventFilter(watched, event);
}

// Only the left button drags; another one that is clicked meanwhile must not end the watch over it.
void ZvScheduleTabWidget::pressTabBar(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton)
        return;
    m_firstTabRect = tabBar()->tabRect(0);
    m_pressedIndex = tabBar()->tabAt(event.pos());
    m_dragOffset = tabBar()->tabRect(m_pressedIndex).left() - event.x();
    m_pressed = true;
    m_releaseMayBeLost = false;
}

// False if the bar must not see the move. A menu or a window that opened in the drag takes its
// release; by themselves the buttons of a move say nothing, since not every source tells them.
bool ZvScheduleTabWidget::watchDrag(const QMouseEvent &event)
{
    if (m_pressed && m_releaseMayBeLost && event.buttons() == Qt::NoButton)
        finishDrag();
    if (!m_pressed)
        return true;
    if (!mayDragTo(event))
        return false;
    stopBesideFirstTab(event);
    return true;
}

// The bar takes a tab that is flung over several others past the one under its edge, too.
void ZvScheduleTabWidget::stopBesideFirstTab(const QMouseEvent &event)
{
    const int left = event.x() + m_dragOffset;
    if (currentIndex() <= 1 || left > m_firstTabRect.right())
        return;
    const QPoint beside(m_firstTabRect.right() + 1 - m_dragOffset, event.y());
    QMouseEvent step(QEvent::MouseMove, beside, event.button(), event.buttons(), event.modifiers());
    QCoreApplication::sendEvent(tabBar(), &step);
}

// The dragged tab stops when its left edge reaches the middle of the first tab.
bool ZvScheduleTabWidget::mayDragTo(const QMouseEvent &event) const
{
    const int left = event.x() + m_dragOffset;
    return m_pressedIndex != 0 && left > m_firstTabRect.center().x() + 1;
}

// The bar has moved the current tab along with the drag.
void ZvScheduleTabWidget::finishDrag()
{
    onTabMoved(m_pressedIndex, currentIndex());
    m_pressedIndex = 0;
    m_pressed = false;
    m_dragOffset = 0;
}

void ZvScheduleTabWidget::onTabMoved(int from, int to)
{
    if (m_movingTabs)
        return;
    m_movingTabs = true;
    if (from != to) {
        const int step = from < to ? 1 : -1;
        for (int i = from; i != to + step; i += step) {
            if (auto *area = qobject_cast<ZvScheduleWorkingArea *>(widget(i)))
                area->setTabIndex(i);
        }
        Q_EMIT tabMoved(from, to);
    }
    m_movingTabs = false;
}

void ZvScheduleTabWidget::showNotTabMovedToolTip()
{
    const QString text =
        tr("<span style=\"font-weight:bold;\">You can not move the first tab.</span>");
    QToolTip::showText(mapToGlobal(rect().topLeft()), text, this);
}

void ZvScheduleTabWidget::correctFirstTab(int curIndex, int orgIndex)
{
    if (curIndex == orgIndex)
        return;
    for (int i = curIndex; i < orgIndex; ++i)
        moveTab(i, i + 1);
    for (int i = curIndex; i > orgIndex && i >= 1; --i)
        moveTab(i, i - 1);
    showNotTabMovedToolTip();
}

void ZvScheduleTabWidget::editTabNameRequested()
{
    const QPointer<ZvScheduleTabWidget> self(this);
    finishEditing();
    // The message about a refused name has opened the editor again, or this has gone behind it.
    if (!self || (m_editor && m_editor->isVisible()))
        return;
    const int index = tabBar()->currentIndex();
    if (index < 0)
        return;
    const QRect rect = tabBar()->tabRect(index);
    const QString title = tabBar()->tabText(index);
    auto *editor = new ZvScheduleRenameTabWidget(this);
    editor->move(rect.topLeft());
    editor->resize(rect.size());
    editor->setInitialText(title);
    editor->setToolTip(title);
    editor->setAccessibleName(tr("Name of the channel"));
    // clang-format off
    connect(editor, SIGNAL(editingFinished(QObject*)), this, SLOT(editingTabNameFinished(QObject*)));
    // clang-format on
    editor->show();
    editor->selectAll();
    editor->setFocus();
    // Not before: the focus has ended an editing that was under way.
    m_editor = editor;
    m_editedPage = widget(index);
}

void ZvScheduleTabWidget::finishEditing()
{
    if (m_editor && m_editor->isVisible())
        Q_EMIT m_editor->QLineEdit::editingFinished();
}

// A wheel over the bar or a command may have made another tab current meanwhile.
int ZvScheduleTabWidget::editedIndex() const
{
    return m_editedPage ? indexOf(m_editedPage) : -1;
}

void ZvScheduleTabWidget::editingTabNameFinished(QObject *object)
{
    if (!object || object->metaObject() != &ZvScheduleRenameTabWidget::staticMetaObject)
        return;
    auto *editor = static_cast<ZvScheduleRenameTabWidget *>(object);
    const QString text = editor->text();
    const QString initialText = editor->initialText();
    editor->hide();
    editor->deleteLater();
    const int index = editor == m_editor ? editedIndex() : currentIndex();
    if (index >= 0 && !text.isEmpty() && text != initialText)
        Q_EMIT requestChangeTabName(index, text);
}

} // namespace Zavo
