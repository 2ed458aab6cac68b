#pragma once

#include <QString>
#include <QStringList>

namespace Zavo {

/// The files of a channel folder as the editor sees them.
struct ChannelListing
{
    /// Why the folder cannot be listed, in a sentence; empty if it can.
    QString problem;

    /// Those that the editor opens, in its order.
    QStringList channels;

    /// True if there is the basic file, which stands for the channel of id 0.
    bool hasBasicFile = false;

    /// What looks like a channel file but has a name that the editor does not look for.
    QStringList foreignNames;

    /// What has the name of a channel file but is none: folders, links that lead nowhere, pipes.
    QStringList noFiles;

    static ChannelListing of(const QString &channelFolder);
};

/// Patterns of the names that the editor opens as channels.
QStringList channelNameFilters();

/// Name of the basic file.
QString basicChannelFileName();

} // namespace Zavo
