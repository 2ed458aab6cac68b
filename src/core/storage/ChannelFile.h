#pragma once

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

/// False, with @p record untouched, unless the bytes are a channel file in every respect.
bool parse(const QByteArray &bytes, ChannelRecord *record);

/// False if the record holds what parse() would not give back.
bool serialize(const ChannelRecord &record, QByteArray *bytes);

} // namespace ChannelFile
} // namespace Zavo
