#include "storage/ScheduleOrder.h"

#include "storage/BandFinder.h"

#include <algorithm>

namespace Zavo::ScheduleOrder {

namespace {
constexpr int MsPerSecond = 1000;
constexpr int MsPerDay = 86400 * MsPerSecond;

int startMs(const ZvTime &band)
{
    return band.startTime().msecsSinceStartOfDay();
}

bool startsBefore(const ZvTime &a, const ZvTime &b)
{
    return startMs(a) < startMs(b);
}

bool hasTimes(const ZvTime &band)
{
    return band.startTime().isValid() && band.endTime().isValid();
}

int rank(const ZvSchedule &schedule)
{
    switch (schedule.type()) {
    case ZvSchedule::Default:
        return 0;
    case ZvSchedule::DayOfWeek:
        return schedule.dayOfWeek();
    default:
        return Weekday::NoDay;
    }
}

QTime onWholeSecond(QTime time)
{
    if (!time.isValid())
        return time;
    const int ms = time.msecsSinceStartOfDay();
    // The last millisecond stands for 24 o'clock.
    const int nearest = qMin((ms + MsPerSecond / 2) / MsPerSecond * MsPerSecond, MsPerDay - 1);
    return qAbs(ms - nearest) > ZvTime::ToleranceMs ? time
                                                    : QTime::fromMSecsSinceStartOfDay(nearest);
}

ZvTime onWholeSeconds(const ZvTime &band)
{
    return {onWholeSecond(band.startTime()), onWholeSecond(band.endTime()), band.stageName()};
}
} // namespace

bool isPlaceable(const ZvSchedule &schedule)
{
    switch (schedule.type()) {
    case ZvSchedule::Default:
        return true;
    case ZvSchedule::Date:
        return schedule.date().isValid();
    case ZvSchedule::DayOfWeek:
        return Weekday::isDay(schedule.dayOfWeek());
    case ZvSchedule::NoType:
        break;
    }
    return false;
}

bool isBefore(const ZvSchedule &a, const ZvSchedule &b)
{
    const int rankA = rank(a);
    const int rankB = rank(b);
    if (rankA != rankB)
        return rankA < rankB;
    return rankA == Weekday::NoDay && a.date() < b.date();
}

ZvSchedule withoutForeignKeys(const ZvSchedule &schedule)
{
    ZvSchedule result = schedule;
    if (schedule.type() != ZvSchedule::Date)
        result.setDate(QDate());
    if (schedule.type() != ZvSchedule::DayOfWeek)
        result.setDayOfWeek(Weekday::NoDay);
    return result;
}

bool isInOrder(const QList<ZvTime> &bands)
{
    for (int i = 0; i < bands.size(); ++i) {
        const ZvTime &band = bands.at(i);
        if (hasTimes(band) && band.endTime() < band.startTime())
            return false;
        if (i + 1 == bands.size())
            return true;
        if (startsBefore(bands.at(i + 1), band))
            return false;
        if (band.endTime().msecsSinceStartOfDay() > startMs(bands.at(i + 1)))
            return false;
    }
    return true;
}

QList<ZvTime> inOrder(QList<ZvTime> bands)
{
    if (isInOrder(bands))
        return bands;
    std::stable_sort(bands.begin(), bands.end(), startsBefore);
    for (int i = 0; i < bands.size(); ++i) {
        ZvTime &band = bands[i];
        if (!hasTimes(band))
            continue;
        if (i + 1 < bands.size() && band.endTime() > bands.at(i + 1).startTime())
            band.setEndTime(bands.at(i + 1).startTime());
        if (band.endTime() < band.startTime())
            band.setEndTime(band.startTime());
    }
    return bands;
}

QList<ZvTime> storedAgain(const QList<ZvTime> &bands, const QList<ZvTime> &stored)
{
    QList<ZvTime> result;
    result.reserve(bands.size());
    BandFinder finder(stored);
    int kept = 0;
    for (const ZvTime &band : bands) {
        const ZvTime *found = finder.find(band);
        kept += found ? 1 : 0;
        result.append(found ? *found : onWholeSeconds(band));
    }
    // The stored list itself stays shared with the snapshots that hold it.
    if (kept == bands.size() && bands.size() == stored.size())
        return stored;
    return inOrder(result);
}

bool putInOrder(QList<ZvSchedule> *schedules)
{
    const QList<ZvSchedule> &list = *schedules;
    if (!std::all_of(list.begin(), list.end(), isPlaceable))
        return false;
    if (!std::is_sorted(list.begin(), list.end(), isBefore))
        std::stable_sort(schedules->begin(), schedules->end(), isBefore);
    const auto hasEqualKey = [](const ZvSchedule &a, const ZvSchedule &b) {
        return a.hasSameKey(b);
    };
    if (std::adjacent_find(list.begin(), list.end(), hasEqualKey) != list.end())
        return false;
    for (int i = 0; i < list.size(); ++i) {
        const QList<ZvTime> &bands = list.at(i).timeList();
        if (!isInOrder(bands))
            (*schedules)[i].setTimeList(inOrder(bands));
    }
    return true;
}

} // namespace Zavo::ScheduleOrder
