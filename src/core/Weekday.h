#pragma once

#include <QMetaType>

namespace Zavo {

/// The days of the week as schedules use them. 1 to 7 are the values of Qt::DayOfWeek, so the two
/// enumerations may be cast into each other.
class Weekday
{
public: /// The days in the order of the week, and one that stands for none.
    enum Days : int {
        Monday = 1,
        Tuesday = 2,
        Wednesday = 3,
        Thursday = 4,
        Friday = 5,
        Saturday = 6,
        Sunday = 7,
        NoDay = 8,
    };

    Weekday() = delete;

    /// True for Monday to Sunday.
    static constexpr bool isDay(Days day) { return day >= Monday && day <= Sunday; }
};

} // namespace Zavo

Q_DECLARE_METATYPE(Zavo::Weekday::Days)
