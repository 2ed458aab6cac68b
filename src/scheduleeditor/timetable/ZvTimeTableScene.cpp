#include "timetable/ZvTimeTableScene.h"

#include "timetable/BandMotion.h"
#include "timetable/TimeAxis.h"
#include "timetable/TimeTableAccessibility.h"
#include "timetable/TimeTableLabelPool.h"
#include "timetable/ZvTimeTableBaseItem.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeItemResizeHandle.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"

#include <QFont>
#include <QGraphicsSceneMouseEvent>

#include <algorithm>

namespace Zavo {

/// While it lives, a selection that is not empty is not reported: its bands are about to go.
class ZvTimeTableScene::MovedSignalBlocker
{
public:
    explicit MovedSignalBlocker(ZvTimeTableScene *scene)
        : m_scene(scene)
    {
        m_scene->m_movedSignalBlocked = true;
    }
    ~MovedSignalBlocker() { m_scene->m_movedSignalBlocked = false; }
    Q_DISABLE_COPY(MovedSignalBlocker)

private:
    ZvTimeTableScene *m_scene;
};

ZvTimeTableScene::ZvTimeTableScene(QObject *parent)
    : QGraphicsScene(parent)
{
    QFont sceneFont(QStringLiteral("Yu Gothic UI"));
    sceneFont.setPointSizeF(9.0);
    setFont(sceneFont);
    setBackgroundBrush(QColor(250, 250, 250, 255));
    // All items but one live below that one, where an index helps no search and costs every change.
    setItemIndexMethod(NoIndex);
    connect(this, SIGNAL(selectionChanged()), this, SLOT(onSelectionChanged()));
}

ZvTimeTableScene::~ZvTimeTableScene()
{
    // The selection empties while the items go; nobody is to be told of it any more.
    disconnect(this, SIGNAL(selectionChanged()), nullptr, nullptr);
    clear();
    TimeTableLabelPool::empty();
}

void ZvTimeTableScene::setBaseItem(ZvTimeTableBaseItem *baseItem)
{
    m_baseItem = baseItem;
    if (baseItem)
        addItem(baseItem);
}

void ZvTimeTableScene::setTimeZoneItem(ZvTimeTableTimeZoneItem *timeZoneItem)
{
    m_timeZoneItem = timeZoneItem;
}

void ZvTimeTableScene::setVerticalScale(double scale)
{
    m_verticalScale = scale;
    if (m_baseItem)
        m_baseItem->setVerticalScale(scale);
    if (m_timeZoneItem)
        m_timeZoneItem->setVerticalScale(scale);
}

void ZvTimeTableScene::setHorizontalScale(double scale)
{
    m_horizontalScale = scale;
    if (m_baseItem)
        m_baseItem->setHorizontalScale(scale);
    if (m_timeZoneItem)
        m_timeZoneItem->setHorizontalScale(scale);
}

bool ZvTimeTableScene::insertTimeItems(const QList<ZvTime> &times)
{
    return m_timeZoneItem && m_timeZoneItem->insertTimeItems(times);
}

void ZvTimeTableScene::removeAllTimeItems()
{
    if (!m_timeZoneItem)
        return;
    const MovedSignalBlocker blocker(this);
    m_timeZoneItem->removeAllTimeItems();
}

void ZvTimeTableScene::removeTimeItems(const QList<ZvTime> &times)
{
    if (!m_timeZoneItem)
        return;
    const MovedSignalBlocker blocker(this);
    m_timeZoneItem->removeTimeItems(times);
}

QList<ZvTime> ZvTimeTableScene::selectedTimes() const
{
    QList<ZvTime> times;
    times.reserve(m_selectedTimeItems.size());
    for (const ZvTimeTableTimeItem *item : m_selectedTimeItems)
        times.append(item->timeInfo());
    return times;
}

QList<ZvTime> ZvTimeTableScene::removeSelectedTimeItems()
{
    const QList<ZvTime> times = selectedTimes();
    if (!times.isEmpty())
        removeTimeItems(times);
    return times;
}

QList<ZvTime> ZvTimeTableScene::timeItemsInRange(QTime start, QTime end) const
{
    QList<ZvTime> found;
    if (!m_timeZoneItem)
        return found;
    const QList<ZvTimeTableTimeItem *> items = m_timeZoneItem->timeItems();
    for (const ZvTimeTableTimeItem *item : items) {
        const bool endsBefore = item->startTime() < start && item->endTime() <= start;
        if (found.isEmpty() && endsBefore)
            continue;
        if (item->startTime() < end)
            found.append(item->timeInfo());
        else if (!found.isEmpty())
            break;
    }
    return found;
}

void ZvTimeTableScene::onSelectionChanged()
{
    if (m_disableSelectionChanged)
        return;
    QList<ZvTimeTableTimeItem *> selected;
    const QList<QGraphicsItem *> items = selectedItems();
    for (QGraphicsItem *item : items) {
        if (auto *timeItem = qgraphicsitem_cast<ZvTimeTableTimeItem *>(item))
            selected.append(timeItem);
    }
    std::sort(selected.begin(), selected.end(),
              [](const ZvTimeTableTimeItem *item, const ZvTimeTableTimeItem *other) {
                  return item->index() < other->index();
              });
    for (ZvTimeTableTimeItem *item : qAsConst(selected))
        item->setResizeHandleVisible(false);
    if (selected != m_selectedTimeItems)
        m_selectedTimeItems = selected;

    if (selected.size() == 1)
        selected.first()->setResizeHandleVisible(true);
    TimeTableAccessibility::reportSelection(*this);
    if (selected.isEmpty())
        Q_EMIT timeTableTimeItemHasNotSelected();
    else if (!m_movedSignalBlocked)
        Q_EMIT timeTableTimeItemsMoved(selected);
}

void ZvTimeTableScene::reportMove()
{
    TimeTableAccessibility::reportMove(*this);
    Q_EMIT timeTableTimeItemsMoved(m_selectedTimeItems);
}

void ZvTimeTableScene::setDisableSelectionChanged(bool disabled)
{
    m_disableSelectionChanged = disabled;
}

bool ZvTimeTableScene::isDesabeleSelectionChanged(bool *state)
{
    if (state)
        *state = m_disableSelectionChanged;
    return m_disableSelectionChanged;
}

ZvTimeTableScene::DragMode ZvTimeTableScene::resizeHandleAt(const QPointF &point) const
{
    if (m_selectedTimeItems.size() != 1)
        return NoDrag;
    const ZvTimeTableTimeItem *item = m_selectedTimeItems.first();
    DragMode mode = NoDrag;
    for (const ZvTimeTableTimeItemResizeHandle *handle :
         {item->topHandle(), item->bottomHandle()}) {
        const QRectF bounds = handle->boundingRect();
        const QRectF rect(
            handle->mapToScene(bounds.topLeft()),
            QSizeF(bounds.width() / m_horizontalScale, bounds.height() / m_verticalScale));
        if (rect.contains(point))
            mode = static_cast<DragMode>(handle->handleType());
    }
    return mode;
}

bool ZvTimeTableScene::isOnSelectedTimeItem(const QPointF &point) const
{
    return std::any_of(m_selectedTimeItems.cbegin(), m_selectedTimeItems.cend(),
                       [&point](const ZvTimeTableTimeItem *item) {
                           const QRectF bounds = item->boundingRect();
                           return QRectF(item->mapToScene(bounds.topLeft()),
                                         item->mapToScene(bounds.bottomRight()))
                               .contains(point);
                       });
}

void ZvTimeTableScene::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    m_pressPos = event->pos();
    m_pressScenePos = event->scenePos();
    m_dragMode = resizeHandleAt(event->scenePos());
    if (m_dragMode == NoDrag && isOnSelectedTimeItem(event->scenePos()))
        m_dragMode = DragSelection;
    Q_EMIT mousePressed();
    QGraphicsScene::mousePressEvent(event);
    // On its very edge a band is not hit, and a rubber band begins. That moves nothing, also when
    // it selects the band again.
    if (!event->isAccepted())
        m_dragMode = NoDrag;
    if (event->buttons() == Qt::RightButton)
        freeMouse();
}

void ZvTimeTableScene::freeMouse()
{
    // The items never see the release of the right button, so a band that took its press would keep
    // the mouse from all others.
    if (QGraphicsItem *grabber = mouseGrabberItem())
        grabber->ungrabMouse();
}

void ZvTimeTableScene::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_baseItem && (event->buttons() & Qt::LeftButton) &&
        continueDrag(event->scenePos(), event->lastScenePos())) {
        m_hasDragged = true;
        event->accept();
        return;
    }
    QGraphicsScene::mouseMoveEvent(event);
}

bool ZvTimeTableScene::continueDrag(const QPointF &current, const QPointF &last)
{
    return m_dragMode == DragSelection ? moveSelectedTimeItems(current, last)
                                       : resizeSelectedTimeItem(current, last);
}

void ZvTimeTableScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    m_dragMode = NoDrag;
    if (event->button() == Qt::RightButton) {
        if (event->buttons() == Qt::NoButton)
            freeMouse();
        return;
    }
    // The event itself knows the press of the button that went down last only.
    const bool isAway = event->scenePos() != m_pressScenePos || event->pos() != m_pressPos;
    // A band takes a release where it was pressed for a click and changes the selection, but what
    // was moved is what was selected until then.
    const bool hasDragged = m_hasDragged;
    if (hasDragged)
        reportDrag();
    QGraphicsScene::mouseReleaseEvent(event);
    if (isAway && !hasDragged)
        reportDrag();
}

void ZvTimeTableScene::reportDrag()
{
    m_hasDragged = false;
    Q_EMIT mousePressingMoved();
}

void ZvTimeTableScene::completeDrag()
{
    // The right button ends a drag without a report.
    if (m_dragMode == NoDrag && !m_hasDragged)
        return;
    m_dragMode = NoDrag;
    reportDrag();
}

bool ZvTimeTableScene::moveSelectedTimeItems(const QPointF &current, const QPointF &last)
{
    const double dy = current.y() - last.y();
    if (dy == 0.0 || m_selectedTimeItems.isEmpty())
        return false;
    if (m_timeZoneItem)
        m_timeZoneItem->expectChangesOf(m_selectedTimeItems.size());
    if (BandMotion::move(m_selectedTimeItems, dy))
        reportMove();
    return true;
}

bool ZvTimeTableScene::resizeSelectedTimeItem(const QPointF &current, const QPointF &last)
{
    const double dy = current.y() - last.y();
    if (dy == 0.0 || m_selectedTimeItems.size() != 1)
        return false;
    ZvTimeTableTimeItem *item = m_selectedTimeItems.first();
    BandMotion::Span span;
    if (m_dragMode == DragTopHandle)
        span = BandMotion::spanWithTopMoved(*item, dy);
    else if (m_dragMode == DragBottomHandle)
        span = BandMotion::spanWithBottomMoved(*item, dy);
    else
        return false;
    // The height first, so that the clamp of the move sees it.
    item->setItemHeight(span.height);
    item->setY(span.top);
    item->updateTimeInfo();
    reportMove();
    return true;
}

} // namespace Zavo
