#pragma once

#include "domain/ZvTimeTableTimeLabelInfo.h"

#include <QList>
#include <QString>
#include <QTime>
#include <QVector>

namespace Zavo {

/// One line of the ruler.
struct TimeTableRulerLine
{
    enum Kind { Part, Hour, HalfDay };

    Kind kind = Part;
    double y = 0.0;
    QTime time;
    bool isLast = false; ///< the line of 24 o'clock
};

/// The lines and labels of the ruler at one vertical scale: a line every 30 screen pixels, whole
/// hours marked, labels as far as there is room for them. Pure arithmetic.
class TimeTableRuler
{
public:
    /// Without lines, at the scale 0.
    TimeTableRuler() = default;
    /// @p verticalScale in screen pixels a minute, above 0.
    explicit TimeTableRuler(double verticalScale);

    double verticalScale() const { return m_verticalScale; }
    /// All lines of the day from top to bottom.
    const QVector<TimeTableRulerLine> &lines() const { return m_lines; }
    /// A label for each line that has a text other than that of the label above it.
    const QList<ZvTimeTableTimeLabelInfo> &labels() const { return m_labels; }

private:
    void layLines();
    void layLabels();
    QString labelOf(const TimeTableRulerLine &line) const;

    double m_verticalScale = 0.0;
    QVector<TimeTableRulerLine> m_lines;
    QList<ZvTimeTableTimeLabelInfo> m_labels;
};

} // namespace Zavo
