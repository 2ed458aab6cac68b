#include "timetable/TimeBlock.h"

#include "timetable/TimeAxis.h"

#include <algorithm>

namespace Zavo {

namespace {

constexpr int millisecondsPerSecond = 1000;

QTime onReachedSecond(QTime time)
{
    const int ms = time.msecsSinceStartOfDay();
    const int second = (ms + ZvTime::ToleranceMs) / millisecondsPerSecond * millisecondsPerSecond;
    const bool isShort = second > ms && second < TimeAxis::millisecondsPerDay;
    return isShort ? QTime::fromMSecsSinceStartOfDay(second) : time;
}

} // namespace

TimeBlock::TimeBlock(const QList<ZvTime> &times)
    : m_times(times)
{
    const QTime end = m_times.last().endTime();
    m_length = start().msecsTo(end) + (TimeAxis::isEndOfDay(end) ? 1 : 0);
}

bool TimeBlock::isCoherent() const
{
    const QTime end = m_times.last().endTime();
    return std::all_of(m_times.cbegin(), m_times.cend(), [this, end](const ZvTime &time) {
        return time.startTime() >= start() && time.startTime() <= time.endTime() &&
               time.endTime() <= end;
    });
}

bool TimeBlock::fitsAt(QTime target) const
{
    if (!isCoherent())
        return false;
    const int end = target.msecsSinceStartOfDay() + m_length;
    const bool isWholeDay = m_length == TimeAxis::millisecondsPerDay;
    return end < TimeAxis::millisecondsPerDay || (isWholeDay && target == QTime(0, 0));
}

QList<ZvTime> TimeBlock::movedTo(QTime target) const
{
    const int shift = target.msecsTo(start());
    QList<ZvTime> moved = m_times;
    for (ZvTime &time : moved) {
        time.setStartTime(time.startTime().addMSecs(-shift));
        time.setEndTime(time.endTime().addMSecs(-shift));
    }
    return moved;
}

QList<ZvTime> TimeBlock::copyOf(const QList<ZvTime> &times)
{
    QList<ZvTime> copy = times;
    for (ZvTime &time : copy) {
        time.setStartTime(onReachedSecond(time.startTime()));
        time.setEndTime(onReachedSecond(time.endTime()));
    }
    return copy;
}

} // namespace Zavo
