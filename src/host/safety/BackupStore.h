#pragma once

#include "safety/FileStamp.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QString>
#include <QStringList>

namespace Zavo {

/// One state of a channel file that was kept.
struct BackupState
{
    QString fileName;         ///< of the channel file, without its folder
    QString path;             ///< of the copy
    QDateTime modified;       ///< when the file got this state
    bool wasAtTarget = false; ///< an upload replaced or removed it at a target
};

/// The safety copies in "backup" of a data folder: for each file of the channel folder its present
/// state and the last 20 before it, and the last 20 that uploads replaced at targets. The copies of
/// "channel3.xml" lie in the folder "channel3.xml", each named by the moment in which it was made
/// (UTC), so that a person finds them without a program. They are copies and not links, since
/// another program may write into a file in place.
///
/// May be used from several threads.
class BackupStore final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::BackupStore)
    Q_DISABLE_COPY(BackupStore)

public:
    static constexpr int MaximumEarlierStates = 20;
    static constexpr int MaximumTargetStates = 20;

    enum class Result {
        Unchanged, ///< the newest copy is the file's present state, or there is no file
        Kept,      ///< a copy was made
        Failed,    ///< none could be made: lastError() says why
    };

    explicit BackupStore(const QString &dataDir);

    /// Absolute path of the folder of the copies, which is made with the first of them.
    QString folder() const { return m_folder; }

    /// Names of the files of which there are copies, in the order in which people read them.
    QStringList fileNames() const;

    /// The copies of the file, the newest first.
    QList<BackupState> states(const QString &fileName) const;

    QString lastError() const;

    /// Makes a copy of the file's present state unless it is the newest already. A state that was
    /// kept earlier becomes the newest instead of being copied twice.
    Result keep(const QString &filePath);

    /// The same for bytes that are in no file of the channel folder: what could not be saved.
    Result keepBytes(const QString &fileName, const QByteArray &bytes);

    /// Makes a copy of what an upload replaces or removes at a target, unless there is one of these
    /// bytes. @p modified is the time of the file there. Such copies push out only each other.
    Result keepFromTarget(const QString &fileName, const QByteArray &bytes,
                          const QDateTime &modified);

    /// Brings to the disk what was copied.
    void sync() const;

private:
    struct Kept
    {
        FileStamp stamp;
        QString copy;
    };

    struct Origin
    {
        QDateTime modified;
        QFile::Permissions permissions; // none: those of a new file
    };

    Result keepState(const QString &fileName, const QByteArray &bytes, const Origin &origin);
    QString folderOf(const QString &fileName) const;
    QStringList copiesOf(const QString &fileName, QLatin1String suffix) const;
    QStringList ownCopiesOf(const QString &fileName) const;
    /// As the newest of the copies with that suffix.
    bool write(const QString &folder, const QStringList &copies, QLatin1String suffix,
               const QByteArray &bytes, const Origin &origin);
    void removeBehind(int count, const QString &fileName, const QStringList &copies) const;
    Result fail(const QString &reason);

    const QString m_folder;
    mutable QMutex m_mutex;
    QHash<QString, Kept> m_kept;
    QString m_lastError;
};

} // namespace Zavo
