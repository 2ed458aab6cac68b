#pragma once

class QAction;
class QMenu;

namespace Zavo {

class ZvCalendarWidget;

/// What the entries of a calendar's menu show.
struct CalendarMenuState
{
    bool severalSelected = false;
    bool weekNumbersShown = false;
    int firstDayOfWeek = 7; ///< a Qt::DayOfWeek
};

/// A menu of the entries of @p calendar, which owns it and whose slots it is connected to.
QMenu *createCalendarMenu(ZvCalendarWidget *calendar);

/// Brings a menu of createCalendarMenu() in line with @p state.
void updateCalendarMenu(const QMenu *menu, const CalendarMenuState &state);

/// The Qt::DayOfWeek that the object name of @p action, one of the first days of the week, ends
/// with; 0 if it ends with none.
int dayOfWeekOfAction(const QAction *action);

/// Takes the actions of @p oldEditMenu out of @p menu with the separator below them, and puts those
/// of @p newEditMenu in front with a separator. Either edit menu may be null.
void exchangeEditActions(QMenu *menu, const QMenu *oldEditMenu, const QMenu *newEditMenu);

} // namespace Zavo
