#pragma once

#include <QGraphicsItem>

#include <limits>

namespace Zavo {

/// The part of the day whose items are drawn, in scene units: what is in sight and some more.
///
/// The scene offers all items to every paint, which costs more than painting those in sight once a
/// table is enlarged. Items outside of the range are marked as having no contents, and the scene
/// passes over them before it asks where they are. Nothing else changes about them.
struct DrawnRange
{
    double top = -std::numeric_limits<double>::infinity();
    double bottom = std::numeric_limits<double>::infinity();

    double length() const { return bottom - top; }
    bool contains(const DrawnRange &other) const
    {
        return top <= other.top && other.bottom <= bottom;
    }
    /// True if anything from @p from to @p to lies in the range.
    bool meets(double from, double to) const { return from <= bottom && top <= to; }
    DrawnRange grownBy(double distance) const { return {top - distance, bottom + distance}; }

    bool operator==(const DrawnRange &other) const
    {
        return top == other.top && bottom == other.bottom;
    }
};

inline void setDrawn(QGraphicsItem *item, bool drawn)
{
    item->setFlag(QGraphicsItem::ItemHasNoContents, !drawn);
}

} // namespace Zavo
