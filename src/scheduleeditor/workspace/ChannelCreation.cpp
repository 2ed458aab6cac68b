#include "workspace/ChannelCreation.h"

#include "workspace/ChannelFolder.h"

#include "ZvChannel.h"

namespace Zavo {

std::unique_ptr<ZvChannel> ChannelCreation::create(const ChannelFolder &folder,
                                                   const QList<int> &takenIds, int index,
                                                   QString *error)
{
    const std::optional<int> id = ChannelFolder::freeId(takenIds);
    if (!id) {
        *error = tr("You can not add the new channel.\nThe number of channels has reached the "
                    "maximum value.");
        return nullptr;
    }
    const QString filePath = folder.freeFilePath(*id);
    if (filePath.isEmpty()) {
        *error = tr("You can not add the new channel.\nUnable to find a name for the new channel.");
        return nullptr;
    }
    auto channel = ChannelFolder::newChannel(filePath, *id, index, tr("Ch.%1").arg(*id));
    if (!channel->writeToFile()) {
        *error = tr("You can not add the new channel.\nFailed to write new channel file. Please "
                    "check whether it is possible to write to the channel folder.");
        return nullptr;
    }
    return channel;
}

} // namespace Zavo
