#pragma once

#include <QSet>
#include <QString>

namespace Zavo {

/// What is settled about the channels beside their files: which of them stay here when the others
/// are uploaded. Kept in a file of the channel folder, so that it goes with the channels.
class ChannelSettings final
{
public:
    static constexpr char fileName[] = "settings.ini";

    /// The channel that every player needs; it is always uploaded.
    static constexpr int basicChannelId = 0;

    /// Reads the file below the data folder. What is missing in it, or makes no sense, leaves
    /// nothing out.
    explicit ChannelSettings(const QString &dataDir);

    bool isUploaded(int channelId) const { return !m_notUploaded.contains(channelId); }

    /// Has no effect on the basic channel.
    void setUploaded(int channelId, bool uploaded);

    /// Forgets what was settled about channels that are not among these.
    void keepOnly(const QSet<int> &channelIds);

    /// True once the file is on the disk; false if the old one stays.
    bool write() const;

private:
    QString m_filePath;
    QSet<int> m_notUploaded;
};

} // namespace Zavo
