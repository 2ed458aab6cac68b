#pragma once

#include <QFont>

class QPainter;

/// The font of the time table's labels. Its size follows the DPI of the device that is painted on.
namespace Zavo::TimeTableFont {

/// Font DPI of the paint device over 96.
double dpiRatioOf(const QPainter &painter);
/// Pixel size of the labels at a DPI ratio.
int pixelSize(double dpiRatio);
QFont font(int pixelSize);

} // namespace Zavo::TimeTableFont
