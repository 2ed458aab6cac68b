#include "navigation/ScheduleListPaste.h"

#include "domain/ChannelSchedules.h"

namespace Zavo {

namespace {

/// A copy under another name; fields that the name does not use stay as they came.
ZvSchedule renamed(ZvSchedule schedule, const ZvScheduleBasicInfo &name)
{
    schedule.setType(name.type());
    if (name.type() == ZvSchedule::DayOfWeek)
        schedule.setDayOfWeek(name.dayOfWeek());
    else if (name.type() == ZvSchedule::Date)
        schedule.setDate(name.date());
    return schedule;
}

} // namespace

SchedulePastePlan planScheduleListPaste(const QList<ZvSchedule> &schedules,
                                        const ZvScheduleBasicInfo &destination, bool repeat,
                                        const ZvChannel *channel)
{
    SchedulePastePlan plan;
    const QList<ZvSchedule> kept = schedulesWithContent(schedules);
    if (kept.isEmpty() || destination.type() == ZvSchedule::NoType)
        return plan;
    const bool repeats = repeat && destination.type() == ZvSchedule::Date;
    const int count = repeats ? kept.size() : 1;
    for (int i = 0; i < count; ++i) {
        ZvScheduleBasicInfo place = destination;
        place.setDate(destination.date().addDays(i));
        if (ChannelSchedules::contains(channel, place))
            plan.removed.append(place);
        plan.inserted.append(renamed(kept.at(i), place));
    }
    return plan;
}

} // namespace Zavo
