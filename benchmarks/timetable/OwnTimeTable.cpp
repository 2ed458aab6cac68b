#include "OwnTimeTable.h"

#include "DenseDay.h"

#include "ZvChannel.h"
#include "services/UndoCommands.h"
#include "timetable/TimeItemRects.h"
#include "timetable/TimeTableLabelPool.h"
#include "timetable/TimeTableText.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"
#include "timetable/ZvTimeTableView.h"

#include <QApplication>
#include <QComboBox>
#include <QMouseEvent>
#include <QUndoStack>

using namespace Zavo;

namespace {

constexpr QSize pageSize{900, 700};
constexpr int turnsUntilLabelled = 10;
constexpr double secondsIntoTheDay = 15.0; // units below the strip's edge, of which ten are margin
const QDate firstDate(2040, 1, 2);

ZvScheduleBasicInfo infoOf(bool second)
{
    return ZvScheduleBasicInfo(firstDate.addDays(second ? 1 : 0));
}

ZvChannel *newChannel(int count)
{
    auto *channel = new ZvChannel(QString());
    for (const bool second : {false, true}) {
        ZvSchedule schedule = infoOf(second).toSchedule();
        schedule.setTimeList(DenseDay::bands(count, second ? 1 : 0));
        channel->insertSchedule(schedule);
    }
    return channel;
}

} // namespace

OwnTimeTable::OwnTimeTable(int count)
    : m_area(new ZvScheduleWorkingArea(newChannel(count)))
    , m_view(m_area->findChild<ZvTimeTableView *>())
{
    m_area->switchToScheduleInfo(infoOf(false), false);
    m_area->resize(pageSize);
    m_area->show();
    settle();
}

OwnTimeTable::~OwnTimeTable()
{
    delete m_area->takeScene();
}

ZvTimeTableScene *OwnTimeTable::scene() const
{
    return qobject_cast<ZvTimeTableScene *>(m_view->scene());
}

QList<ZvTimeTableTimeItem *> OwnTimeTable::items() const
{
    return scene()->timeZoneItem()->timeItems();
}

QSize OwnTimeTable::viewSize() const
{
    return m_view->size();
}

void OwnTimeTable::switchTo(bool second)
{
    m_area->switchToScheduleInfo(infoOf(second), false);
}

void OwnTimeTable::load(const QList<ZvTime> &times)
{
    m_area->insertTimeItems(times);
}

void OwnTimeTable::remove(const QList<ZvTime> &times)
{
    m_area->removeTimeItems(times);
}

void OwnTimeTable::clear()
{
    scene()->removeAllTimeItems();
}

void OwnTimeTable::selectAll()
{
    m_area->selectAllItems();
}

void OwnTimeTable::deselectAll()
{
    m_area->deselectAllItems();
}

QMap<int, QRectF> OwnTimeTable::rects() const
{
    return rectsOf(items());
}

void OwnTimeTable::place(const QMap<int, QRectF> &rects)
{
    m_area->moveTimeItems(rects);
}

void OwnTimeTable::push(QUndoCommand *command)
{
    m_area->undoStack()->clear();
    m_area->undoStack()->push(command);
}

void OwnTimeTable::cut()
{
    const QList<ZvTime> times = m_area->cutSelectedItems();
    push(new UndoCommand::RemoveTimeItem(times, m_area->currentScheduleInfo(), m_area.get()));
}

void OwnTimeTable::paste()
{
    const QRectF strip = scene()->timeZoneItem()->sceneBoundingRect();
    const QPointF start(strip.center().x(), strip.top() + secondsIntoTheDay);
    m_view->centerOn(start);
    m_mousePos = m_view->mapFromScene(start);
    sendMouse(QEvent::MouseButtonPress, Qt::LeftButton);
    sendMouse(QEvent::MouseButtonRelease, Qt::LeftButton);
    if (!m_area->pasteItems())
        qFatal("nothing was pasted");
    push(new UndoCommand::PasteTimeItem({}, m_area->currentTimes(), m_area->currentScheduleInfo(),
                                        m_area.get()));
}

void OwnTimeTable::reset(const QList<ZvTime> &times)
{
    const QString stage = m_area->defaultStageName();
    push(new UndoCommand::ResetTimeTable(stage, stage, m_area->currentTimes(), times,
                                         m_area->currentScheduleInfo(), m_area.get()));
}

void OwnTimeTable::undo()
{
    m_area->undoStack()->undo();
}

void OwnTimeTable::redo()
{
    m_area->undoStack()->redo();
}

QPoint OwnTimeTable::pointOnSelection() const
{
    const QRect viewport = m_view->viewport()->rect();
    const QList<ZvTimeTableTimeItem *> selected = m_area->selectedTimeItems();
    for (int distance = 0; distance < viewport.height() / 2; ++distance) {
        const QPoint point = viewport.center() + QPoint(0, distance);
        const QPointF scenePoint = m_view->mapToScene(point);
        for (const ZvTimeTableTimeItem *item : selected) {
            if (item->sceneBoundingRect().contains(scenePoint))
                return point;
        }
    }
    qFatal("no selected band in sight");
}

void OwnTimeTable::sendMouse(int type, Qt::MouseButton button)
{
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(Qt::LeftButton);
    QMouseEvent event(static_cast<QEvent::Type>(type), m_mousePos,
                      m_view->viewport()->mapToGlobal(m_mousePos), button, held, Qt::NoModifier);
    QApplication::sendEvent(m_view->viewport(), &event);
}

void OwnTimeTable::startDrag()
{
    m_mousePos = pointOnSelection();
    sendMouse(QEvent::MouseButtonPress, Qt::LeftButton);
    settle();
}

void OwnTimeTable::dragBy(int pixels)
{
    m_mousePos += QPoint(0, pixels);
    sendMouse(QEvent::MouseMove, Qt::NoButton);
}

void OwnTimeTable::endDrag()
{
    sendMouse(QEvent::MouseButtonRelease, Qt::LeftButton);
    settle();
}

void OwnTimeTable::look(double scale, int index)
{
    auto *box = m_area->findChild<QComboBox *>();
    box->setCurrentIndex(box->findData(scale));
    m_view->centerOn(items().at(index));
    // The labels of a new scale come from the event loop, some at each of its turns.
    for (int turn = 0; turn < turnsUntilLabelled; ++turn)
        settle();
}

void OwnTimeTable::selectOne(int index)
{
    deselectAll();
    items().at(index)->setSelected(true);
    settle();
}

void OwnTimeTable::repaint()
{
    m_view->viewport()->repaint();
}

void OwnTimeTable::settle()
{
    QCoreApplication::processEvents();
}

void OwnTimeTable::forgetKeptLabels()
{
    delete QCoreApplication::instance()->findChild<TimeTableLabelPool *>();
    delete QCoreApplication::instance()->findChild<TimeTableTexts *>();
}
