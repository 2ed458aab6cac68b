#include "timetable/TimeItemRects.h"

#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"

namespace Zavo {

namespace {

void applyRect(ZvTimeTableTimeItem *item, const QRectF &rect)
{
    // The neighbours may still stand where they are to move away from, and between size and
    // position the geometry stands for no time.
    item->setTimeUpdateBlocked(true);
    item->setPositionLimited(false);
    item->setItemWidth(rect.width());
    item->setItemHeight(rect.height());
    item->setPos(rect.topLeft());
    item->setPositionLimited(true);
    item->setTimeUpdateBlocked(false);
    item->updateTimeInfo();
}

} // namespace

TimeItemRects rectsOf(const QList<ZvTimeTableTimeItem *> &items)
{
    TimeItemRects rects;
    for (const ZvTimeTableTimeItem *item : items)
        rects.insert(item->index(), item->itemRect());
    return rects;
}

TimeItemRects changedRects(const QList<ZvTimeTableTimeItem *> &items, const TimeItemRects &before)
{
    TimeItemRects changed;
    for (const ZvTimeTableTimeItem *item : items) {
        const auto stored = before.constFind(item->index());
        if (stored != before.constEnd() && *stored != item->itemRect())
            changed.insert(item->index(), item->itemRect());
    }
    return changed;
}

void applyRects(ZvTimeTableScene *scene, const TimeItemRects &rects, bool select)
{
    const QList<ZvTimeTableTimeItem *> items = scene->timeZoneItem()->timeItems();
    if (items.isEmpty())
        return;
    if (select)
        scene->clearSelection();
    scene->setDisableSelectionChanged(true);
    for (auto entry = rects.cbegin(); entry != rects.cend(); ++entry) {
        if (entry.key() < 0 || entry.key() >= items.size())
            continue;
        ZvTimeTableTimeItem *item = items.at(entry.key());
        applyRect(item, entry.value());
        if (select)
            item->setSelected(true);
    }
    scene->setDisableSelectionChanged(false);
    if (select)
        scene->onSelectionChanged();
}

} // namespace Zavo
