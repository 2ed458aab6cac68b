#include "navigation/FreeSchedule.h"

namespace Zavo {

namespace {

using ExistingSchedules = QMap<ZvScheduleBasicInfo, bool>;

constexpr int DaysOfWeek = 7;
constexpr int SearchedDates = 1098;

/// The first free day from @p start on, around the week; an info of type 0 if there is none.
ZvScheduleBasicInfo findFreeDay(const ExistingSchedules &existing, int start)
{
    for (int i = 0; i < DaysOfWeek; ++i) {
        const int day = (start - Weekday::Monday + i) % DaysOfWeek + Weekday::Monday;
        const ZvScheduleBasicInfo info(static_cast<Weekday::Days>(day));
        if (!existing.contains(info))
            return info;
    }
    return {};
}

ZvScheduleBasicInfo findFreeDate(const ExistingSchedules &existing, const QDate &start)
{
    for (int i = 0; i < SearchedDates; ++i) {
        const ZvScheduleBasicInfo info(start.addDays(i));
        if (!existing.contains(info))
            return info;
    }
    return {};
}

} // namespace

ZvScheduleBasicInfo findFreeSchedule(const QMap<ZvScheduleBasicInfo, bool> &existing,
                                     const ZvScheduleBasicInfo &info, const QDate &today)
{
    const ZvScheduleBasicInfo monday(Weekday::Monday);
    if (existing.isEmpty())
        return monday;
    if (!existing.contains(info))
        return info.type() == ZvSchedule::Default ? monday : info;
    if (info.type() != ZvSchedule::DayOfWeek)
        return findFreeDate(existing, info.date());
    const bool isDay = info.dayOfWeek() >= Weekday::Monday && info.dayOfWeek() <= Weekday::Sunday;
    const ZvScheduleBasicInfo day =
        findFreeDay(existing, isDay ? info.dayOfWeek() : Weekday::Monday);
    return day.type() == ZvSchedule::DayOfWeek ? day : findFreeDate(existing, today);
}

} // namespace Zavo
