#pragma once

class QAccessibleInterface;
class QObject;

namespace Zavo {

/// Shows the cells of the calendar's page to assistive technology, each with its whole date and
/// whether that has a schedule; a cell is pressed to choose its date. Null unless @p object is the
/// view of a ZvCalendarWidget.
QAccessibleInterface *createCalendarInterface(QObject *object);

} // namespace Zavo
