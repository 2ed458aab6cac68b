#include "timetable/ZvTimeTableTimeLabelItem.h"

#include <limits>

namespace Zavo {

ZvTimeTableTimeLabelItem::ZvTimeTableTimeLabelItem(QGraphicsItem *parent)
    : QGraphicsItem(parent)
{
    setFlag(ItemIsSelectable, false);
    setFlag(ItemHasNoContents);
    setZValue(std::numeric_limits<double>::max());
}

void ZvTimeTableTimeLabelItem::setWidth(double width)
{
    prepareGeometryChange();
    m_width = width;
}

void ZvTimeTableTimeLabelItem::setHeight(double height)
{
    prepareGeometryChange();
    m_height = height;
}

QRectF ZvTimeTableTimeLabelItem::boundingRect() const
{
    return {x(), y(), m_width, m_height};
}

void ZvTimeTableTimeLabelItem::paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) {}

} // namespace Zavo
