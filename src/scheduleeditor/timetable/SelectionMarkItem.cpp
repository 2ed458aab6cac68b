#include "timetable/SelectionMarkItem.h"

#include "timetable/CosmeticOutline.h"
#include "timetable/MereNotice.h"

#include <QPen>

namespace Zavo {

namespace {

QPen newMarkPen(const QColor &color)
{
    QPen pen(color, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    pen.setCosmetic(true);
    return pen;
}

// Marks are of one colour, so they share their pen: thousands of them come and go at once.
QPen markPen(const QColor &color)
{
    static QPen pen = newMarkPen(color);
    if (pen.color() != color)
        pen = newMarkPen(color);
    return pen;
}

} // namespace

SelectionMarkItem::SelectionMarkItem(const QRectF &rect, const QColor &color, QGraphicsItem *parent)
    : QGraphicsRectItem(rect, parent)
{
    setFlag(ItemIgnoresTransformations);
    setPen(markPen(color));
}

QVariant SelectionMarkItem::itemChange(GraphicsItemChange change, const QVariant &value)
{
    return isMereNotice(change) ? QVariant() : QGraphicsRectItem::itemChange(change, value);
}

void SelectionMarkItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    drawCosmeticOutline(painter, rect(), pen().color());
}

} // namespace Zavo
