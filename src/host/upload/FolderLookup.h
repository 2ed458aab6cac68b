#pragma once

#include <QString>
#include <QThread>

namespace Zavo {

/// Finds out where a folder lies in truth, in a thread of its own: on a share that is lost this can
/// take minutes, which nobody can cut short. So it belongs to nobody, and deletes itself once it
/// has finished.
class FolderLookup final : public QThread
{
    Q_OBJECT

public:
    explicit FolderLookup(const QString &folder);

Q_SIGNALS:
    /// Where the folder lies, without links; empty if there is no such folder. Emitted once, from
    /// the thread. By the time that a receiver in another thread hears it, this object may be gone.
    void found(const QString &canonicalPath);

protected:
    void run() override;

private:
    const QString m_folder;
};

} // namespace Zavo
