#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace Zavo {

class ZvChannel;

/// The folder of the channel files below a data folder: which files are channels, in which order
/// they are shown, and what is written at a first start. It knows files and records, no widget;
/// what a failure is worth to the user is said by its caller.
class ChannelFolder final
{
public:
    using Channels = std::vector<std::unique_ptr<ZvChannel>>;

    enum class LoadResult {
        Loaded,
        FolderNotCreated, ///< the folder does not exist and could not be made
        ChannelNotWritten ///< first start: a default channel could not be written
    };

    /// The channel whose file the basic file is a copy of; always the first tab.
    static constexpr int BasicChannelId = 0;

    explicit ChannelFolder(const QString &dataDir);

    /// Absolute path of the folder.
    QString path() const;

    bool exists() const;

    /// Absolute path of the basic file, the copy of the file of the channel with id 0.
    QString basicFilePath() const;

    /// Names of the channel files with one to five characters for the number, sorted by name. The
    /// basic file is not among them.
    QStringList channelFileNames() const;

    /// Reads all channels in the order of their tabs into @p channels; at a first start writes the
    /// default channels before. @p channels is empty unless the result is Loaded. Files that cannot
    /// be read are passed over and stay as they are.
    LoadResult load(Channels *channels) const;

    /// The id of one more channel beside those with the ids @p takenIds, in ascending order: one
    /// above the largest, or the smallest free one from 0 if none is above. Empty if all are taken.
    static std::optional<int> freeId(const QList<int> &takenIds);

    /// Absolute path of a file for the new channel with the id @p id: the one of that number or, if
    /// its name is taken by whatever it be, the first free one from 0. Empty if none is free.
    QString freeFilePath(int id) const;

    /// A channel as it is at its beginning, with one empty default schedule. It is not written.
    static std::unique_ptr<ZvChannel> newChannel(const QString &filePath, int id, int index,
                                                 const QString &name);

    /// Removes every file in the folder, whatever it is called, and no folder. False if one stayed,
    /// or if the folder does not show whether one did; the others are gone all the same.
    bool removeAllFiles() const;

    /// Replaces the basic file beside the file of @p channel by a copy of that file. The old one is
    /// removed first, so a channel that lives in the basic file itself loses it. Neither step
    /// reports a failure.
    static void copyToBasicFile(const ZvChannel &channel);

private:
    bool create() const;
    bool hasNoFiles() const;
    Channels readChannels(const QStringList &fileNames) const;
    bool createDefaultChannels(Channels *channels) const;
    std::unique_ptr<ZvChannel> basicChannelAsNumberZero() const;
    void applyBasicFile(Channels *channels) const;
    QString channelFilePath(int number) const;

    QString m_path;
};

/// Orders @p channels by their index and gives them consecutive indices from 0. Which of two equal
/// indices comes first depends on the exchanges made on the way.
void sortChannelsByIndex(ChannelFolder::Channels *channels);

} // namespace Zavo
