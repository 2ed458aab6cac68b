#pragma once

#include <QTime>

/// The vertical axis of the time table: time runs downward and one scene unit is one minute.
///
/// QTime has no 24:00, so 23:59:59.999 stands for the end of the day: it is y 1450 and shows as
/// 24 o'clock. Conversions truncate, nothing rounds to seconds.
namespace Zavo::TimeAxis {

constexpr double topMargin = 10.0;                   ///< y of 00:00:00, in scene units
constexpr double millisecondsPerUnit = 60000.0;      ///< one scene unit is one minute
constexpr double dayLength = 1440.0;                 ///< in scene units
constexpr double dayTop = topMargin;                 ///< y of 00:00:00
constexpr double dayBottom = topMargin + dayLength;  ///< y of 24 o'clock
constexpr double shortestBand = 0.08333333333333333; ///< five seconds, in scene units
constexpr int millisecondsPerDay = 86400000;

/// 23:59:59.999, which stands for 24 o'clock.
inline QTime endOfDay()
{
    return {23, 59, 59, 999};
}

inline bool isEndOfDay(QTime time)
{
    return time.msecsSinceStartOfDay() == millisecondsPerDay - 1;
}

/// Distance of @p time from 00:00:00 in scene units.
inline double unitsOf(QTime time)
{
    return time.msecsSinceStartOfDay() / millisecondsPerUnit;
}

/// The time of the length @p units after 00:00:00, truncated to milliseconds, wrapping at midnight.
inline QTime timeOf(double units)
{
    return QTime(0, 0).addMSecs(static_cast<int>(units * millisecondsPerUnit));
}

/// The time at @p y on an axis whose 00:00:00 is at @p top; from 24 o'clock on the end of the day.
inline QTime timeAtY(double y, double top)
{
    const double units = y - top;
    return units >= dayLength ? endOfDay() : timeOf(units);
}

} // namespace Zavo::TimeAxis
