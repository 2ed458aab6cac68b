#pragma once

#include <QColor>
#include <QString>

class QPainter;
class QRect;

namespace Zavo {

/// What a calendar shows of a date beyond its selection.
struct CalendarCell
{
    QString day;
    QColor textColor;
    bool scheduled = false;
    bool today = false;
    bool hovered = false;
};

/// Fills the cell of a selected date.
void paintSelectedCell(QPainter *painter, const QRect &rect);

/// Paints the marks of @p cell over what is there, and its day on top of them all.
void paintCalendarCell(QPainter *painter, const QRect &rect, const CalendarCell &cell);

} // namespace Zavo
