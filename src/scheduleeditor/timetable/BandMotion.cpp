#include "timetable/BandMotion.h"

#include "timetable/TimeAxis.h"
#include "timetable/ZvTimeTableTimeItem.h"

#include <cmath>

namespace Zavo::BandMotion {

namespace {

/// Shortens @p dy to the room in front of one band of the block, if that is less.
void limit(double &dy, double room)
{
    if (std::abs(room) <= std::abs(dy))
        dy = room;
}

double downwardDistance(const QList<ZvTimeTableTimeItem *> &items, double dy)
{
    const ZvTimeTableTimeItem *walkedBefore = nullptr;
    for (auto item = items.crbegin(); item != items.crend(); ++item) {
        // Adjoining selected bands move together: only the last of them can meet an obstacle.
        if (!walkedBefore || (*item)->nextItem() != walkedBefore)
            limit(dy, (*item)->lowerBound() - ((*item)->y() + (*item)->itemHeight()));
        walkedBefore = *item;
    }
    return dy;
}

double upwardDistance(const QList<ZvTimeTableTimeItem *> &items, double dy)
{
    const ZvTimeTableTimeItem *walkedBefore = nullptr;
    for (const ZvTimeTableTimeItem *item : items) {
        if (!walkedBefore || item->previousItem() != walkedBefore)
            limit(dy, item->upperBound() - item->y());
        walkedBefore = item;
    }
    return dy;
}

} // namespace

bool move(const QList<ZvTimeTableTimeItem *> &items, double dy)
{
    if (items.size() == 1) {
        items.first()->setY(items.first()->y() + dy);
        return true;
    }
    // Each band is clamped against its neighbour, so the one in front has to go first.
    if (dy >= 0.0) {
        dy = downwardDistance(items, dy);
        for (auto item = items.crbegin(); item != items.crend(); ++item)
            (*item)->setY((*item)->y() + dy);
    } else {
        dy = upwardDistance(items, dy);
        for (ZvTimeTableTimeItem *item : items)
            item->setY(item->y() + dy);
    }
    return dy != 0.0;
}

Span spanWithTopMoved(const ZvTimeTableTimeItem &item, double dy)
{
    const double top = item.y();
    const double height = item.itemHeight();
    if (dy < 0.0) {
        const double newTop = qMax(top + dy, item.upperBound());
        return {newTop, height + (top - newTop)};
    }
    if (height - dy < TimeAxis::shortestBand)
        return {top + height - TimeAxis::shortestBand, TimeAxis::shortestBand};
    return {top + dy, height - dy};
}

Span spanWithBottomMoved(const ZvTimeTableTimeItem &item, double dy)
{
    const double top = item.y();
    const double height = item.itemHeight() + dy;
    if (dy < 0.0)
        return {top, qMax(height, TimeAxis::shortestBand)};
    return {top, top + height > item.lowerBound() ? item.lowerBound() - top : height};
}

} // namespace Zavo::BandMotion
