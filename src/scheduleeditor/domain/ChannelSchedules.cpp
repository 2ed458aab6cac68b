#include "domain/ChannelSchedules.h"

#include "ZvChannel.h"
#include "domain/ZvScheduleBasicInfo.h"

#include <algorithm>

namespace Zavo {

namespace {

const ZvSchedule *lookUp(const ZvChannel *channel, const ZvScheduleBasicInfo &info)
{
    if (!channel)
        return nullptr;
    const QList<ZvSchedule> &schedules = channel->scheduleList();
    // A channel keeps its schedules in order: the default, the days, the dates.
    const auto found =
        std::lower_bound(schedules.cbegin(), schedules.cend(), info,
                         [](const ZvSchedule &schedule, const ZvScheduleBasicInfo &searched) {
                             return qMapLessThanKey(ZvScheduleBasicInfo(schedule), searched);
                         });
    return found != schedules.cend() && info.matches(*found) ? &*found : nullptr;
}

} // namespace

bool ChannelSchedules::contains(const ZvChannel *channel, const ZvScheduleBasicInfo &info)
{
    return lookUp(channel, info) != nullptr;
}

ZvSchedule ChannelSchedules::find(const ZvChannel *channel, const ZvScheduleBasicInfo &info)
{
    const ZvSchedule *schedule = lookUp(channel, info);
    return schedule ? *schedule : ZvSchedule();
}

QList<ZvSchedule> ChannelSchedules::findAll(const ZvChannel *channel,
                                            const QList<ZvScheduleBasicInfo> &infos)
{
    QList<ZvSchedule> found;
    for (const ZvScheduleBasicInfo &info : infos) {
        if (const ZvSchedule *schedule = lookUp(channel, info))
            found.append(*schedule);
    }
    return found;
}

int ChannelSchedules::stageCount(const ZvSchedule &schedule)
{
    return schedule.timeList().size() + (schedule.defaultStage().isEmpty() ? 0 : 1);
}

void ChannelSchedules::removeBefore(ZvChannel *channel, const QDate &limit)
{
    if (!channel)
        return;
    const QList<ZvSchedule> schedules = channel->scheduleList();
    for (const ZvSchedule &schedule : schedules) {
        if (schedule.type() == ZvSchedule::Date && schedule.date() < limit)
            channel->removeSchedule(schedule);
    }
}

} // namespace Zavo
