#pragma once

#include "ZvTime.h"

#include <QList>
#include <QTime>

namespace Zavo {

/// The bands of a schedule that switches at a fixed interval: the first interval of the range stays
/// empty, so that the default stage shows, the second holds @p stageName, and so in turn. The last
/// band ends with the range, where 24 o'clock is 23:59:59.999, and may be shorter than the others.
/// No bands if the range is not longer than one interval.
QList<ZvTime> switchingTimes(int intervalSeconds, QTime from, QTime to, const QString &stageName);

} // namespace Zavo
