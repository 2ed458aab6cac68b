#pragma once

#include <QDate>
#include <QModelIndex>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <Qt>

class QCalendarWidget;
class QTableView;

namespace ZavoTest {

/// A mouse over the cells of a calendar, found by date. The calendar must be on show; a date that
/// is not on its page fails the test.
class CalendarMouse final
{
public:
    explicit CalendarMouse(QCalendarWidget *calendar);

    QTableView *view() const;

    /// The cell of @p date on the present page.
    QModelIndex index(const QDate &date) const;
    /// The same cell in the coordinates of the view's viewport.
    QRect cell(const QDate &date) const;
    /// The date in the top left day cell of the present page.
    QDate firstDate() const;

    void click(const QDate &date, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Moves there without a button.
    void hover(const QDate &date);
    void hover(const QPoint &viewportPosition);
    /// Leaves the view, as for another widget.
    void leave();

    /// Holds or releases a key without a click.
    void holdKeys(Qt::KeyboardModifiers modifiers);
    void releaseKeys();

private:
    QPointer<QCalendarWidget> m_calendar;
    QPointer<QTableView> m_view;
};

} // namespace ZavoTest
