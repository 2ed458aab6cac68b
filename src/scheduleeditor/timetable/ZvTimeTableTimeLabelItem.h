#pragma once

#include <QGraphicsItem>

namespace Zavo {

/// Invisible carrier of the ruler's labels, above every band. Child of the base item.
class ZvTimeTableTimeLabelItem final : public QGraphicsItem
{
public:
    explicit ZvTimeTableTimeLabelItem(QGraphicsItem *parent = nullptr);

    /// Size in scene units.
    void setWidth(double width);
    void setHeight(double height);

    /// Starts at the item's position, not at its origin.
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    double m_width = 100.0;
    double m_height = 100.0;
};

} // namespace Zavo
