#include "domain/ZvScheduleBasicInfo.h"

#include <QHash>

namespace Zavo {

namespace {

bool isSameSchedule(const ZvScheduleBasicInfo &info, ZvSchedule::ScheduleTypes type,
                    Weekday::Days dayOfWeek, const QDate &date)
{
    if (info.type() != type)
        return false;
    switch (type) {
    case ZvSchedule::Default:
        return true;
    case ZvSchedule::DayOfWeek:
        return info.dayOfWeek() == dayOfWeek;
    case ZvSchedule::Date:
        return info.date() == date;
    default:
        return info.dayOfWeek() == dayOfWeek && info.date() == date;
    }
}

int rankAsKey(ZvSchedule::ScheduleTypes type)
{
    switch (type) {
    case ZvSchedule::Default:
        return 0;
    case ZvSchedule::DayOfWeek:
        return 1;
    case ZvSchedule::Date:
        return 2;
    default:
        return 3;
    }
}

} // namespace

ZvScheduleBasicInfo::ZvScheduleBasicInfo(ZvSchedule::ScheduleTypes type)
    : m_type(type)
{
}

ZvScheduleBasicInfo::ZvScheduleBasicInfo(const QDate &date)
    : m_type(ZvSchedule::Date)
    , m_date(date)
{
}

ZvScheduleBasicInfo::ZvScheduleBasicInfo(Weekday::Days dayOfWeek)
    : m_type(ZvSchedule::DayOfWeek)
    , m_dayOfWeek(dayOfWeek)
{
}

ZvScheduleBasicInfo::ZvScheduleBasicInfo(const ZvSchedule &schedule)
    : m_type(schedule.type())
    , m_dayOfWeek(schedule.dayOfWeek())
    , m_date(schedule.date())
{
}

ZvSchedule::ScheduleTypes ZvScheduleBasicInfo::type() const
{
    return m_type;
}

void ZvScheduleBasicInfo::setType(ZvSchedule::ScheduleTypes type)
{
    m_type = type;
}

Weekday::Days ZvScheduleBasicInfo::dayOfWeek() const
{
    return m_dayOfWeek;
}

void ZvScheduleBasicInfo::setDayOfWeek(Weekday::Days dayOfWeek)
{
    m_dayOfWeek = dayOfWeek;
}

QDate ZvScheduleBasicInfo::date() const
{
    return m_date;
}

void ZvScheduleBasicInfo::setDate(const QDate &date)
{
    m_date = date;
}

ZvSchedule ZvScheduleBasicInfo::toSchedule() const
{
    ZvSchedule schedule;
    schedule.setType(type());
    if (type() == ZvSchedule::DayOfWeek)
        schedule.setDayOfWeek(dayOfWeek());
    else if (type() == ZvSchedule::Date)
        schedule.setDate(m_date);
    return schedule;
}

bool ZvScheduleBasicInfo::matches(const ZvSchedule &schedule) const
{
    return isSameSchedule(*this, schedule.type(), schedule.dayOfWeek(), schedule.date());
}

bool ZvScheduleBasicInfo::operator==(const ZvScheduleBasicInfo &other) const
{
    return isSameSchedule(*this, other.type(), other.dayOfWeek(), other.date());
}

bool ZvScheduleBasicInfo::operator!=(const ZvScheduleBasicInfo &other) const
{
    return !(*this == other);
}

bool ZvScheduleBasicInfo::operator<(const ZvScheduleBasicInfo &other) const
{
    switch (type()) {
    case ZvSchedule::Default:
        return other.type() != ZvSchedule::Default;
    case ZvSchedule::DayOfWeek:
        return other.type() != ZvSchedule::DayOfWeek || m_dayOfWeek < other.m_dayOfWeek;
    case ZvSchedule::Date:
        return other.type() != ZvSchedule::Date || m_date < other.m_date;
    default:
        return false;
    }
}

bool precedesAsKey(const ZvScheduleBasicInfo &first, const ZvScheduleBasicInfo &second)
{
    if (first.type() == second.type())
        return first < second;
    return rankAsKey(first.type()) < rankAsKey(second.type());
}

uint qHash(const ZvScheduleBasicInfo &info, uint seed)
{
    switch (info.type()) {
    case ZvSchedule::Date:
        return ::qHash(info.date().toJulianDay(), seed);
    case ZvSchedule::DayOfWeek:
        return ::qHash(static_cast<int>(info.dayOfWeek()), seed);
    default:
        return seed;
    }
}

} // namespace Zavo
