#include "timetable/RulerLines.h"

#include "timetable/TimeTableRuler.h"

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace Zavo {

namespace {

constexpr double mostKeptWidth = 8192.0; // device pixels; wider lines are drawn one by one

QPen rulerPen(int kind)
{
    QPen pen(kind == TimeTableRulerLine::HalfDay ? Qt::blue : Qt::gray, 1.0,
             kind == TimeTableRulerLine::Part ? Qt::DotLine : Qt::SolidLine);
    pen.setCosmetic(true);
    return pen;
}

bool isWhole(double value)
{
    return value == std::floor(value);
}

} // namespace

void RulerLines::paint(QPainter *painter, const TimeTableRuler &ruler, int width, double top,
                       double bottom)
{
    // Lines are drawn at the whole unit above them, so one starts up to a unit before it shows.
    const auto &lines = ruler.lines();
    const auto isAbove = [](const TimeTableRulerLine &line, double y) { return line.y < y; };
    auto line = std::lower_bound(lines.cbegin(), lines.cend(), top - 1.0, isAbove);
    const auto isInSight = [&] { return line != lines.cend() && line->y <= bottom + 1.0; };

    if (!canCopy(*painter, width)) {
        for (; isInSight(); ++line) {
            const int y = static_cast<int>(line->y);
            painter->setPen(rulerPen(line->kind));
            painter->drawLine(QLine(0, y, width, y));
        }
        return;
    }
    const QTransform toDevice = painter->deviceTransform();
    painter->setWorldTransform(toDevice.inverted() * painter->worldTransform());
    const int left = static_cast<int>(toDevice.dx());
    for (; isInSight(); ++line) {
        const double y = static_cast<int>(line->y) * toDevice.m22() + toDevice.dy();
        painter->drawImage(QPoint(left, static_cast<int>(y)),
                           rowOf(line->kind, width * toDevice.m11()));
    }
}

bool RulerLines::canCopy(const QPainter &painter, int width)
{
    const QTransform &toDevice = painter.deviceTransform();
    return toDevice.type() <= QTransform::TxScale && toDevice.m11() > 0.0 &&
           width * toDevice.m11() <= mostKeptWidth && isWhole(toDevice.m22()) &&
           isWhole(toDevice.dx()) && isWhole(toDevice.dy());
}

const QImage &RulerLines::rowOf(int kind, double deviceWidth)
{
    if (deviceWidth != m_deviceWidth) {
        m_deviceWidth = deviceWidth;
        std::fill(std::begin(m_rows), std::end(m_rows), QImage());
    }
    QImage &row = m_rows[kind];
    if (row.isNull()) {
        row = QImage(static_cast<int>(deviceWidth) + 2, 1, QImage::Format_ARGB32_Premultiplied);
        row.fill(Qt::transparent);
        QPainter painter(&row);
        painter.setPen(rulerPen(kind));
        painter.drawLine(QLineF(0.0, 0.0, deviceWidth, 0.0));
    }
    return row;
}

} // namespace Zavo
