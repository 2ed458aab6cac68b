#pragma once

#include "ZvTime.h"

#include <QList>
#include <QStringList>
#include <QTime>
#include <QVector>

namespace Zavo {

/// Divides the free gap at the place of a drop among the dropped stages: an equal part each, an
/// hour at the most. Pure arithmetic in scene units and milliseconds.
class StageDropPlan
{
public:
    enum Refusal { NotRefused, TooLate, Occupied, TooNarrow };

    /// Top and bottom of a band that is there already, in scene units.
    struct Span
    {
        double top = 0.0;
        double bottom = 0.0;
    };

    /// Plans for a drop at @p start. @p bands are in order; 00:00:00 is at y @p stripTop and the
    /// day ends at y @p stripBottom.
    StageDropPlan(QTime start, const QStringList &stageNames, const QVector<Span> &bands,
                  double stripTop, double stripBottom);

    Refusal refusal() const { return m_refusal; }
    /// One record for each stage; empty if refused.
    const QList<ZvTime> &times() const { return m_times; }

private:
    void findGap(double startY, const QVector<Span> &bands, double stripBottom);
    void divide(QTime start, const QStringList &stageNames, double share, double stripTop);

    Refusal m_refusal = NotRefused;
    double m_gapBottom = 0.0;
    QList<ZvTime> m_times;
};

} // namespace Zavo
