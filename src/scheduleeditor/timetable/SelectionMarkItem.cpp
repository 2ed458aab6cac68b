#include "timetable/SelectionMarkItem.h"

#include "timetable/CosmeticOutline.h"

#include <QPen>

namespace Zavo {

SelectionMarkItem::SelectionMarkItem(const QRectF &rect, const QColor &color, QGraphicsItem *parent)
    : QGraphicsRectItem(rect, parent)
{
    setFlag(ItemIgnoresTransformations);
    QPen markPen(color, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    markPen.setCosmetic(true);
    setPen(markPen);
}

void SelectionMarkItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    drawCosmeticOutline(painter, rect(), pen().color());
}

} // namespace Zavo
