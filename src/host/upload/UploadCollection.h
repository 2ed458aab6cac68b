#pragma once

#include "channels/ChannelSettings.h"
#include "upload/UploadSet.h"

#include <QHash>
#include <QThread>

namespace Zavo {

/// Copies what an upload brings, in a thread of its own, so that all targets get the same and
/// saving goes on meanwhile. It reads the data folder and changes nothing in it.
///
/// A channel file that cannot be read, or a folder without channel files, ends it with a problem: a
/// target must not lose a channel by it. A stage that is missing is a remark only.
class UploadCollection final : public QThread
{
    Q_OBJECT

public:
    explicit UploadCollection(const QString &dataDir, QObject *parent = nullptr);

    /// Waits for the thread, which ends behind the file that it is copying.
    ~UploadCollection() override;

    /// To be called once the thread has finished.
    const UploadSet &set() const { return m_set; }

protected:
    void run() override;

private:
    bool makeFolder();
    bool collectChannels();
    bool collectChannel(const QString &name);
    bool leaveOut(const QString &path, const QString &channel);
    bool collectStages();
    bool collectStage(const QString &name, const QString &channel);
    bool collectPictures(const QString &stagePath);
    bool writeMark();

    /// Copies a file of the data folder to its place in the set; false with the problem set.
    bool copy(const QString &source, const QString &relativePath);
    bool fail(const QString &problem);

    const QString m_dataDir;
    const ChannelSettings m_settings;
    UploadSet m_set;
    QHash<QString, QString> m_stages; // name of the stage, name of a channel that shows it
    QHash<QString, bool> m_copied;    // by path in the set
};

} // namespace Zavo
