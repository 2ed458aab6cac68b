#include "timetable/ZvTimeTableTimeItem.h"

#include "timetable/BandMemory.h"
#include "timetable/CosmeticOutline.h"
#include "timetable/DrawnRange.h"
#include "timetable/MereNotice.h"
#include "timetable/TimeTableLabelPool.h"
#include "timetable/ZvTimeTableTimeItemLabel.h"

#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QPainter>

#include <initializer_list>

namespace Zavo {

namespace {

constexpr double selectedStackingOffset = 10000.0;
constexpr double handleShare = 0.5; // of the band's height

const QColor stageBackground(255, 255, 255, 128);

} // namespace

ZvTimeTableTimeItem::ZvTimeTableTimeItem(QGraphicsItem *parent)
    : ZvTimeTableTimeItem(QString(), 0, parent)
{
    m_indexLabel->setLabel(indexText());
}

ZvTimeTableTimeItem::ZvTimeTableTimeItem(const QString &stageName, int index, QGraphicsItem *parent)
    : QGraphicsObject(parent)
    , m_index(index)
    , m_stageLabel(adoptLabel(TimeTableLabelPool::take(stageName), stageBackground))
    , m_selectionRect(boundingRect(), m_markColor, this)
    , m_innerSelectionRect(boundingRect().adjusted(1.0, 1.0, -2.0, -2.0), m_markColor,
                           &m_selectionRect)
    , m_topHandle(ZvTimeTableTimeItemResizeHandle::TopHandle, this)
    , m_bottomHandle(ZvTimeTableTimeItemResizeHandle::BottomHandle, this)
    , m_indexLabel(adoptLabel(TimeTableLabelPool::takeAny(indexText()), Qt::transparent))
{
    setFlag(ItemIsSelectable);
    setFlag(ItemIsMovable, false);
    setFlag(ItemSendsScenePositionChanges);
    setFlag(ItemSendsGeometryChanges);
    m_selectionRect.setVisible(false);
    layoutHandles();
    setResizeHandleVisible(false);
    applyStackingOrder();
}

ZvTimeTableTimeItem::~ZvTimeTableTimeItem()
{
    TimeTableLabelPool::give(m_indexLabel);
    TimeTableLabelPool::give(m_stageLabel);
    if (m_previousItem)
        m_previousItem->setNextItem(m_nextItem);
    if (m_nextItem) {
        m_nextItem->setPreviousItem(m_previousItem);
        m_nextItem->renumber();
    }
}

void *ZvTimeTableTimeItem::operator new(std::size_t size)
{
    return BandMemory::take(size);
}

void ZvTimeTableTimeItem::operator delete(void *memory)
{
    BandMemory::give(memory);
}

ZvTimeTableTimeItemLabel *ZvTimeTableTimeItem::adoptLabel(ZvTimeTableTimeItemLabel *label,
                                                          const QColor &background)
{
    label->setBackgroundColor(background);
    Zavo::setDrawn(label, m_isDrawn);
    label->setPos(0.0, 0.0);
    label->setParentItem(this);
    return label;
}

QRectF ZvTimeTableTimeItem::boundingRect() const
{
    return {0.0, 0.0, m_itemWidth, m_itemHeight};
}

double ZvTimeTableTimeItem::upperBound() const
{
    return m_previousItem ? m_previousItem->y() + m_previousItem->itemHeight() : m_minimumY;
}

double ZvTimeTableTimeItem::lowerBound() const
{
    return m_nextItem ? m_nextItem->y() : m_maximumY;
}

QTime ZvTimeTableTimeItem::timeAtBound(double y) const
{
    const double milliseconds =
        y * TimeAxis::millisecondsPerUnit - m_topMargin * TimeAxis::millisecondsPerUnit;
    if (milliseconds > TimeAxis::endOfDay().msecsSinceStartOfDay())
        return TimeAxis::endOfDay();
    return QTime(0, 0).addMSecs(static_cast<int>(milliseconds));
}

QTime ZvTimeTableTimeItem::minimumStartTime() const
{
    return timeAtBound(upperBound());
}

QTime ZvTimeTableTimeItem::maximumEndTime() const
{
    return timeAtBound(lowerBound());
}

void ZvTimeTableTimeItem::setTimeInfo(const ZvTime &time)
{
    m_timeInfo = time;
    const double top = TimeAxis::unitsOf(time.startTime()) + m_topMargin;
    const double bottom = TimeAxis::isEndOfDay(time.endTime())
                              ? m_dayBottom
                              : TimeAxis::unitsOf(time.endTime()) + m_topMargin;
    setDrawn(true);
    prepareGeometryChange();
    m_itemHeight = bottom - top;

    // The neighbours may not be in place yet.
    m_positionLimited = false;
    setPos(m_left, top);
    m_positionLimited = true;

    m_stageLabel->setLabel(time.stageName());
    layoutChildren();
    update();
}

void ZvTimeTableTimeItem::setItemHeight(double height)
{
    if (height == m_itemHeight)
        return;
    setDrawn(true);
    prepareGeometryChange();
    m_itemHeight = height;
    layoutChildren();
}

void ZvTimeTableTimeItem::setItemWidth(double width)
{
    if (width == m_itemWidth)
        return;
    prepareGeometryChange();
    m_itemWidth = width;
    layoutChildren();
}

void ZvTimeTableTimeItem::setVerticalScale(double scale)
{
    if (scale == m_verticalScale)
        return;
    m_verticalScale = scale;
    layoutChildren();
}

void ZvTimeTableTimeItem::setHorizontalScale(double scale)
{
    if (scale == m_horizontalScale)
        return;
    m_horizontalScale = scale;
    layoutChildren();
}

void ZvTimeTableTimeItem::updateTimeInfo()
{
    if (m_timeUpdateBlocked)
        return;
    const double startMs =
        y() * TimeAxis::millisecondsPerUnit - m_topMargin * TimeAxis::millisecondsPerUnit;
    // A band without length can stand at 24 o'clock itself, which is no midnight.
    const int lastMs = TimeAxis::millisecondsPerDay - 1;
    const QTime start = QTime(0, 0).addMSecs(qMin(static_cast<int>(startMs), lastMs));
    const int length = static_cast<int>(m_itemHeight * TimeAxis::millisecondsPerUnit);
    QTime end = start.addMSecs(length);
    // A band that reaches 24 o'clock wraps to midnight here; one without length ends where it
    // starts.
    if (end <= start && length != 0)
        end = TimeAxis::endOfDay();
    if (m_timeInfo.startTime() == start && m_timeInfo.endTime() == end)
        return;
    m_timeInfo.setStartTime(start);
    m_timeInfo.setEndTime(end);
    Q_EMIT timeInfoChanged(m_timeInfo);
}

void ZvTimeTableTimeItem::setDrawn(bool drawn)
{
    if (drawn == m_isDrawn)
        return;
    m_isDrawn = drawn;
    for (QGraphicsItem *item : std::initializer_list<QGraphicsItem *>{
             this, m_stageLabel, &m_selectionRect, &m_innerSelectionRect, m_indexLabel})
        Zavo::setDrawn(item, drawn);
}

void ZvTimeTableTimeItem::renumber()
{
    int index = m_previousItem ? m_previousItem->index() + 1 : 0;
    for (ZvTimeTableTimeItem *item = this; item; item = item->nextItem())
        item->setIndex(index++);
}

void ZvTimeTableTimeItem::setIndex(int index)
{
    setIndexOnly(index);
    m_indexLabel->setLabel(indexText());
}

void ZvTimeTableTimeItem::setIndexOnly(int index)
{
    if (index == m_index)
        return;
    m_index = index;
    applyStackingOrder();
}

QString ZvTimeTableTimeItem::indexText() const
{
    return QStringLiteral("#%1").arg(m_index);
}

void ZvTimeTableTimeItem::setIndexLabel(ZvTimeTableTimeItemLabel *label)
{
    m_indexLabel = adoptLabel(label, Qt::transparent);
}

void ZvTimeTableTimeItem::applyStackingOrder()
{
    setZValue(isSelected() ? m_index + selectedStackingOffset : m_index);
}

void ZvTimeTableTimeItem::onSelectionChanged(bool selected)
{
    m_selectionRect.setVisible(selected);
    applyStackingOrder();
    if (!selected)
        setResizeHandleVisible(false);
}

void ZvTimeTableTimeItem::setResizeHandleVisible(bool visible)
{
    m_topHandle.setVisible(visible);
    m_bottomHandle.setVisible(visible);
}

QPointF ZvTimeTableTimeItem::limitedPosition(const QPointF &position) const
{
    // With a gap that is too small the lower bound wins.
    const double notAbove = qMax(position.y(), upperBound());
    return {m_left, qMin(notAbove, lowerBound() - m_itemHeight)};
}

QVariant ZvTimeTableTimeItem::itemChange(GraphicsItemChange change, const QVariant &value)
{
    if (isMereNotice(change))
        return {};
    if (!scene())
        return QGraphicsObject::itemChange(change, value);
    switch (change) {
    case ItemPositionChange:
        setDrawn(true);
        if (m_positionLimited)
            return limitedPosition(value.toPointF());
        break;
    case ItemPositionHasChanged:
        updateTimeInfo();
        layoutHandles();
        break;
    case ItemSelectedHasChanged:
        onSelectionChanged(value.toBool());
        break;
    default:
        break;
    }
    return QGraphicsObject::itemChange(change, value);
}

void ZvTimeTableTimeItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    // The context menu acts on what is selected, so opening it must not change that.
    if (event->button() == Qt::RightButton) {
        event->accept();
        return;
    }
    QGraphicsObject::mousePressEvent(event);
}

void ZvTimeTableTimeItem::layoutChildren()
{
    const double screenWidth = m_itemWidth * m_horizontalScale;
    const double screenHeight = m_itemHeight * m_verticalScale;

    const QSizeF labelSize = m_stageLabel->boundingRect().size();
    m_stageLabel->setPos((screenWidth - labelSize.width()) * 0.5 / m_horizontalScale,
                         (screenHeight - labelSize.height()) * 0.5 / m_verticalScale);

    const QRectF mark(0.0, 0.0, screenWidth, screenHeight);
    m_selectionRect.setRect(mark);
    m_innerSelectionRect.setRect(mark.adjusted(1.0, 1.0, -1.0, -1.0));

    m_topHandle.setHandleWidth(screenWidth);
    m_bottomHandle.setY((screenHeight - m_bottomHandle.handleHeight()) / m_verticalScale);
    m_bottomHandle.setHandleWidth(screenWidth);
}

void ZvTimeTableTimeItem::layoutHandles()
{
    const double height = qMin(m_itemHeight * handleShare, m_topHandle.maximumHeight());
    for (ZvTimeTableTimeItemResizeHandle *handle : {&m_topHandle, &m_bottomHandle}) {
        handle->setHandleWidth(m_itemWidth);
        handle->setHandleHeight(height);
    }
    m_topHandle.setPos(0.0, 0.0);
    m_bottomHandle.setPos(0.0, (m_itemHeight * m_verticalScale - m_bottomHandle.handleHeight()) /
                                   m_verticalScale);
}

void ZvTimeTableTimeItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    static const QColor fill(QStringLiteral("lavender"));
    painter->fillRect(boundingRect(), fill);
    if (!isSelected())
        drawCosmeticOutline(painter, boundingRect(), Qt::black);
}

} // namespace Zavo
