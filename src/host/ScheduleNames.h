#pragma once

#include <QString>

namespace Zavo {

class ZvSchedule;

/// How the program names schedules to people, outside the editor's own displays.
namespace ScheduleNames {

/// "Default schedule", the name of the day, or the date as yyyy-MM-dd, which reads the same
/// everywhere.
QString of(const ZvSchedule &schedule);

/// A time of day of so many milliseconds as hh:mm, with seconds and milliseconds where they are not
/// zero. The end of the day, also as the last millisecond that stands for it, is 24:00.
QString timeText(int ms);

} // namespace ScheduleNames
} // namespace Zavo
