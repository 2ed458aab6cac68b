#pragma once

#include <QMetaType>

namespace Zavo {

/// The frames of the switcher that can hold the selection. The numbers are its own
/// and not those of ZvSchedule::ScheduleTypes; the word of a value is the prefix of the object
/// names of its frames.
enum class SelectionType { None = 0, Calendar = 1, Week = 2, DefaultSchedule = 3 };

} // namespace Zavo

Q_DECLARE_METATYPE(Zavo::SelectionType)
