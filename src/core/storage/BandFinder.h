#pragma once

#include "ZvTime.h"

#include <QList>

#include <vector>

namespace Zavo {

/// Finds bands in a list by ==. Most often they are asked for in the order of the list; only if
/// they are not is an index made.
class BandFinder
{
public:
    /// The list must outlive the finder, unchanged.
    explicit BandFinder(const QList<ZvTime> &stored);

    /// Null if no band of the list is == to it.
    const ZvTime *find(const ZvTime &band);

private:
    void makeIndex();

    const QList<ZvTime> &m_stored;
    int m_next = 0;           // the one that is asked for if the order is the same
    std::vector<int> m_index; // by stage, then by start
};

} // namespace Zavo
