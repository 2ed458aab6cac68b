#include "navigation/ScheduleListPaste.h"

#include "domain/ChannelSchedules.h"

#include <algorithm>
#include <iterator>

namespace Zavo {

namespace {

QList<ZvSchedule> withoutEmpty(const QList<ZvSchedule> &schedules)
{
    QList<ZvSchedule> kept;
    std::copy_if(schedules.cbegin(), schedules.cend(), std::back_inserter(kept),
                 [](const ZvSchedule &schedule) { return !schedule.isEmpty(); });
    return kept;
}

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

ScheduleListPaste planScheduleListPaste(const QList<ZvSchedule> &schedules,
                                        const ZvScheduleBasicInfo &destination, bool repeat,
                                        const ZvChannel *channel)
{
    ScheduleListPaste paste;
    const QList<ZvSchedule> kept = withoutEmpty(schedules);
    if (kept.isEmpty() || destination.type() == ZvSchedule::NoType)
        return paste;
    const bool repeats = repeat && destination.type() == ZvSchedule::Date;
    const int count = repeats ? kept.size() : 1;
    for (int i = 0; i < count; ++i) {
        ZvScheduleBasicInfo place = destination;
        place.setDate(destination.date().addDays(i));
        if (ChannelSchedules::contains(channel, place))
            paste.removeList.append(place);
        paste.insertList.append(renamed(kept.at(i), place));
    }
    return paste;
}

} // namespace Zavo
