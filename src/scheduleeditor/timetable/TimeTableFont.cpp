#include "timetable/TimeTableFont.h"

#include <QFontMetrics>
#include <QPainter>

namespace Zavo::TimeTableFont {

namespace {
constexpr double referenceDpi = 96.0;
constexpr double pixelSizeAtReference = 12.0;
} // namespace

double dpiRatioOf(const QPainter &painter)
{
    return painter.fontMetrics().fontDpi() / referenceDpi;
}

int pixelSize(double dpiRatio)
{
    return static_cast<int>(dpiRatio * pixelSizeAtReference);
}

QFont font(int pixelSize)
{
    QFont font(QStringLiteral("Yu Gothic UI"));
    font.setPixelSize(pixelSize);
    return font;
}

} // namespace Zavo::TimeTableFont
