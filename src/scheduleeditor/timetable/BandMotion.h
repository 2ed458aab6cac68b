#pragma once

#include <QList>

namespace Zavo {

class ZvTimeTableTimeItem;

/// How bands move and stretch between their neighbours. All distances in scene units.
namespace BandMotion {

struct Span
{
    double top = 0.0;
    double height = 0.0;
};

/// Moves @p items (in order of their index) by @p dy as one block, which stops as a whole at the
/// first obstacle and keeps the gaps inside it. False if an obstacle left nothing of the move.
bool move(const QList<ZvTimeTableTimeItem *> &items, double dy);

/// Where the band would be with its top or its bottom edge dragged by @p dy: not past the neighbour
/// and not shorter than five seconds.
Span spanWithTopMoved(const ZvTimeTableTimeItem &item, double dy);
Span spanWithBottomMoved(const ZvTimeTableTimeItem &item, double dy);

} // namespace BandMotion
} // namespace Zavo
