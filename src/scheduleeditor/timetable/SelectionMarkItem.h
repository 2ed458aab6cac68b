#pragma once

#include <QGraphicsRectItem>

namespace Zavo {

/// One line of the mark around a selected band: a rectangle that is not scaled with the view,
/// outlined one device pixel wide.
class SelectionMarkItem final : public QGraphicsRectItem
{
public:
    SelectionMarkItem(const QRectF &rect, const QColor &color, QGraphicsItem *parent);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
};

} // namespace Zavo
