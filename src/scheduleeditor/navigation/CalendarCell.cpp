#include "navigation/CalendarCell.h"

#include <QPainter>

namespace Zavo {

namespace {

constexpr double scheduleFrameWidth = 2.0; // px

const QColor selectedFill(204, 204, 255);
const QColor scheduleFrameColor(153, 153, 204);
const QColor todayTint(0, 255, 0, 32);
const QColor hoverTint(240, 240, 250, 128);

void paintDay(QPainter *painter, const QRect &rect, const CalendarCell &cell)
{
    // On the whole pixel where the base class has written the same number.
    QRect line(rect.left(), rect.top(), rect.width(), painter->fontMetrics().height());
    line.moveTop(rect.top() + rect.height() / 2 - line.height() / 2);
    painter->save();
    painter->setPen(cell.textColor);
    painter->drawText(line, Qt::AlignCenter | Qt::TextSingleLine, cell.day);
    painter->restore();
}

void paintSchedule(QPainter *painter, const QRect &rect, const CalendarCell &cell)
{
    painter->save();
    QFont font = painter->font();
    font.setWeight(QFont::Bold);
    painter->setFont(font);
    paintDay(painter, rect, cell);
    painter->setPen(
        QPen(scheduleFrameColor, scheduleFrameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect.adjusted(1, 1, -1, -1));
    painter->restore();
}

} // namespace

void paintSelectedCell(QPainter *painter, const QRect &rect)
{
    painter->fillRect(rect, selectedFill);
}

void paintCalendarCell(QPainter *painter, const QRect &rect, const CalendarCell &cell)
{
    if (cell.scheduled)
        paintSchedule(painter, rect, cell);
    if (cell.today)
        painter->fillRect(rect, todayTint);
    if (cell.hovered)
        painter->fillRect(rect, hoverTint);
    // The fills have washed the number out.
    paintDay(painter, rect, cell);
}

} // namespace Zavo
