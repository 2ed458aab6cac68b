#include "Monkey.h"

#include "KeyStroke.h"

#include "HostWindow.h"

#include "ZvSystemInfo.h"
#include "domain/ActionNames.h"
#include "editor/ZvScheduleEditor.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"
#include "timetable/ZvTimeTableView.h"
#include "workspace/ZvScheduleTabWidget.h"

#include "DragGesture.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QMenu>
#include <QTabBar>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest>

using namespace Zavo;

namespace ZavoTest {

namespace {

QList<QAction *> actionsOf(const QList<QMenu *> &menus)
{
    QList<QAction *> all;
    for (const QMenu *menu : menus) {
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            if (action->menu())
                all.append(actionsOf({action->menu()}));
            else if (!action->isSeparator())
                all.append(action);
        }
    }
    return all;
}

/// What a drag over @p place of @p widget comes to: something may lie over it.
QWidget *dropTargetAt(const QWidget *widget, const QPoint &place)
{
    QWidget *window = widget->window();
    QWidget *target = window->childAt(widget->mapTo(window, place));
    while (target && !target->acceptDrops())
        target = target->isWindow() ? nullptr : target->parentWidget();
    return target ? target : window;
}

} // namespace

void Monkey::act()
{
    const int what = m_choice.below(100);
    if (what < 28)
        useTable();
    else if (what < 46)
        useMouse();
    else if (what < 59)
        useKeys();
    else if (what < 62)
        turnWheel();
    else if (what < 64)
        type();
    else if (what < 69)
        useTabs();
    else if (what < 82)
        triggerAction();
    else if (what < 94)
        dragStages();
    else if (what < 97)
        fillClipboard();
    else
        changeSurroundings();
}

void Monkey::useMouse()
{
    QWidget *widget = target(topLevel());
    const QPoint place = m_choice.pointIn(widget->rect());
    if (m_choice.chance(25))
        drag(widget, place);
    else if (m_choice.chance(10))
        moveMouse(widget, place);
    else
        click(widget, place);
}

void Monkey::turnWheel()
{
    QWidget *widget = target(topLevel());
    const QPoint place = m_choice.pointIn(widget->rect());
    const QPoint delta(0, 120 * m_choice.between(-3, 3));
    const Qt::KeyboardModifiers modifiers = someModifiers();
    note(QStringLiteral("wheel %1 over %2").arg(delta.y()).arg(describe(widget)));
    QWheelEvent event(place, widget->mapToGlobal(place), QPoint(), delta, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void Monkey::useKeys()
{
    static const QList<Qt::Key> keys = {
        Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right, Qt::Key_Home,
        Qt::Key_End,       Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Tab,   Qt::Key_Backtab,
        Qt::Key_Return,    Qt::Key_Enter,  Qt::Key_Escape,   Qt::Key_Space, Qt::Key_Delete,
        Qt::Key_Backspace, Qt::Key_F2,     Qt::Key_Menu,     Qt::Key_A,     Qt::Key_C,
        Qt::Key_D,         Qt::Key_S,      Qt::Key_V,        Qt::Key_X,     Qt::Key_Y,
        Qt::Key_Z,         Qt::Key_Plus,   Qt::Key_Minus,    Qt::Key_F1,    Qt::Key_1};
    QWidget *window = QApplication::activeModalWidget();
    if (window && reachesBeyondData(window))
        return;
    if (!window)
        window = m_choice.chance(85) ? m_house.window() : topLevel();
    if (!window || !window->windowHandle())
        return;
    if (m_choice.chance(20)) {
        QWidget *widget = target(window);
        if (widget->focusPolicy() != Qt::NoFocus)
            widget->setFocus(Qt::OtherFocusReason);
    }
    const Qt::Key key = m_choice.from(keys);
    const Qt::KeyboardModifiers modifiers = someModifiers();
    note(QStringLiteral("key %1 with %2").arg(key, 0, 16).arg(modifiers, 0, 16));
    strike(window->windowHandle(), key, modifiers);
}

void Monkey::type()
{
    const QWidget *window = topLevel();
    if (!window || !window->windowHandle())
        return;
    const QString text = m_clipboard.text();
    note(QStringLiteral("type ") + text.left(20));
    const QPointer<QWindow> live(window->windowHandle());
    for (const QChar character : text.left(40)) {
        // Of a popup that goes with the press nothing is left to release the key in.
        if (live)
            QTest::sendKeyEvent(QTest::Press, live, Qt::Key_unknown, character, Qt::NoModifier);
        if (live)
            QTest::sendKeyEvent(QTest::Release, live, Qt::Key_unknown, character, Qt::NoModifier);
    }
    if (live && m_choice.chance(50))
        strike(live, Qt::Key_Return);
}

// A place of the table: a band, the edge of one, or anywhere.
QPoint Monkey::tablePosition()
{
    ZvTimeTableView *view = m_house.view();
    const ZvTimeTableTimeZoneItem *zone = MonkeyHouse::timeZone(m_house.currentArea());
    const QList<ZvTimeTableTimeItem *> items =
        zone ? zone->timeItems() : QList<ZvTimeTableTimeItem *>();
    if (items.isEmpty() || m_choice.chance(20))
        return m_choice.pointIn(view->viewport()->rect());
    ZvTimeTableTimeItem *item = m_choice.from(items);
    if (m_choice.chance(60))
        view->ensureVisible(item);
    const QRectF rect = item->sceneBoundingRect();
    const QList<double> heights = {rect.top(), rect.top() + 2, rect.center().y(), rect.bottom() - 2,
                                   rect.bottom() + 1};
    return view->mapFromScene(rect.center().x() + m_choice.between(-60, 60),
                              m_choice.from(heights));
}

void Monkey::useTable()
{
    const ZvTimeTableView *view = m_house.view();
    if (!view || !view->isVisible())
        return;
    if (!m_house.currentArea()->isCurrentScheduleEnabled() && m_choice.chance(50)) {
        note(QStringLiteral("create the schedule"));
        m_house.editor()->getAction(QLatin1String(ActionName::CreateSchedule))->trigger();
        return;
    }
    const QPoint place = tablePosition();
    if (m_choice.chance(60))
        drag(view->viewport(), place);
    else
        click(view->viewport(), place);
}

void Monkey::useTabs()
{
    ZvScheduleTabWidget *tabs = m_house.tabs();
    if (!tabs || tabs->count() == 0 || !tabs->isVisible())
        return;
    QTabBar *bar = tabs->tabBar();
    const int index = m_choice.below(tabs->count());
    const QPoint place = bar->tabRect(index).center();
    if (!bar->rect().contains(place))
        tabs->setCurrentIndex(index);
    else if (m_choice.chance(40))
        drag(bar, place);
    else
        click(bar, place);
}

void Monkey::triggerAction()
{
    if (!m_house.editor())
        return;
    const QList<QAction *> actions = actionsOf(m_house.editor()->menu());
    QAction *action = actions.isEmpty() ? nullptr : m_choice.from(actions);
    if (m_choice.chance(35)) {
        const char *name = m_choice.chance(60) ? ActionName::Undo : ActionName::Redo;
        action = m_house.editor()->getAction(QLatin1String(name));
    }
    if (!action || !action->isEnabled() || QApplication::activeModalWidget())
        return;
    static const QStringList rare = {QLatin1String(ActionName::DeleteChannelsSettings),
                                     QLatin1String(ActionName::DeleteChannel),
                                     QLatin1String(ActionName::DeleteSchedule), QString()};
    if (rare.contains(action->objectName()) && m_choice.chance(85))
        return;
    note(QStringLiteral("action ") + action->text());
    action->trigger();
    QCoreApplication::processEvents();
}

void Monkey::dragStages()
{
    if (!m_house.window() || QApplication::activeModalWidget())
        return;
    const QStringList stages = m_house.stageFiles();
    auto data = m_choice.chance(70) ? m_clipboard.files(stages) : m_clipboard.payload(stages);
    ZvTimeTableView *view = m_house.view();
    QWidget *widget = view && m_choice.chance(70) ? view->viewport() : target(m_house.window());
    if (!widget->acceptDrops())
        return;
    const bool onTable = view && widget == view->viewport();
    QPoint place = onTable ? tablePosition() : m_choice.pointIn(widget->rect());
    if (dropTargetAt(widget, place) != widget)
        return;
    note(QStringLiteral("drag stages to %1,%2 of %3")
             .arg(place.x())
             .arg(place.y())
             .arg(describe(widget)));
    DragGesture gesture(std::move(data));
    if (gesture.enter(widget, place)) {
        place += {m_choice.between(-9, 9), m_choice.between(-99, 99)};
        gesture.move(place);
        if (m_choice.chance(80))
            gesture.drop();
    }
    gesture.leave();
    QCoreApplication::processEvents();
}

void Monkey::fillClipboard()
{
    note(QStringLiteral("clipboard"));
    QGuiApplication::clipboard()->setMimeData(m_clipboard.payload(m_house.stageFiles()).release());
}

void Monkey::changeSurroundings()
{
    static const QList<double> ratios = {1.0, 1.0, 1.25, 1.5, 2.0};
    const int what = m_choice.below(6);
    note(QStringLiteral("surroundings %1").arg(what));
    const auto docks = m_house.window()->findChildren<QDockWidget *>();
    QDockWidget *dock = docks.isEmpty() ? nullptr : m_choice.from(docks);
    switch (what) {
    case 0:
        ZvSystemInfo::setDpiRatioOverride(m_choice.from(ratios));
        m_house.window()->resize(m_house.window()->size() + QSize(1, 1));
        break;
    case 1:
        m_house.window()->resize(m_choice.between(200, 1800), m_choice.between(150, 1200));
        break;
    case 2:
        if (dock)
            dock->setFloating(!dock->isFloating());
        break;
    case 3:
        if (dock)
            dock->close();
        break;
    case 4:
        if (m_choice.chance(20))
            m_house.window()->close();
        break;
    default:
        QTest::qWait(m_choice.between(1, 20));
    }
    QCoreApplication::processEvents();
}

} // namespace ZavoTest
