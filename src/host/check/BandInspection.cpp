#include "check/BandInspection.h"

#include <algorithm>

namespace Zavo {

namespace {

bool startsEarlier(const TimeSpan &a, const TimeSpan &b)
{
    return a.fromMs < b.fromMs;
}

/// The last millisecond stands for 24 o'clock.
int endOf(const ZvTime &band)
{
    const int ms = band.endTime().msecsSinceStartOfDay();
    return ms >= BandInspection::DayMs - 1 ? BandInspection::DayMs : ms;
}

} // namespace

BandInspection BandInspection::of(const ZvSchedule &schedule)
{
    BandInspection result;
    const QList<ZvTime> &bands = schedule.timeList();
    QVector<TimeSpan> spans;
    spans.reserve(bands.size());
    for (const ZvTime &band : bands) {
        const TimeSpan span{band.startTime().msecsSinceStartOfDay(), endOf(band)};
        const bool isEmpty = band.isEmpty() || band.startTime() == band.endTime();
        (isEmpty ? result.emptyBands : spans).append(span);
    }
    if (!std::is_sorted(spans.cbegin(), spans.cend(), startsEarlier))
        std::stable_sort(spans.begin(), spans.end(), startsEarlier);
    int covered = 0;
    for (const TimeSpan &span : qAsConst(spans)) {
        if (span.fromMs > covered + ZvTime::ToleranceMs)
            result.gaps.append({covered, span.fromMs});
        else if (span.fromMs < covered - ZvTime::ToleranceMs)
            result.overlaps.append({span.fromMs, qMin(covered, span.toMs)});
        covered = qMax(covered, span.toMs);
    }
    if (covered < DayMs - ZvTime::ToleranceMs)
        result.gaps.append({covered, DayMs});
    if (!schedule.defaultStage().isEmpty())
        result.gaps.clear();
    return result;
}

} // namespace Zavo
