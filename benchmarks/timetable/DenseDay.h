#pragma once

#include "ZvTime.h"

#include <QList>

/// The tables that are measured: many bands over a day, with room to move them.
namespace DenseDay {

constexpr int MillisecondsCovered = 23 * 60 * 60 * 1000; // the last hour stays free
constexpr int Stages = 40;

/// @p count bands, each half as long as the distance to the next one. @p shift turns the stages, so
/// that tables of different shifts differ in every band.
inline QList<Zavo::ZvTime> bands(int count, int shift = 0)
{
    QList<Zavo::ZvTime> times;
    times.reserve(count);
    const int distance = MillisecondsCovered / qMax(1, count);
    for (int i = 0; i < count; ++i) {
        const QTime start = QTime::fromMSecsSinceStartOfDay(i * distance);
        times.append({start, start.addMSecs(distance / 2),
                      QStringLiteral("station/departures-%1.xml").arg((i + shift) % Stages)});
    }
    return times;
}

} // namespace DenseDay
