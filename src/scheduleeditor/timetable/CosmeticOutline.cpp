#include "timetable/CosmeticOutline.h"

#include <QColor>
#include <QPainter>

#include <cmath>

namespace Zavo {

void drawCosmeticOutline(QPainter *painter, const QRectF &rect, const QColor &color)
{
    if (color.alpha() == 0)
        return;
    const QTransform toDevice = painter->deviceTransform();
    const QPointF topLeft = toDevice.map(rect.topLeft());
    const QPointF bottomRight = toDevice.map(rect.bottomRight());
    const double left = std::floor(topLeft.x());
    const double top = std::floor(topLeft.y());
    const double right = std::floor(bottomRight.x());
    const double bottom = std::floor(bottomRight.y());

    const QTransform toLogical = toDevice.inverted();
    const auto fill = [&](double x, double y, double width, double height) {
        painter->fillRect(toLogical.mapRect(QRectF(x, y, width, height)), color);
    };
    fill(left, top, right - left + 1.0, 1.0);
    if (bottom > top)
        fill(left, bottom, right - left + 1.0, 1.0);
    const double sideHeight = bottom - top - 1.0;
    if (sideHeight <= 0.0)
        return;
    fill(left, top + 1.0, 1.0, sideHeight);
    if (right > left)
        fill(right, top + 1.0, 1.0, sideHeight);
}

} // namespace Zavo
