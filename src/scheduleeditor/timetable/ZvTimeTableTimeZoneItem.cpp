#include "timetable/ZvTimeTableTimeZoneItem.h"

#include "ZvEditorCommon.h"
#include "stages/ZvScheduleStageListView.h"
#include "timetable/CosmeticOutline.h"
#include "timetable/MereNotice.h"
#include "timetable/StageDropPlan.h"
#include "timetable/TimeAxis.h"
#include "timetable/TimeTableAccessibility.h"
#include "timetable/ZvTimeTableBaseItem.h"
#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableView.h"

#include <QGraphicsLineItem>
#include <QGraphicsSceneDragDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QPen>
#include <QPointer>

namespace Zavo {

namespace {

QPen stripPen(const QColor &color)
{
    QPen pen(color);
    pen.setCosmetic(true);
    return pen;
}

} // namespace

/// Brackets a change of many bands, in which the scene must not look at the selection.
class ZvTimeTableTimeZoneItem::BulkChange
{
public:
    explicit BulkChange(ZvTimeTableTimeZoneItem *strip)
        : m_strip(strip)
    {
        Q_EMIT m_strip->requestDisableSelectionChanged(true);
    }
    ~BulkChange()
    {
        if (!m_strip)
            return;
        Q_EMIT m_strip->requestDisableSelectionChanged(false);
        Q_EMIT m_strip->requestSelectionChanged();
    }
    Q_DISABLE_COPY(BulkChange)

private:
    const QPointer<ZvTimeTableTimeZoneItem> m_strip;
};

ZvTimeTableTimeZoneItem::ZvTimeTableTimeZoneItem(QGraphicsItem *parent)
    : QGraphicsObject(parent)
    , m_dropLine(new QGraphicsLineItem(this))
{
    setFlag(ItemIsSelectable, false);
    setAcceptDrops(true);
    m_dropLine->setPen(stripPen(Qt::green));
    m_dropLine->setVisible(false);
}

ZvTimeTableTimeZoneItem::~ZvTimeTableTimeZoneItem()
{
    // Last to first: an item leaves the lists of its parent and its scene fastest at their end.
    while (!m_timeItems.isEmpty())
        delete m_timeItems.takeLast();
}

QRectF ZvTimeTableTimeZoneItem::boundingRect() const
{
    return {0.0, 0.0, m_width, m_height};
}

QRectF ZvTimeTableTimeZoneItem::innerRect() const
{
    return boundingRect().adjusted(m_margin, m_margin, -m_margin, -m_margin);
}

void ZvTimeTableTimeZoneItem::setRect(const QRectF &rect)
{
    const QRectF outer = rect.adjusted(-m_margin, -m_margin, m_margin, m_margin);
    prepareGeometryChange();
    setPos(outer.topLeft());
    m_width = outer.width();
    m_height = outer.height();
    update();
}

void ZvTimeTableTimeZoneItem::setHorizontalScale(double scale)
{
    m_horizontalScale = scale;
    for (ZvTimeTableTimeItem *item : m_timeItems.items())
        item->setHorizontalScale(scale);
}

void ZvTimeTableTimeZoneItem::setVerticalScale(double scale)
{
    for (ZvTimeTableTimeItem *item : m_timeItems.items())
        item->setVerticalScale(scale);
}

void ZvTimeTableTimeZoneItem::drawWithin(const DrawnRange &range)
{
    if (range == m_drawnRange && !m_hasNewBands)
        return;
    m_drawnRange = range;
    m_hasNewBands = false;
    for (ZvTimeTableTimeItem *item : m_timeItems.items())
        item->setDrawn(range.meets(item->y(), item->y() + item->itemHeight()));
}

QList<ZvTimeTableTimeItem *> ZvTimeTableTimeZoneItem::timeItems() const
{
    return m_timeItems.items();
}

int ZvTimeTableTimeZoneItem::timeItemCount() const
{
    return m_timeItems.count();
}

bool ZvTimeTableTimeZoneItem::containsAll(const QList<ZvTimeTableTimeItem *> &items) const
{
    return m_timeItems.containsAll(items);
}

QList<ZvTimeTableTimeItem *> ZvTimeTableTimeZoneItem::selectedTimeItems() const
{
    QList<ZvTimeTableTimeItem *> selected;
    for (ZvTimeTableTimeItem *item : m_timeItems.items()) {
        if (item->isSelected())
            selected.append(item);
    }
    return selected;
}

int ZvTimeTableTimeZoneItem::selectedTimeItemCount() const
{
    return selectedTimeItems().size();
}

QList<ZvTime> ZvTimeTableTimeZoneItem::times() const
{
    QList<ZvTime> times;
    times.reserve(m_timeItems.count());
    for (const ZvTimeTableTimeItem *item : m_timeItems.items())
        times.append(item->timeInfo());
    return times;
}

void ZvTimeTableTimeZoneItem::getTimeItemSelectionCount(int *count)
{
    if (count)
        *count = selectedTimeItemCount();
}

QTime ZvTimeTableTimeZoneItem::timeAtY(double y) const
{
    return TimeAxis::timeAtY(y, m_margin);
}

ZvTimeTableView *ZvTimeTableTimeZoneItem::view() const
{
    const QList<QGraphicsView *> views = scene() ? scene()->views() : QList<QGraphicsView *>();
    return views.isEmpty() ? nullptr : qobject_cast<ZvTimeTableView *>(views.first());
}

bool ZvTimeTableTimeZoneItem::insertTimeItems(QList<ZvTime> times)
{
    const auto *timeTableScene = qobject_cast<ZvTimeTableScene *>(scene());
    const double verticalScale = timeTableScene ? timeTableScene->verticalScale() : 1.0;
    clearSelection();

    const QPointer<ZvTimeTableTimeZoneItem> self(this);
    const BulkChange bulk(this);
    bool allPlaced = true;
    m_timeItems.checkOrder();
    for (const ZvTime &time : qAsConst(times)) {
        if (insertTimeItem(time, verticalScale))
            continue;
        allPlaced = false;
        // The message shows the table behind it, and runs an event loop, in which that may go.
        m_timeItems.renumber();
        Q_EMIT criticalErrorOccured(tr("Failed to assign \"%1\".").arg(time.stageName()));
        if (!self)
            return false;
    }
    m_timeItems.renumber();
    reportBands(times.size() == 1 && allPlaced);
    return allPlaced;
}

ZvTimeTableTimeItem *ZvTimeTableTimeZoneItem::createTimeItem(const ZvTime &time, int index,
                                                             double verticalScale)
{
    // Without a parent at first: a band is cheaper to set up before the scene knows it.
    auto *item = new ZvTimeTableTimeItem(time.stageName(), index);
    const QRectF strip = innerRect();
    item->setLeft(m_margin);
    item->setTopMargin(m_margin);
    item->setDayBottom(strip.bottom());
    item->setItemWidth(strip.width());
    item->setVerticalScale(verticalScale);
    item->setHorizontalScale(m_horizontalScale);
    item->setParentItem(this);
    item->setTimeInfo(time);
    connect(item, SIGNAL(requestGettingTimeItemSelectionCount(int*)), this,
                         SLOT(getTimeItemSelectionCount(int*)), Qt::DirectConnection);
    return item;
}

bool ZvTimeTableTimeZoneItem::insertTimeItem(const ZvTime &time, double verticalScale)
{
    // A record from outside may end before it starts; a band cannot.
    if (time.endTime() < time.startTime())
        return false;
    const int index = m_timeItems.insertionIndex(time.startTime(), time.endTime());
    if (index < 0)
        return false;
    ZvTimeTableTimeItem *item = createTimeItem(time, index, verticalScale);
    m_timeItems.insert(index, item);
    m_hasNewBands = true;
    item->setSelected(true);
    Q_EMIT timeItemCountChanged(m_timeItems.count());
    return true;
}

QList<ZvTime> ZvTimeTableTimeZoneItem::insertStages(QTime start, const QStringList &stageNames)
{
    QVector<StageDropPlan::Span> bands;
    bands.reserve(m_timeItems.count());
    for (const ZvTimeTableTimeItem *item : m_timeItems.items())
        bands.append({item->y(), item->y() + item->itemHeight()});
    const StageDropPlan plan(start, stageNames, bands, m_margin, innerRect().bottom());

    switch (plan.refusal()) {
    case StageDropPlan::TooLate:
        Q_EMIT warningErrorOccured(tr("There is not enough unallocated time in order to assign "
                                      "stage. The start time must be earlier than 23:59:55."));
        return {};
    case StageDropPlan::Occupied:
        Q_EMIT warningErrorOccured(tr("You can not reassigned to the allocated time."));
        return {};
    case StageDropPlan::TooNarrow:
        Q_EMIT warningErrorOccured(
            tr("There is not enough unallocated time in order to assign stages. Unassigned time "
               "of 5 seconds or more per one stage is required."));
        return {};
    case StageDropPlan::NotRefused:
        break;
    }
    if (plan.times().isEmpty() || !insertTimeItems(plan.times()))
        return {};
    Q_EMIT timeItemInserted(plan.times());
    return plan.times();
}

void ZvTimeTableTimeZoneItem::removeTimeItems(const QList<ZvTime> &times)
{
    const int countBefore = m_timeItems.count();
    {
        const BulkChange bulk(this);
        const QList<ZvTimeTableTimeItem *> taken = m_timeItems.take(times);
        if (taken.size() > m_timeItems.count())
            repaintAsAWhole();
        qDeleteAll(taken);
        m_timeItems.renumber();
    }
    if (m_timeItems.count() == countBefore)
        return;
    reportBands(false);
    Q_EMIT timeItemCountChanged(m_timeItems.count());
}

void ZvTimeTableTimeZoneItem::removeAllTimeItems()
{
    const int countBefore = m_timeItems.count();
    {
        const BulkChange bulk(this);
        if (countBefore != 0)
            repaintAsAWhole();
        while (!m_timeItems.isEmpty())
            delete m_timeItems.takeLast();
    }
    if (countBefore == 0)
        return;
    reportBands(false);
    Q_EMIT timeItemCountChanged(0);
}

void ZvTimeTableTimeZoneItem::expectChangesOf(int bands)
{
    if (bands > 1 && bands > m_timeItems.count() / 2)
        repaintAsAWhole();
}

// Where most of the table is to be painted anew, the views need not be told of each band.
void ZvTimeTableTimeZoneItem::repaintAsAWhole()
{
    if (scene())
        scene()->update();
}

// A single band that was just inserted is the one that is selected.
void ZvTimeTableTimeZoneItem::reportBands(bool isOneNew) const
{
    if (TimeTableAccessibility::isHeard())
        TimeTableAccessibility::reportBands(view(),
                                            isOneNew ? selectedTimeItems().value(0) : nullptr);
}

void ZvTimeTableTimeZoneItem::setTimeItemTimes(const QMap<int, ZvTime> &itemTimes)
{
    for (auto entry = itemTimes.cbegin(); entry != itemTimes.cend(); ++entry) {
        if (entry.key() < 0 || entry.key() >= m_timeItems.count())
            continue;
        ZvTimeTableTimeItem *item = m_timeItems.items().at(entry.key());
        item->setTimeUpdateBlocked(true);
        item->setTimeInfo(entry.value());
        item->setTimeUpdateBlocked(false);
    }
}

void ZvTimeTableTimeZoneItem::selectAllTimeItems()
{
    const BulkChange bulk(this);
    expectChangesOf(m_timeItems.count());
    for (ZvTimeTableTimeItem *item : m_timeItems.items())
        item->setSelected(true);
}

void ZvTimeTableTimeZoneItem::clearSelection()
{
    if (scene())
        scene()->clearSelection();
}

void ZvTimeTableTimeZoneItem::selectNextTimeItem()
{
    const QList<ZvTimeTableTimeItem *> selected = selectedTimeItems();
    ZvTimeTableTimeItem *target = selected.isEmpty() ? nullptr : selected.first()->nextItem();
    selectOnly(target || m_timeItems.isEmpty() ? target : m_timeItems.items().first());
}

void ZvTimeTableTimeZoneItem::selectPreviousTimeItem()
{
    const QList<ZvTimeTableTimeItem *> selected = selectedTimeItems();
    ZvTimeTableTimeItem *target = selected.isEmpty() ? nullptr : selected.last()->previousItem();
    selectOnly(target || m_timeItems.isEmpty() ? target : m_timeItems.items().last());
}

void ZvTimeTableTimeZoneItem::selectOnly(ZvTimeTableTimeItem *item)
{
    if (!item)
        return;
    clearSelection();
    item->setSelected(true);
    if (ZvTimeTableView *timeTableView = view())
        timeTableView->ensureItemVisible(item);
}

void ZvTimeTableTimeZoneItem::dragEnterEvent(QGraphicsSceneDragDropEvent *event)
{
    event->setAccepted(innerRect().contains(event->pos()) &&
                       ZvScheduleStageListView::keepStageNames(event->mimeData()));
}

void ZvTimeTableTimeZoneItem::dragMoveEvent(QGraphicsSceneDragDropEvent *event)
{
    const QRectF strip = innerRect();
    const bool acceptable = strip.contains(event->pos()) && event->mimeData() &&
                            event->mimeData()->hasFormat(ZvEditorCommon::MIME_TYPE_STAGE_NAME);
    if (acceptable)
        m_dropLine->setLine(strip.left(), event->pos().y(), strip.right(), event->pos().y());
    m_dropLine->setVisible(acceptable);
    event->setAccepted(acceptable);

    if (const auto *base = qgraphicsitem_cast<ZvTimeTableBaseItem *>(parentItem()))
        Q_EMIT timeStringChanged(base->timeStringAt(base->mapFromScene(event->scenePos())));
}

void ZvTimeTableTimeZoneItem::dragLeaveEvent(QGraphicsSceneDragDropEvent *event)
{
    m_dropLine->setVisible(false);
    event->ignore();
}

void ZvTimeTableTimeZoneItem::dropEvent(QGraphicsSceneDragDropEvent *event)
{
    m_dropLine->setVisible(false);
    const QStringList stageNames = ZvScheduleStageListView::keptStageNames(event->mimeData());
    event->setAccepted(!stageNames.isEmpty());
    if (!stageNames.isEmpty())
        insertStages(timeAtY(event->pos().y()), stageNames);
}

QVariant ZvTimeTableTimeZoneItem::itemChange(GraphicsItemChange change, const QVariant &value)
{
    return isMereNotice(change) ? QVariant() : QGraphicsObject::itemChange(change, value);
}

void ZvTimeTableTimeZoneItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const QRectF strip = innerRect();
    drawCosmeticOutline(painter, strip, painter->pen().color());
    drawCosmeticOutline(painter, QRectF(strip.topLeft(), strip.topRight()), Qt::blue);
    drawCosmeticOutline(painter, QRectF(strip.bottomLeft(), strip.bottomRight()), Qt::blue);
}

} // namespace Zavo
