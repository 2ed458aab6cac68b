#include "storage/BandFinder.h"

#include <algorithm>
#include <numeric>

namespace Zavo {

namespace {
int startMs(const ZvTime &band)
{
    return band.startTime().msecsSinceStartOfDay();
}

bool isBefore(const ZvTime &a, const ZvTime &b)
{
    const int names = a.stageName().compare(b.stageName());
    return names < 0 || (names == 0 && startMs(a) < startMs(b));
}
} // namespace

BandFinder::BandFinder(const QList<ZvTime> &stored)
    : m_stored(stored)
{
}

const ZvTime *BandFinder::find(const ZvTime &band)
{
    if (m_next < m_stored.size() && m_stored.at(m_next) == band)
        return &m_stored.at(m_next++);
    if (m_index.empty())
        makeIndex();
    ZvTime earliest = band;
    earliest.setStartTime(
        QTime::fromMSecsSinceStartOfDay(qMax(0, startMs(band) - ZvTime::ToleranceMs)));
    auto it = std::lower_bound(m_index.cbegin(), m_index.cend(), earliest,
                               [this](int position, const ZvTime &wanted) {
                                   return isBefore(m_stored.at(position), wanted);
                               });
    for (; it != m_index.cend(); ++it) {
        const ZvTime &candidate = m_stored.at(*it);
        if (candidate == band) {
            m_next = *it + 1;
            return &candidate;
        }
        if (candidate.stageName() != band.stageName() ||
            startMs(candidate) > startMs(band) + ZvTime::ToleranceMs)
            break;
    }
    return nullptr;
}

void BandFinder::makeIndex()
{
    m_index.resize(static_cast<size_t>(m_stored.size()));
    std::iota(m_index.begin(), m_index.end(), 0);
    std::sort(m_index.begin(), m_index.end(),
              [this](int a, int b) { return isBefore(m_stored.at(a), m_stored.at(b)); });
}

} // namespace Zavo
