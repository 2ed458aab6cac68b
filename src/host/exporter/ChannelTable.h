#pragma once

#include <QByteArray>

namespace Zavo {

class ZvChannel;

/// The schedules of a channel as comma-separated values.
namespace ChannelTable {

/// A line of names, then a line for each band and each default stage, which has no times; lines end
/// with carriage return and line feed. Begins with a byte order mark, by which spreadsheets know
/// UTF-8. Dates are yyyy-MM-dd, times hh:mm:ss.zzz, and the end of the day is 24:00:00.000.
QByteArray of(const ZvChannel &channel);

} // namespace ChannelTable
} // namespace Zavo
