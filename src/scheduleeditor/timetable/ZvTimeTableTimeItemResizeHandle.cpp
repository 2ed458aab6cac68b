#include "timetable/ZvTimeTableTimeItemResizeHandle.h"

#include "timetable/MereNotice.h"

#include <QPainter>
#include <QPen>

namespace Zavo {

namespace {
constexpr double maximumHandleHeight = 5.0; // px
constexpr double inset = 3.0;               // px
constexpr double lineWidth = 2.0;           // px
} // namespace

ZvTimeTableTimeItemResizeHandle::ZvTimeTableTimeItemResizeHandle(HandleType handleType,
                                                                 QGraphicsItem *parent)
    : QGraphicsObject(parent)
    , m_handleType(handleType)
{
    setFlag(ItemIgnoresTransformations);
}

QRectF ZvTimeTableTimeItemResizeHandle::boundingRect() const
{
    return {0.0, 0.0, static_cast<double>(static_cast<int>(m_handleWidth)),
            static_cast<double>(static_cast<int>(m_handleHeight))};
}

double ZvTimeTableTimeItemResizeHandle::maximumHeight() const
{
    return maximumHandleHeight;
}

void ZvTimeTableTimeItemResizeHandle::setHandleWidth(double width)
{
    if (width == m_handleWidth)
        return;
    prepareGeometryChange();
    m_handleWidth = width;
}

void ZvTimeTableTimeItemResizeHandle::setHandleHeight(double height)
{
    if (height == m_handleHeight)
        return;
    prepareGeometryChange();
    m_handleHeight = height;
}

QVariant ZvTimeTableTimeItemResizeHandle::itemChange(GraphicsItemChange change,
                                                     const QVariant &value)
{
    return isMereNotice(change) ? QVariant() : QGraphicsObject::itemChange(change, value);
}

void ZvTimeTableTimeItemResizeHandle::paint(QPainter *painter, const QStyleOptionGraphicsItem *,
                                            QWidget *)
{
    QRectF rect = boundingRect();
    rect.setWidth(rect.width() - inset);
    if (m_handleType == TopHandle)
        rect.translate(0.0, 1.0);
    if (m_handleType != NoHandle)
        rect.translate(2.0, 0.0);
    painter->fillRect(rect, QBrush(Qt::gray, Qt::Dense6Pattern));
    painter->setPen(QPen(m_color, lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    if (m_handleType & TopHandle)
        painter->drawLine(rect.topLeft(), rect.topRight());
    if (m_handleType & BottomHandle)
        painter->drawLine(rect.bottomLeft(), rect.bottomRight());
}

} // namespace Zavo
