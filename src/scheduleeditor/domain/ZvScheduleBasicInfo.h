#pragma once

#include "Weekday.h"
#include "ZvSchedule.h"

#include <QDate>
#include <QList>
#include <QMap>
#include <QMetaType>

namespace Zavo {

/// Names a schedule of a channel without holding it: its type and, by the type, its day or date.
/// A field that the type does not use stays at its default (no day, null date) unless it is set.
class ZvScheduleBasicInfo final
{
public:
    /// Names no schedule: type 0.
    ZvScheduleBasicInfo() = default;
    explicit ZvScheduleBasicInfo(ZvSchedule::ScheduleTypes type);
    /// The schedule of a calendar date.
    explicit ZvScheduleBasicInfo(const QDate &date);
    /// The schedule of a day of the week.
    explicit ZvScheduleBasicInfo(Weekday::Days dayOfWeek);
    explicit ZvScheduleBasicInfo(const ZvSchedule &schedule);

    ZvSchedule::ScheduleTypes type() const;
    void setType(ZvSchedule::ScheduleTypes type);

    Weekday::Days dayOfWeek() const;
    void setDayOfWeek(Weekday::Days dayOfWeek);

    QDate date() const;
    void setDate(const QDate &date);

    /// An empty schedule under this name.
    ZvSchedule toSchedule() const;

    /// Whether this is the name of @p schedule, by the rule of operator==.
    bool matches(const ZvSchedule &schedule) const;

    /// Types are equal, and the day or the date that counts for the type; for a type other than
    /// default, date and day both count.
    bool operator==(const ZvScheduleBasicInfo &other) const;
    bool operator!=(const ZvScheduleBasicInfo &other) const;

    /// No strict order: a day sorts before the default schedule, and the default schedule before
    /// that day. Sort only within one type, or with the default schedule first.
    bool operator<(const ZvScheduleBasicInfo &other) const;

private:
    ZvSchedule::ScheduleTypes m_type = ZvSchedule::NoType;
    Weekday::Days m_dayOfWeek = Weekday::NoDay;
    QDate m_date;
};

/// Strict order for the keys of maps: default, days, dates, each within itself by operator<.
bool precedesAsKey(const ZvScheduleBasicInfo &first, const ZvScheduleBasicInfo &second);

/// Equal for infos that are equal.
uint qHash(const ZvScheduleBasicInfo &info, uint seed = 0);

} // namespace Zavo

Q_DECLARE_TYPEINFO(Zavo::ZvScheduleBasicInfo, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(Zavo::ZvScheduleBasicInfo)
Q_DECLARE_METATYPE(Zavo::ZvScheduleBasicInfo *)

template<>
inline bool qMapLessThanKey(const Zavo::ZvScheduleBasicInfo &key1,
                            const Zavo::ZvScheduleBasicInfo &key2)
{
    return Zavo::precedesAsKey(key1, key2);
}
