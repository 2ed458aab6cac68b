#include "timetable/StageDropPlan.h"

#include "timetable/TimeAxis.h"

namespace Zavo {

namespace {

constexpr double leastShare = 0.0033333333333333335; // scene units
constexpr double longestBand = 60.0;                 // scene units
constexpr int tailLimit = 5000;                      // ms

QTime latestStart()
{
    return {23, 59, 55};
}

/// Where a band from @p start ends: a step later, but at the end of the day if that passes
/// midnight, and at the gap's end if too little would remain of it.
QTime endOfStep(QTime start, int stepMs, QTime gapEnd)
{
    QTime end = start.addMSecs(stepMs);
    if (end <= start)
        end = TimeAxis::endOfDay();
    return end.msecsTo(gapEnd) < tailLimit ? gapEnd : end;
}

} // namespace

StageDropPlan::StageDropPlan(QTime start, const QStringList &stageNames, const QVector<Span> &bands,
                             double stripTop, double stripBottom)
{
    if (start >= latestStart()) {
        m_refusal = TooLate;
        return;
    }
    const double startY = TimeAxis::unitsOf(start) + stripTop;
    findGap(startY, bands, stripBottom);
    if (m_refusal != NotRefused || stageNames.isEmpty())
        return;
    const double share = (m_gapBottom - startY) / stageNames.size();
    if (leastShare > share) {
        m_refusal = TooNarrow;
        return;
    }
    divide(start, stageNames, share, stripTop);
}

void StageDropPlan::findGap(double startY, const QVector<Span> &bands, double stripBottom)
{
    m_gapBottom = stripBottom;
    for (const Span &band : bands) {
        if (startY <= band.top) {
            m_gapBottom = band.top;
            return;
        }
        if (band.bottom > startY) {
            m_refusal = Occupied;
            return;
        }
    }
}

void StageDropPlan::divide(QTime start, const QStringList &stageNames, double share,
                           double stripTop)
{
    const int stepMs = static_cast<int>(qMin(longestBand, share) * TimeAxis::millisecondsPerUnit);
    const QTime gapEnd = TimeAxis::timeAtY(m_gapBottom, stripTop);
    for (const QString &stageName : stageNames) {
        const QTime end = endOfStep(start, stepMs, gapEnd);
        m_times.append(ZvTime(start, end, stageName));
        start = end;
    }
}

} // namespace Zavo
