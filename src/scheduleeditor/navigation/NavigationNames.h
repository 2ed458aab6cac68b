#pragma once

/// Names that the widgets of schedule navigation are found by.
namespace Zavo::NavigationName {

// The frames of the switcher and what they hold. A name begins with the word of the SelectionType
// that it stands for.
inline constexpr char CalendarFrame[] = "CalendarSelectedWidget";
inline constexpr char CalendarWidget[] = "CalendarWidget";
inline constexpr char CalendarOuterWidget[] = "CalendarOuterWidget";
inline constexpr char WeekFrame[] = "WeekSelectedWidget";
inline constexpr char WeekWidget[] = "WeekWidget";
inline constexpr char DefaultFrame[] = "DefaultScheduleSelectedWidget";
inline constexpr char DefaultWidget[] = "DefaultScheduleWidget";

inline constexpr char ExecutedSchedule[] = "zv_schedule_executed_name";

// Properties that style sheets read.
inline constexpr char SelectedProperty[] = "selected";
inline constexpr char PressedProperty[] = "pressed";
inline constexpr char ScheduledProperty[] = "scheduled";

// The parts of a QCalendarWidget.
inline constexpr char CalendarView[] = "qt_calendar_calendarview";
inline constexpr char CalendarNavigationBar[] = "qt_calendar_navigationbar";
inline constexpr char CalendarPreviousMonth[] = "qt_calendar_prevmonth";
inline constexpr char CalendarNextMonth[] = "qt_calendar_nextmonth";
inline constexpr char CalendarMonthButton[] = "qt_calendar_monthbutton";
inline constexpr char CalendarYearButton[] = "qt_calendar_yearbutton";
inline constexpr char CalendarYearEdit[] = "qt_calendar_yearedit";

inline constexpr char CalendarMenuButton[] = "zv_calendar_menubutton";
/// Property of the year button: the word behind the year.
inline constexpr char YearNameProperty[] = "yearname";

inline constexpr char FirstDayOfWeekMenu[] = "Menu_First_Day_Of_Week";
inline constexpr char ClearSelectionsAction[] = "Action_ClearSelections";
inline constexpr char ShowWeekNumberAction[] = "Action_ShowWeekNumber";
/// Followed by the number of the day.
inline constexpr char FirstDayOfWeekActionPrefix[] = "Action_FirstDayOfWeek_";

inline constexpr char ScheduleListToolMenu[] = "Menu_ToolMenu";
inline constexpr char NewScheduleAction[] = "Action_New_Schedule";

// The radio buttons of the dialog that specifies a schedule. A word follows the first, the number
// of the day the second.
inline constexpr char TypeButtonPrefix[] = "Type_";
inline constexpr char DayButtonPrefix[] = "DayOfWeek_";
/// Property of these buttons: the number of the type or of the day.
inline constexpr char ValueProperty[] = "value";

} // namespace Zavo::NavigationName
