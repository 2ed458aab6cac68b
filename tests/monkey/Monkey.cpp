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

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDockWidget>
#include <QMenu>
#include <QTabBar>
#include <QUndoStack>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest>

#include <typeinfo>

using namespace Zavo;

namespace ZavoTest {

namespace {

constexpr int AnswerInterval = 2;  // ms
constexpr int ForcedAfter = 6;     // events in one dialog
constexpr int DiskCheckEvery = 20; // events
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

// A path that is typed or chosen there may lie outside of the data folder.
bool reachesBeyondData(const QWidget *widget)
{
    return widget->inherits("QFileDialog") || widget->inherits("Zavo::ExportDialog") ||
           widget->inherits("Zavo::UploadDialog") || widget->inherits("Zavo::UploadTargetDialog") ||
           widget->inherits("Zavo::ConfigurationDialog");
}

QString nameOf(const QWidget *widget)
{
    return QStringLiteral("%1 %2").arg(QLatin1String(widget->metaObject()->className()),
                                       widget->objectName());
}

QString commandName(const QUndoStack *stack, int index)
{
    const QUndoCommand &command = *stack->command(index);
    return QStringLiteral("%1 %2").arg(index).arg(QLatin1String(typeid(command).name()));
}

} // namespace

Monkey::Monkey(unsigned seed, int eventCount, std::FILE *log)
    : m_choice(seed)
    , m_checks(&m_house)
    , m_clipboard(&m_choice)
    , m_eventsLeft(eventCount)
    , m_log(log)
{
}

void Monkey::start()
{
    QTimer::singleShot(0, this, SLOT(step()));
    QTimer::singleShot(AnswerInterval, this, SLOT(answer()));
}

void Monkey::note(const QString &what)
{
    if (!m_log)
        return;
    std::fprintf(m_log, "%d %s\n", m_events, qPrintable(what));
    std::fflush(m_log);
}

void Monkey::fail(const QStringList &wrong)
{
    m_hasFailed = true;
    for (const QString &line : wrong) {
        note(QStringLiteral("WRONG ") + line);
        std::fprintf(stderr, "event %d: %s\n", m_events, qPrintable(line));
    }
}

void Monkey::check()
{
    QStringList wrong;
    if (const ZvScheduleWorkingArea *area = m_house.currentArea()) {
        const QString place = MonkeyChecks::placeInHistory(area);
        const QString table = MonkeyChecks::tableOf(area);
        if (place == m_lastPlace && table != m_lastTable) {
            wrong.append(QStringLiteral("changed without a step of undo:"));
            wrong.append(MonkeyChecks::differences(m_lastTable, table));
        }
        m_lastTable = table;
        if (place != m_lastPlace) {
            ++m_changeCount;
            note(QStringLiteral("history of %1: %2 of %3, %4 bands")
                     .arg(area->channelName())
                     .arg(area->undoStack()->index())
                     .arg(area->undoStack()->count())
                     .arg(area->currentTimes().size()));
        }
        m_lastPlace = place;
    }
    if (!m_house.isClosed())
        wrong = m_checks.wrongInWindow();
    if (m_events % DiskCheckEvery == 0 || m_house.isClosed())
        wrong.append(m_checks.wrongOnDisk());
    if (!wrong.isEmpty())
        fail(wrong);
}

void Monkey::step()
{
    if (m_house.isClosed()) {
        note(QStringLiteral("start"));
        ++m_startCount;
        if (!m_house.open())
            fail({QStringLiteral("the editor does not start")});
    }
    m_isActing = true;
    if (m_eventsLeft > 0) {
        --m_eventsLeft;
        ++m_events;
        act();
    } else if (m_house.areas().isEmpty()) {
        QTest::qWait(1);
    } else {
        undoAndRedoAll();
        m_house.close();
        std::printf("%d events, %d starts, %d steps of the histories, %d undone and redone\n",
                    m_events, m_startCount, m_changeCount, m_undoneCount);
        Q_EMIT finished();
        return;
    }
    m_isActing = false;
    check();
    if (m_hasFailed) {
        Q_EMIT finished();
        return;
    }
    QTimer::singleShot(0, this, SLOT(step()));
}

// While an event is acted upon, whatever is modal or a popup runs a loop of its own, in which this
// is called. Each call arms the next, since one timer does not fire within itself.
void Monkey::answer()
{
    QTimer::singleShot(AnswerInterval, this, SLOT(answer()));
    if (!m_isActing)
        return;
    QWidget *popup = QApplication::activePopupWidget();
    QWidget *asked = popup ? popup : QApplication::activeModalWidget();
    if (!asked)
        return;
    if (asked != m_asked) {
        m_asked = asked;
        m_playedWithAsked = 0;
    }
    ++m_playedWithAsked;
    if (m_playedWithAsked <= m_choice.below(ForcedAfter) && !reachesBeyondData(asked)) {
        useDialog(asked);
        return;
    }
    note(QStringLiteral("leave ") + nameOf(asked));
    if (auto *dialog = qobject_cast<QDialog *>(asked))
        dialog->reject();
    else
        asked->close();
}

void Monkey::useDialog(QWidget *dialog)
{
    static const QList<Qt::Key> keys = {Qt::Key_Return, Qt::Key_Down,  Qt::Key_Up,
                                        Qt::Key_Space,  Qt::Key_Tab,   Qt::Key_Delete,
                                        Qt::Key_Home,   Qt::Key_Escape};
    QWindow *window = dialog->windowHandle();
    if (window && m_choice.chance(35)) {
        const Qt::Key key = m_choice.from(keys);
        note(QStringLiteral("key %1 in %2").arg(key, 0, 16).arg(nameOf(dialog)));
        strike(window, key);
    } else if (m_choice.chance(20)) {
        type();
    } else {
        QWidget *widget = target(dialog);
        click(widget, m_choice.pointIn(widget->rect()));
    }
}

QWidget *Monkey::topLevel()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    QWidget *modal = QApplication::activeModalWidget();
    if (modal && !reachesBeyondData(modal))
        return modal;
    if (m_choice.chance(70))
        return m_house.window();
    QWidgetList shown;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *widget : all) {
        if (widget->isVisible() && reachesBeyondData(widget))
            widget->close();
        else if (widget->isVisible() && widget->windowHandle())
            shown.append(widget);
    }
    return shown.isEmpty() ? m_house.window() : m_choice.from(shown);
}

QWidget *Monkey::target(QWidget *topLevel)
{
    // Mostly what takes part in the input, less often the panes and labels around it.
    const bool isUseful = m_choice.chance(75);
    QWidgetList visible{topLevel};
    const QWidgetList children = topLevel->findChildren<QWidget *>();
    for (QWidget *child : children) {
        const bool takesInput = child->focusPolicy() != Qt::NoFocus || child->acceptDrops() ||
                                qobject_cast<QAbstractScrollArea *>(child->parentWidget());
        if (child->isVisible() && child->window() == topLevel && (takesInput || !isUseful))
            visible.append(child);
    }
    return m_choice.from(visible);
}

Qt::KeyboardModifiers Monkey::someModifiers()
{
    static const QList<Qt::KeyboardModifiers> all = {
        Qt::NoModifier,      Qt::NoModifier,    Qt::NoModifier,
        Qt::ControlModifier, Qt::ShiftModifier, Qt::ControlModifier | Qt::ShiftModifier,
        Qt::AltModifier};
    return m_choice.from(all);
}

void Monkey::moveMouse(QWidget *widget, const QPoint &position)
{
    if (QWindow *window = widget->window()->windowHandle())
        QTest::mouseMove(window, widget->mapTo(widget->window(), position));
}

void Monkey::press(QWidget *widget, const QPoint &position, bool down)
{
    QWindow *window = widget->window()->windowHandle();
    if (!window)
        return;
    const QPoint place = widget->mapTo(widget->window(), position);
    if (down)
        QTest::mousePress(window, m_button, m_modifiers, place);
    else
        QTest::mouseRelease(window, m_button, m_modifiers, place);
}

void Monkey::click(QWidget *widget, const QPoint &position)
{
    m_button = m_choice.chance(88) ? Qt::LeftButton : Qt::RightButton;
    m_modifiers = someModifiers();
    note(QStringLiteral("click %1 at %2,%3 of %4")
             .arg(m_button)
             .arg(position.x())
             .arg(position.y())
             .arg(nameOf(widget)));
    const QPointer<QWidget> live(widget);
    moveMouse(widget, position);
    if (live)
        press(widget, position, true);
    if (live)
        press(widget, position, false);
    else if (m_house.window())
        press(m_house.window(), position, false);
    if (live && m_choice.chance(15)) {
        press(widget, position, true);
        if (live)
            press(widget, position, false);
    }
}

void Monkey::drag(QWidget *widget, const QPoint &from)
{
    const QPointer<QWidget> live(widget);
    m_button = m_choice.chance(95) ? Qt::LeftButton : Qt::MiddleButton;
    m_modifiers = someModifiers();
    note(QStringLiteral("drag from %1,%2 of %3").arg(from.x()).arg(from.y()).arg(nameOf(widget)));
    moveMouse(widget, from);
    if (live)
        press(widget, from, true);
    QPoint place = from;
    const int moves = m_choice.between(1, 6);
    for (int i = 0; i < moves && live; ++i) {
        place += {m_choice.between(-60, 60), m_choice.between(-120, 120)};
        moveMouse(widget, place);
    }
    if (live && m_choice.chance(5))
        useKeys();
    if (live)
        press(widget, place, false);
    else if (m_house.window())
        press(m_house.window(), QPoint(1, 1), false);
}

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
    note(QStringLiteral("wheel %1 over %2").arg(delta.y()).arg(nameOf(widget)));
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
        if (live)
            QTest::sendKeyEvent(QTest::Click, live, Qt::Key_unknown, character, Qt::NoModifier);
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
    note(QStringLiteral("drag stages to %1,%2 of %3")
             .arg(place.x())
             .arg(place.y())
             .arg(nameOf(widget)));
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

void Monkey::undoAndRedoAll()
{
    const QList<ZvScheduleWorkingArea *> areas = m_house.areas();
    for (ZvScheduleWorkingArea *area : areas) {
        m_house.tabs()->setCurrentWidget(area);
        if (!m_hasFailed)
            undoAndRedo(area);
    }
}

// Every state must come back that was there on the way to the first one. What the history does not
// record, as a default stage that is set by the menu of the stages, is gone after the first way
// back.
void Monkey::undoAndRedo(ZvScheduleWorkingArea *area)
{
    QUndoStack *stack = area->undoStack();
    const int last = stack->index();
    stack->setIndex(0);
    stack->setIndex(last);
    QStringList states{MonkeyChecks::contentOf(area)};
    while (stack->canUndo() && !m_hasFailed) {
        note(QStringLiteral("undo %1").arg(commandName(stack, stack->index() - 1)));
        stack->undo();
        ++m_undoneCount;
        check();
        states.append(MonkeyChecks::contentOf(area));
    }
    states.removeLast();
    while (!states.isEmpty() && !m_hasFailed) {
        const QString command = commandName(stack, stack->index());
        note(QStringLiteral("redo %1").arg(command));
        stack->redo();
        check();
        const QStringList wrong =
            MonkeyChecks::differences(states.takeLast(), MonkeyChecks::contentOf(area));
        if (!wrong.isEmpty()) {
            fail({QStringLiteral("%1, undone and redone (- before, + after):").arg(command)});
            fail(wrong);
        }
    }
}

} // namespace ZavoTest
