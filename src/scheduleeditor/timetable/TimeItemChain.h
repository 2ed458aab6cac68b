#pragma once

#include "ZvTime.h"

#include <QList>
#include <QTime>

namespace Zavo {

class ZvTimeTableTimeItem;

/// The ordered list of a strip's bands: finds their places, links neighbours and numbers them.
///
/// Does not own the items. Searches are binary as long as the starts ascend, which every bulk
/// change checks once; records set by hand can leave any order behind, and then they walk.
class TimeItemChain
{
public:
    const QList<ZvTimeTableTimeItem *> &items() const { return m_items; }
    int count() const { return m_items.size(); }
    bool isEmpty() const { return m_items.isEmpty(); }

    /// True if every one of @p items is in the list. The pointers are only compared.
    bool containsAll(const QList<ZvTimeTableTimeItem *> &items) const;

    /// Where a band from @p start to @p end belongs, or -1 if nothing leaves room for it. Looks at
    /// the following band only: a start inside an earlier band does not count.
    int insertionIndex(QTime start, QTime end) const;

    /// Looks whether the starts ascend; to be called before a series of searches.
    void checkOrder();

    /// Links @p item in at @p index and numbers it; the items behind keep their numbers, and all
    /// the texts of theirs, until renumber().
    void insert(int index, ZvTimeTableTimeItem *item);

    /// Takes out one item for each record that equals it, both searched from the end, and links
    /// what stays. The caller deletes the result and renumbers.
    QList<ZvTimeTableTimeItem *> take(const QList<ZvTime> &times);
    ZvTimeTableTimeItem *takeLast();

    /// Gives every item whose number is off the right one, and every index label its text.
    void renumber();

private:
    int lastEqual(const ZvTime &time, const QList<int> &starts) const;

    QList<ZvTimeTableTimeItem *> m_items;
    bool m_ascending = true;
};

} // namespace Zavo
