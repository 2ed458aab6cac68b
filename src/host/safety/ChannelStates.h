#pragma once

#include "safety/BackupStore.h"

#include <QHash>
#include <QMutex>
#include <QSet>
#include <QString>
#include <QStringList>

namespace Zavo {

/// What this program knows of the files of the channel folder: which states it made or found at its
/// start, and which another program has put in their place since. Keeps a copy of each state.
///
/// May be used from several threads.
class ChannelStates final
{
    Q_DISABLE_COPY(ChannelStates)

public:
    struct Changes
    {
        QStringList byOthers; ///< files that another program changed, each told once a change
        bool copiesFailed = false;
    };

    /// @p store must outlive this object. Looks at the files there are, without reading them: what
    /// they hold now is what the editor is going to show.
    ChannelStates(const QString &dataDir, BackupStore *store);

    /// The file of the channel folder that is written to when @p path is: itself, or the link in
    /// that folder that leads to it. Empty for every other file, and for hidden ones.
    QString channelFileOf(const QString &path) const;

    /// Looks for files that changed and copies what they hold. A change counts once it has lasted
    /// from one look to the next, so that nobody is caught in the middle of writing; the first look
    /// takes everything as it is. From one thread only.
    Changes look();

    /// True if the file holds what another program wrote since the start. Keeps a copy.
    bool isChangedByOthers(const QString &path);

    /// Carries out @p replace, which gives the file a state of ours and returns 0 if that worked.
    template<typename Replace>
    int replaceByOurs(const QString &path, Replace replace)
    {
        const QMutexLocker locker(&m_mutex);
        const int result = replace();
        if (result == 0)
            takeOver(path);
        return result;
    }

private:
    struct Known
    {
        FileStamp stamp;
        bool isKept = false;
    };

    QStringList names() const;
    void takeOver(const QString &path);
    bool isToBeCopied(const QString &name, const FileStamp &stamp);
    void note(const QString &name, const FileStamp &stamp, BackupStore::Result result,
              Changes *changes);
    bool isCopyOfOther(const QString &name) const;

    const QString m_folder;
    BackupStore *m_store = nullptr;
    mutable QMutex m_mutex;
    QHash<QString, Known> m_known;
    QSet<QString> m_changedByOthers;
    QHash<QString, FileStamp> m_unsettled;
    bool m_lookedOnce = false;
};

} // namespace Zavo
