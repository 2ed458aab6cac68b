#pragma once

#include "Weekday.h"
#include "ZvCoreExport.h"
#include "ZvTime.h"

#include <QDate>
#include <QList>
#include <QMetaType>
#include <QString>

namespace Zavo {

/// One time table of a channel: for which days it stands, its default stage and its bands. A plain
/// value whose list of bands is shared between copies until one of them is written to.
///
/// An empty schedule stands for one that does not exist.
class ZVCORE_EXPORT ZvSchedule
{
public: /// For which days a schedule stands.
    enum ScheduleTypes : int {
        NoType = 0,
        Default = 1,   ///< for the days that have no other schedule
        Date = 2,      ///< for the date()
        DayOfWeek = 3, ///< for the dayOfWeek()
    };

    /// Type 0, no date, no day, no content.
    ZvSchedule() = default;

    ScheduleTypes type() const { return m_type; }           ///< the first part of the key
    Weekday::Days dayOfWeek() const { return m_dayOfWeek; } ///< counts for the type DayOfWeek
    QDate date() const { return m_date; }                   ///< counts for the type Date

    /// Name of the stage that fills the gaps between the bands; empty for none.
    QString defaultStage() const { return m_defaultStage; }

    /// The live list of bands, sorted by start. A caller that only looks binds it to a reference to
    /// const: writing parts it from the lists that it is shared with.
    QList<ZvTime> &timeList() const { return m_timeList; }

    /// True exactly when there is no default stage, no band, no valid date and no day from Monday
    /// to Sunday. So a schedule made for a date or a day exists without content, too.
    bool isEmpty() const;

    /// True if both stand for the same days: the same type and, as far as the type uses it, the
    /// same day or date.
    bool hasSameKey(const ZvSchedule &other) const;

    void setType(ScheduleTypes type) { m_type = type; }                        ///< changes the key
    void setDayOfWeek(Weekday::Days day) { m_dayOfWeek = day; }                ///< changes the key
    void setDate(const QDate &date) { m_date = date; }                         ///< changes the key
    void setDefaultStage(const QString &name) { m_defaultStage = name; }       ///< empty for none
    void setTimeList(const QList<ZvTime> &timeList) { m_timeList = timeList; } ///< sorted
    /// @{
    /// Same key, same default stage and equal bands in the same order.
    ZVCORE_EXPORT friend bool operator==(const ZvSchedule &a, const ZvSchedule &b);
    friend bool operator!=(const ZvSchedule &a, const ZvSchedule &b) { return !(a == b); }
    /// @}
private:
    ScheduleTypes m_type = NoType;
    Weekday::Days m_dayOfWeek = Weekday::NoDay;
    QDate m_date;
    QString m_defaultStage;
    mutable QList<ZvTime> m_timeList;
};

} // namespace Zavo

Q_DECLARE_TYPEINFO(Zavo::ZvSchedule, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(Zavo::ZvSchedule)
Q_DECLARE_METATYPE(Zavo::ZvSchedule::ScheduleTypes)
