#pragma once

#include "ZvChannel.h"

/// Records that the tests of channels are made of.
namespace ChannelSamples {

inline Zavo::ZvTime band(const QTime &start, const QTime &end,
                         const QString &stage = QStringLiteral("a.xml"))
{
    return {start, end, stage};
}

inline Zavo::ZvSchedule defaultSchedule(const QList<Zavo::ZvTime> &bands = {})
{
    Zavo::ZvSchedule schedule;
    schedule.setType(Zavo::ZvSchedule::Default);
    schedule.setTimeList(bands);
    return schedule;
}

inline Zavo::ZvSchedule daySchedule(int day, const QList<Zavo::ZvTime> &bands = {})
{
    Zavo::ZvSchedule schedule;
    schedule.setType(Zavo::ZvSchedule::DayOfWeek);
    schedule.setDayOfWeek(static_cast<Zavo::Weekday::Days>(day));
    schedule.setTimeList(bands);
    return schedule;
}

inline Zavo::ZvSchedule dateSchedule(const QDate &date, const QList<Zavo::ZvTime> &bands = {})
{
    Zavo::ZvSchedule schedule;
    schedule.setType(Zavo::ZvSchedule::Date);
    schedule.setDate(date);
    schedule.setTimeList(bands);
    return schedule;
}

/// So many bands of equal length, one behind the other from midnight on.
inline QList<Zavo::ZvTime> bandsOfADay(int count)
{
    constexpr int MsPerDay = 86400000;
    const int length = MsPerDay / count;
    QList<Zavo::ZvTime> bands;
    for (int i = 0; i < count; ++i)
        bands.append(band(QTime::fromMSecsSinceStartOfDay(i * length),
                          QTime::fromMSecsSinceStartOfDay(qMin((i + 1) * length, MsPerDay - 1)),
                          QStringLiteral("stage/%1.xml").arg(i % 40)));
    return bands;
}

/// A channel with a schedule of so many bands for each of so many dates.
inline Zavo::ZvChannel channelOfDates(const QString &filePath, int dates, int bands)
{
    Zavo::ZvChannel channel(filePath);
    channel.setId(7);
    channel.setIndex(3);
    channel.setName(QStringLiteral("Station concourse"));
    for (int i = 0; i < dates; ++i)
        channel.insertSchedule(dateSchedule(QDate(2027, 1, 1).addDays(i), bandsOfADay(bands)));
    return channel;
}

inline const QList<Zavo::ZvSchedule> &schedules(const Zavo::ZvChannel &channel)
{
    return channel.scheduleList();
}

inline const QList<Zavo::ZvTime> &bands(const Zavo::ZvChannel &channel, int index = 0)
{
    return schedules(channel).at(index).timeList();
}

} // namespace ChannelSamples
