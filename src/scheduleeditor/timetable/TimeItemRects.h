#pragma once

#include <QList>
#include <QMap>
#include <QRectF>

namespace Zavo {

class ZvTimeTableScene;
class ZvTimeTableTimeItem;

/// The geometry of bands as undo knows it: rectangles in the strip's coordinates by the index of
/// the band. A move never changes the order of the bands, so an index stays valid.
using TimeItemRects = QMap<int, QRectF>;

TimeItemRects rectsOf(const QList<ZvTimeTableTimeItem *> &items);

/// The rectangles of @p items that are not those in @p before; an item without a rectangle there is
/// passed over. Coordinates differ by the fuzzy rule of QRectF.
TimeItemRects changedRects(const QList<ZvTimeTableTimeItem *> &items, const TimeItemRects &before);

/// Gives the bands of the strip a geometry that they had, past their neighbours if need be, and the
/// times of it; with @p select they become the selection, reported once. An index without a band is
/// passed over.
void applyRects(ZvTimeTableScene *scene, const TimeItemRects &rects, bool select);

} // namespace Zavo
