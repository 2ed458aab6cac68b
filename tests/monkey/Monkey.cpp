#include "Monkey.h"

#include "KeyStroke.h"

#include "HostWindow.h"

#include "timetable/ZvScheduleWorkingArea.h"
#include "timetable/ZvTimeTableView.h"
#include "workspace/ZvScheduleTabWidget.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDialog>
#include <QDrag>
#include <QUndoStack>
#include <QWindow>
#include <QtTest>

#include <algorithm>
#include <typeinfo>
#include <utility>

using namespace Zavo;

namespace ZavoTest {

namespace {

constexpr int AnswerInterval = 2;  // ms
constexpr int ForcedAfter = 6;     // events in one dialog
constexpr int DiskCheckEvery = 20; // events
constexpr int LongestPause = 600;  // ms, beyond the longest delay of the program
constexpr int ReportDelay = 150;   // ms, longer than a move by keys takes to be reported

QString commandName(const QUndoStack *stack, int index)
{
    const QUndoCommand &command = *stack->command(index);
    return QStringLiteral("%1 %2").arg(index).arg(QLatin1String(typeid(command).name()));
}

} // namespace

// A path that is typed or chosen there may lie outside of the data folder.
bool Monkey::reachesBeyondData(const QWidget *widget)
{
    return widget->inherits("QFileDialog") || widget->inherits("Zavo::ExportDialog") ||
           widget->inherits("Zavo::UploadDialog") || widget->inherits("Zavo::UploadTargetDialog") ||
           widget->inherits("Zavo::ConfigurationDialog");
}

QString Monkey::nameOf(const QWidget *topLevel)
{
    const QRect place = topLevel->geometry();
    return QStringLiteral("%1 %2 %3,%4")
        .arg(describe(topLevel), topLevel->windowTitle())
        .arg(place.x())
        .arg(place.y());
}

QString Monkey::describe(const QWidget *widget)
{
    return QStringLiteral("%1 %2").arg(QLatin1String(widget->metaObject()->className()),
                                       widget->objectName());
}

Monkey::Monkey(unsigned seed, int eventCount, std::FILE *log)
    : m_choice(seed)
    , m_dialogChoice(seed + 1)
    , m_paceChoice(seed + 2)
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

// The bands on show change only with a step of the history.
void Monkey::checkHistory(QStringList *wrong)
{
    const ZvScheduleWorkingArea *area = m_house.currentArea();
    if (!area)
        return;
    const QString place = MonkeyChecks::placeInHistory(area);
    const ZvSchedule table = MonkeyChecks::tableOf(area);
    if (place == m_lastPlace) {
        const QStringList differences = MonkeyChecks::differences(m_lastTable, table);
        if (!differences.isEmpty())
            wrong->append(QStringLiteral("changed without a step of undo:"));
        wrong->append(differences);
    } else {
        ++m_changeCount;
        note(QStringLiteral("history of %1: %2 of %3, %4 bands")
                 .arg(area->channelName())
                 .arg(area->undoStack()->index())
                 .arg(area->undoStack()->count())
                 .arg(table.timeList().size()));
    }
    m_lastTable = table;
    m_lastPlace = place;
}

void Monkey::check()
{
    QStringList wrong;
    if (const ZvScheduleWorkingArea *area = m_house.currentArea()) {
        if (MonkeyChecks::placeInHistory(area) == m_lastPlace &&
            !MonkeyChecks::differences(m_lastTable, MonkeyChecks::tableOf(area)).isEmpty()) {
            // A drag whose release went to a menu or to the explanations is under way until
            // something else comes upon it.
            if (ZvTimeTableView *view = m_house.view())
                view->completeMove();
            QTest::qWait(ReportDelay);
        }
    }
    checkHistory(&wrong);
    if (!m_house.isClosed())
        wrong.append(m_checks.wrongInWindow());
    wrong.append(m_checks.wrongOnDisk(m_events % DiskCheckEvery == 0 || m_house.isClosed()));
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
    QTimer::singleShot(nextPause(), this, SLOT(step()));
}

// Mostly as fast as a hand can be, so that events come between a cause and its delayed effect; now
// and then all is left to come to rest.
int Monkey::nextPause()
{
    const int kind = m_paceChoice.below(100);
    if (kind < 85)
        return m_paceChoice.between(1, 8);
    return m_paceChoice.below(kind < 97 ? LongestPause / 10 : LongestPause);
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
    if (!asked) {
        // A drag out of the window, if there is one, waits for the hand that is in it.
        QDrag::cancel();
        return;
    }
    // How often this comes is a matter of time; what follows the dialog must not depend on it.
    if (m_answerDepth++ == 0)
        std::swap(m_choice, m_dialogChoice);
    answer(asked);
    if (--m_answerDepth == 0)
        std::swap(m_choice, m_dialogChoice);
}

void Monkey::answer(QWidget *asked)
{
    if (asked != m_asked) {
        m_asked = asked;
        m_playedWithAsked = 0;
    }
    ++m_playedWithAsked;
    if (m_playedWithAsked <= m_choice.below(ForcedAfter) && !reachesBeyondData(asked)) {
        useDialog(asked);
        return;
    }
    note(QStringLiteral("leave ") + describe(asked));
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
        note(QStringLiteral("key %1 in %2").arg(key, 0, 16).arg(describe(dialog)));
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
    // They come sorted by address, which is chance.
    std::stable_sort(shown.begin(), shown.end(), [](const QWidget *left, const QWidget *right) {
        return nameOf(left) < nameOf(right);
    });
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

void Monkey::press(QWidget *widget, const QPoint &position, const Hand &hand, bool down)
{
    QWindow *window = widget->window()->windowHandle();
    if (!window)
        return;
    // Nothing is told of a release outside of the window, which a grab brings to it elsewhere.
    const QRect inside = widget->window()->rect();
    QPoint place = widget->mapTo(widget->window(), position);
    place = {qBound(inside.left(), place.x(), inside.right()),
             qBound(inside.top(), place.y(), inside.bottom())};
    if (down)
        QTest::mousePress(window, hand.button, hand.modifiers, place);
    else
        QTest::mouseRelease(window, hand.button, hand.modifiers, place);
}

void Monkey::click(QWidget *widget, const QPoint &position)
{
    const Hand hand{m_choice.chance(88) ? Qt::LeftButton : Qt::RightButton, someModifiers()};
    note(QStringLiteral("click %1 at %2,%3 of %4")
             .arg(hand.button)
             .arg(position.x())
             .arg(position.y())
             .arg(describe(widget)));
    const QPointer<QWidget> live(widget);
    moveMouse(widget, position);
    if (live)
        press(widget, position, hand, true);
    if (live)
        press(widget, position, hand, false);
    else if (m_house.window())
        press(m_house.window(), position, hand, false);
    if (live && m_choice.chance(15)) {
        press(widget, position, hand, true);
        if (live)
            press(widget, position, hand, false);
    }
}

void Monkey::drag(QWidget *widget, const QPoint &from)
{
    const QPointer<QWidget> live(widget);
    const Hand hand{m_choice.chance(95) ? Qt::LeftButton : Qt::MiddleButton, someModifiers()};
    note(QStringLiteral("drag from %1,%2 of %3").arg(from.x()).arg(from.y()).arg(describe(widget)));
    moveMouse(widget, from);
    if (live)
        press(widget, from, hand, true);
    QPoint place = from;
    const int moves = m_choice.between(1, 6);
    for (int i = 0; i < moves && live; ++i) {
        place += {m_choice.between(-60, 60), m_choice.between(-120, 120)};
        moveMouse(widget, place);
    }
    if (live && m_choice.chance(5))
        useKeys();
    if (live)
        press(widget, place, hand, false);
    else if (m_house.window())
        press(m_house.window(), QPoint(1, 1), hand, false);
}

void Monkey::undoAndRedoAll()
{
    const QList<ZvScheduleWorkingArea *> areas = m_house.areas();
    for (ZvScheduleWorkingArea *area : areas) {
        m_house.tabs()->setCurrentWidget(area);
        for (const auto content : {MonkeyChecks::Bands, MonkeyChecks::BandsAndDefaultStages}) {
            if (!m_hasFailed)
                undoAndRedo(area, content);
        }
    }
}

// Every state must come back that was there on the way to the first one. What the history does not
// record, as a default stage that is set by the menu of the stages, is gone after the first way
// back, so only the second one is compared whole.
void Monkey::undoAndRedo(ZvScheduleWorkingArea *area, MonkeyChecks::Content content)
{
    QUndoStack *stack = area->undoStack();
    QStringList states{MonkeyChecks::contentOf(area, content)};
    while (stack->canUndo() && !m_hasFailed) {
        note(QStringLiteral("undo %1").arg(commandName(stack, stack->index() - 1)));
        stack->undo();
        ++m_undoneCount;
        check();
        states.append(MonkeyChecks::contentOf(area, content));
    }
    states.removeLast();
    while (!states.isEmpty() && !m_hasFailed) {
        const QString command = commandName(stack, stack->index());
        note(QStringLiteral("redo %1").arg(command));
        stack->redo();
        check();
        const QStringList wrong =
            MonkeyChecks::differences(states.takeLast(), MonkeyChecks::contentOf(area, content));
        if (!wrong.isEmpty()) {
            fail({QStringLiteral("%1, undone and redone (- before, + after):").arg(command)});
            fail(wrong);
        }
    }
}

} // namespace ZavoTest
