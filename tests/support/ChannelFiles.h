#pragma once

#include "TemporaryDataFolder.h"

#include "ZvChannel.h"
#include "ZvSchedule.h"

#include <QString>

namespace ZavoTest {

/// Name of the channel file with the number.
inline QString channelFileName(int number)
{
    return QStringLiteral("channel%1.xml").arg(number);
}

/// What a test wants a channel file to hold.
struct ChannelContent
{
    int id = 0;
    int index = 0;
    QString name;
    QList<Zavo::ZvTime> times = {};
    bool hasDefaultSchedule = true;
};

/// Writes a channel file of that name into the channel folder, by way of the records themselves,
/// and returns its path; an empty one if it could not be written.
inline QString writeChannelFile(TemporaryDataFolder &folder, const QString &fileName,
                                const ChannelContent &content)
{
    folder.makeFolder(QStringLiteral("channel"));
    const QString path = folder.channelFolder() + QLatin1Char('/') + fileName;
    Zavo::ZvChannel channel(path);
    channel.setId(content.id);
    channel.setIndex(content.index);
    channel.setName(content.name);
    if (content.hasDefaultSchedule) {
        Zavo::ZvSchedule schedule;
        schedule.setType(Zavo::ZvSchedule::Default);
        schedule.setTimeList(content.times);
        channel.insertSchedule(schedule);
    }
    return channel.writeToFile() ? path : QString();
}

/// The channel of a file; with an empty name and id -1 if it cannot be read.
inline Zavo::ZvChannel readChannelFile(const QString &path)
{
    Zavo::ZvChannel channel(path);
    if (!channel.readFile())
        channel.setId(-1);
    return channel;
}

} // namespace ZavoTest
