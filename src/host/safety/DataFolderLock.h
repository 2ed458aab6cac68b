#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>

namespace Zavo {

/// Keeps a data folder to one program at a time, by a lock file in it that lives as long as this
/// object holds it. A lock whose program is gone, by a crash or a restart of the machine, counts as
/// none.
class DataFolderLock final
{
public:
    enum class Result {
        Taken,
        HeldByOther, ///< holder() tells by whom
        NotPossible, ///< the folder takes no lock file: it does not exist or cannot be written to
    };

    struct Holder
    {
        qint64 processId = 0;
        QString program;
        QString host;
        QDateTime since;
    };

    /// Takes no lock yet.
    explicit DataFolderLock(const QString &dataDir);

    static QString fileName();

    /// What is known of the program that holds the lock; of no process if there is none.
    Holder holder() const;

    /// True if the holder runs on another machine, so that nobody here can tell whether it still
    /// does.
    bool isHolderElsewhere() const;

    Result take();

    /// Takes the lock even if its holder runs on another machine. One on this machine that runs
    /// keeps it.
    Result takeOver();

private:
    QString m_path;
    QLockFile m_lock;
};

} // namespace Zavo
