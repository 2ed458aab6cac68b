#pragma once

#include <QImage>

class QPainter;

namespace Zavo {

class TimeTableRuler;

/// Draws the lines of a ruler: gray on the hour, blue at midnight and noon, dotted between.
///
/// A dotted line is the dearest thing on an enlarged table. Where lines fall on whole pixels, one
/// of each kind is drawn and kept, and the others are copied from it.
class RulerLines final
{
public:
    /// Draws what lies between two y, from x 0 to @p width in the painter's coordinates. Leaves pen
    /// and transform of the painter changed.
    void paint(QPainter *painter, const TimeTableRuler &ruler, int width, double top,
               double bottom);

private:
    static constexpr int Kinds = 3;

    static bool canCopy(const QPainter &painter, int width);
    const QImage &rowOf(int kind, double deviceWidth);

    QImage m_rows[Kinds];
    double m_deviceWidth = 0.0;
};

} // namespace Zavo
