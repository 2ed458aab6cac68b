#pragma once

#include <QString>
#include <QTemporaryDir>
#include <QThread>

#include <atomic>
#include <memory>

namespace Zavo {

class BackupStore;

/// Puts the channel files that were fetched from a target among the safety copies, in a thread of
/// its own. What the set of the upload holds just so is passed over.
class TargetKeeper final : public QThread
{
    Q_OBJECT

public:
    /// @p setFolder holds the set, and stays while the thread runs.
    TargetKeeper(const QString &setFolder, const std::shared_ptr<BackupStore> &store,
                 QObject *parent = nullptr);

    /// Waits for the thread, which ends behind the file that it is copying.
    ~TargetKeeper() override;

    /// The folder to fetch into, which goes with this object; empty if none could be made.
    QString folder() const;

    /// Ends the thread behind the file that it is copying.
    void cancel() { m_cancelled = true; }
    bool isCancelled() const { return m_cancelled; }

    /// How many files were put there. To be called once the thread has finished, as is problem().
    int count() const { return m_count; }

    /// Why not all of them are there, in a sentence; empty if they are.
    QString problem() const { return m_problem; }

protected:
    void run() override;

private:
    void keep(const QString &fileName);

    const QString m_setFolder;
    const std::shared_ptr<BackupStore> m_store;
    std::shared_ptr<QTemporaryDir> m_folder;
    std::atomic<bool> m_cancelled{false};
    int m_count = 0;
    QString m_problem;
};

} // namespace Zavo
