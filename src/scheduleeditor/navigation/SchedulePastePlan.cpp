#include "navigation/SchedulePastePlan.h"

#include <algorithm>
#include <iterator>

namespace Zavo {

namespace {

/// The schedule as that of the place. A field that the place does not use stays as it came, but for
/// the default schedule, which is of no day and no date.
ZvSchedule movedTo(const ZvScheduleBasicInfo &place, const ZvSchedule &schedule)
{
    ZvSchedule moved = schedule;
    moved.setType(place.type());
    if (place.type() != ZvSchedule::Date)
        moved.setDayOfWeek(place.dayOfWeek());
    if (place.type() != ZvSchedule::DayOfWeek)
        moved.setDate(place.date());
    return moved;
}

} // namespace

void SchedulePastePlan::replace(const ZvScheduleBasicInfo &place, const ZvSchedule &schedule,
                                bool exists)
{
    if (exists)
        removed.append(place);
    if (schedule.isEmpty())
        hasEmpty = true;
    else
        inserted.append(movedTo(place, schedule));
}

QList<ZvSchedule> schedulesWithContent(const QList<ZvSchedule> &list)
{
    QList<ZvSchedule> result;
    std::copy_if(list.begin(), list.end(), std::back_inserter(result),
                 [](const ZvSchedule &schedule) { return !schedule.isEmpty(); });
    return result;
}

} // namespace Zavo
