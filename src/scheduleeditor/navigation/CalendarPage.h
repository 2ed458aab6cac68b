#pragma once

#include <QDate>

class QAbstractItemModel;
class QCalendarWidget;
class QModelIndex;

namespace Zavo {

/// Which date stands in a cell of the page that a calendar shows. The model of the calendar tells
/// the numbers of the days alone, so the months are told apart by where their first days stand; a
/// row of the first or the next month alone, which begins a page or follows its month's last full
/// week, counts as one of the month shown.
class CalendarPage final
{
public:
    /// Both must outlive the page.
    CalendarPage(const QCalendarWidget &calendar, const QAbstractItemModel &model);

    /// Null for no cell and for the cells of weekdays and week numbers, invalid for a number that
    /// the month does not have.
    QDate dateAt(const QModelIndex &index) const;

private:
    struct Cell
    {
        int row;
        int column;
    };

    int dayAt(int row, int column) const;
    bool isInPreviousMonth(Cell cell) const;
    bool isInNextMonth(Cell cell) const;
    Cell lastCellOfMonth() const;

    const QAbstractItemModel &m_model;
    QDate m_firstOfMonth;
    int m_firstRow;
    int m_firstColumn;
};

} // namespace Zavo
