#include "stages/StageSwitching.h"

namespace Zavo {

QList<ZvTime> switchingTimes(int intervalSeconds, QTime from, QTime to, const QString &stageName)
{
    QList<ZvTime> times;
    QTime previousEnd = from;
    QTime start = from.addSecs(intervalSeconds);
    // A sum that passes midnight is an early time of the same day.
    while (start < to && start > previousEnd) {
        const QTime end = start.addSecs(intervalSeconds);
        const bool isLast = end > to || end <= start;
        times.append(ZvTime(start, isLast ? to : end, stageName));
        if (isLast)
            break;
        previousEnd = end;
        start = end.addSecs(intervalSeconds);
    }
    return times;
}

} // namespace Zavo
