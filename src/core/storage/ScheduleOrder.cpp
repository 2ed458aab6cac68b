#include "storage/ScheduleOrder.h"

#include <algorithm>
#include <tuple>

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
    const int nearest = (ms + MsPerSecond / 2) / MsPerSecond * MsPerSecond;
    if (qAbs(ms - nearest) > ZvTime::ToleranceMs)
        return time;
    // The last millisecond stands for 24 o'clock.
    return QTime::fromMSecsSinceStartOfDay(qMin(nearest, MsPerDay - 1));
}

ZvTime onWholeSeconds(const ZvTime &band)
{
    return {onWholeSecond(band.startTime()), onWholeSecond(band.endTime()), band.stageName()};
}

/// Finds the bands of a list in another, both sorted by start, in one walk over the two.
class BandFinder
{
public:
    explicit BandFinder(const QList<ZvTime> &stored)
        : m_stored(stored)
    {
    }

    const ZvTime *find(const ZvTime &band)
    {
        if (m_next < m_stored.size() && m_stored.at(m_next) == band)
            return &m_stored.at(m_next++);
        const int from = startMs(band) - ZvTime::ToleranceMs;
        const int to = startMs(band) + ZvTime::ToleranceMs;
        while (m_first < m_stored.size() && startMs(m_stored.at(m_first)) < from)
            ++m_first;
        for (int i = m_first; i < m_stored.size() && startMs(m_stored.at(i)) <= to; ++i) {
            if (m_stored.at(i) == band) {
                m_next = i + 1;
                return &m_stored.at(i);
            }
        }
        return nullptr;
    }

private:
    const QList<ZvTime> &m_stored;
    int m_first = 0; // before it, all bands start too early
    int m_next = 0;  // most often the one that is asked for
};
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
