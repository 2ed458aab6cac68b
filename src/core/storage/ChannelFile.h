#pragma once

#include "ZvCoreExport.h"
#include "ZvSchedule.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace Zavo {

/// What a channel file holds.
struct ChannelRecord
{
    int id = 0;
    int index = 0;
    QString name;
    QList<ZvSchedule> schedules;
};

/// The format of channel files. Knows bytes and records, neither files nor channels.
namespace ChannelFile {

constexpr int MaximumBytes = 64 * 1024 * 1024;
constexpr int MaximumSchedules = 50000;
constexpr int MaximumBands = 20000; // in one schedule

/// False, with @p record untouched, unless the bytes are a channel file in every respect. Schedules
/// and bands come in their order, without overlaps.
ZVCORE_EXPORT bool parse(const QByteArray &bytes, ChannelRecord *record);

/// The same, but schedules and bands come as they stand in the bytes: perhaps out of order,
/// overlapping, or two schedules for the same days, which parse() refuses. For those who tell a
/// person what is wrong with a file.
ZVCORE_EXPORT bool parseAsItStands(const QByteArray &bytes, ChannelRecord *record);

/// False, with @p bytes untouched, if parse() would not give back the record, put in order, to the
/// letter and to the millisecond.
ZVCORE_EXPORT bool serialize(const ChannelRecord &record, QByteArray *bytes);

} // namespace ChannelFile
} // namespace Zavo
