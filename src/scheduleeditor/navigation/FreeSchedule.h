#pragma once

#include "domain/ZvScheduleBasicInfo.h"

#include <QDate>
#include <QMap>

namespace Zavo {

/// A schedule to propose for creation, given that @p info is selected: @p info itself if it is
/// free, else the next free day of the week, else the next free date, for a day from @p today on.
/// The keys of @p existing are the schedules of the channel.
///
/// The answer for an existing default schedule is a null date; of type 0 if 1098 dates in a row are
/// taken.
ZvScheduleBasicInfo findFreeSchedule(const QMap<ZvScheduleBasicInfo, bool> &existing,
                                     const ZvScheduleBasicInfo &info, const QDate &today);

} // namespace Zavo
