#pragma once

#include "navigation/SchedulePastePlan.h"

namespace Zavo {

class ZvChannel;

/// The paste of those of @p schedules that are not empty to @p destination: of the first alone, or,
/// with @p repeat and a date, of each to a day of its own from that date on. What stands there is
/// replaced. Nothing for a destination without a type.
SchedulePastePlan planScheduleListPaste(const QList<ZvSchedule> &schedules,
                                        const ZvScheduleBasicInfo &destination, bool repeat,
                                        const ZvChannel *channel);

} // namespace Zavo
