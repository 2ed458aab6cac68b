#include "navigation/CalendarPage.h"

#include <QAbstractItemModel>
#include <QCalendarWidget>

namespace Zavo {

CalendarPage::CalendarPage(const QCalendarWidget &calendar, const QAbstractItemModel &model)
    : m_model(model)
    , m_firstOfMonth(calendar.yearShown(), calendar.monthShown(), 1)
    , m_firstRow(calendar.horizontalHeaderFormat() == QCalendarWidget::NoHorizontalHeader ? 0 : 1)
    , m_firstColumn(calendar.verticalHeaderFormat() == QCalendarWidget::NoVerticalHeader ? 0 : 1)
{
}

QDate CalendarPage::dateAt(const QModelIndex &index) const
{
    const Cell cell{index.row(), index.column()};
    if (cell.row < m_firstRow || cell.column < m_firstColumn)
        return {};
    QDate month = m_firstOfMonth;
    if (isInPreviousMonth(cell))
        month = month.addMonths(-1);
    else if (isInNextMonth(cell))
        month = month.addMonths(1);
    return {month.year(), month.month(), dayAt(cell.row, cell.column)};
}

int CalendarPage::dayAt(int row, int column) const
{
    return m_model.index(row, column).data().toInt();
}

bool CalendarPage::isInPreviousMonth(Cell cell) const
{
    if (cell.row != m_firstRow)
        return false;
    for (int column = m_firstColumn; column < m_model.columnCount(); ++column) {
        if (dayAt(m_firstRow, column) == 1)
            return cell.column < column;
    }
    return false;
}

bool CalendarPage::isInNextMonth(Cell cell) const
{
    if (cell.row == m_firstRow)
        return false;
    const Cell last = lastCellOfMonth();
    return cell.row > last.row || (cell.row == last.row && cell.column > last.column);
}

CalendarPage::Cell CalendarPage::lastCellOfMonth() const
{
    const int lastRow = m_model.rowCount() - 1;
    const int lastColumn = m_model.columnCount() - 1;
    for (int row = lastRow; row > m_firstRow; --row) {
        for (int column = lastColumn; column >= m_firstColumn; --column) {
            if (dayAt(row, column) == 1)
                return {row, column == m_firstColumn ? lastColumn : column - 1};
        }
    }
    return {lastRow, lastColumn};
}

} // namespace Zavo
