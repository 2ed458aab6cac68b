#pragma once

#include "ZvSchedule.h"
#include "domain/ZvScheduleBasicInfo.h"

#include <QList>

namespace Zavo {

class ZvChannel;

/// What a paste takes out of a channel and puts into it.
struct ScheduleListPaste
{
    QList<ZvScheduleBasicInfo> removeList;
    QList<ZvSchedule> insertList;
};

/// The paste of those of @p schedules that are not empty to @p destination: of the first alone, or,
/// with @p repeat and a date, of each to a day of its own from that date on. What stands there is
/// replaced. Nothing for a destination without a type.
ScheduleListPaste planScheduleListPaste(const QList<ZvSchedule> &schedules,
                                        const ZvScheduleBasicInfo &destination, bool repeat,
                                        const ZvChannel *channel);

} // namespace Zavo
