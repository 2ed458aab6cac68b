#pragma once

#include <QGraphicsItem>

namespace Zavo {

/// True for a change that an item is told of with a pointer and whose answer nobody reads.
///
/// To answer such a notice with its value is to copy a variant that holds a pointer, which the
/// registry of types is asked about each time. A band and its parts get dozens of them when they
/// come and go, so they answer with an empty variant.
inline bool isMereNotice(QGraphicsItem::GraphicsItemChange change)
{
    return change == QGraphicsItem::ItemChildAddedChange ||
           change == QGraphicsItem::ItemChildRemovedChange ||
           change == QGraphicsItem::ItemParentHasChanged ||
           change == QGraphicsItem::ItemSceneHasChanged;
}

} // namespace Zavo
