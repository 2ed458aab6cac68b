#pragma once

#include "ZvSchedule.h"

#include <QVector>

namespace Zavo {

/// A part of a day, in milliseconds from midnight. 24 o'clock is the full day's length here.
struct TimeSpan
{
    int fromMs = 0;
    int toMs = 0;
};

/// What is to be said of the bands of one schedule, in the order in which a file has them. Times
/// that differ by no more than ZvTime::ToleranceMs are the same.
struct BandInspection
{
    static constexpr int DayMs = 86400 * 1000;

    /// Time without any stage, ascending. None if there is a default stage.
    QVector<TimeSpan> gaps;

    /// Time for which a band stands although an earlier one does, ascending.
    QVector<TimeSpan> overlaps;

    /// Bands without stage or duration, as they stand in the file.
    QVector<TimeSpan> emptyBands;

    static BandInspection of(const ZvSchedule &schedule);
};

} // namespace Zavo
