#pragma once

#include "ZvTime.h"

#include <QList>
#include <QTime>

namespace Zavo {

/// Bands that are pasted together and keep their distances: from the start of the first to the end
/// of the last.
class TimeBlock
{
public:
    /// @p times holds at least one record.
    explicit TimeBlock(const QList<ZvTime> &times);

    /// Whether the block, placed at @p target, ends before 24 o'clock. Never true if a record lies
    /// outside the block's own range, which no table of ours gives.
    bool fitsAt(QTime target) const;
    /// The records with the first one at @p target, where the block fits.
    QList<ZvTime> movedTo(QTime target) const;

    /// The records as they are to be copied. The clipboard drops milliseconds, so a time that the
    /// geometry of a band gave back just short of a second is put on it.
    static QList<ZvTime> copyOf(const QList<ZvTime> &times);

private:
    QTime start() const { return m_times.first().startTime(); }
    bool isCoherent() const;

    QList<ZvTime> m_times;
    int m_length = 0; ///< ms
};

} // namespace Zavo
