#pragma once

#include <QCoreApplication>
#include <QList>

#include <memory>

namespace Zavo {

class ChannelFolder;
class ZvChannel;

/// Makes one more channel, which exists on disk before anybody sees it, and words what stood in the
/// way. It knows no tabs.
class ChannelCreation final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::ChannelCreation)

public:
    ChannelCreation() = delete;

    /// The new channel, whose file is written; null, with the reason in @p error, if that failed.
    /// @p takenIds are those of all channels, in ascending order. @p index is what the file says
    /// about the place of the tab.
    static std::unique_ptr<ZvChannel> create(const ChannelFolder &folder,
                                             const QList<int> &takenIds, int index, QString *error);
};

} // namespace Zavo
