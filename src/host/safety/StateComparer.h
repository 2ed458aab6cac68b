#pragma once

#include "safety/BackupStore.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>

namespace Zavo {

/// Compares kept states with the channel files as they are now, beside the GUI thread.
class StateComparer final : public QObject
{
    Q_OBJECT

public:
    explicit StateComparer(const QString &dataDir, QObject *parent = nullptr);
    ~StateComparer() override;

    /// Absolute path of the channel file that @p fileName names.
    QString channelFilePath(const QString &fileName) const;

    /// Begins with these; what was under way is given up.
    void compare(const QList<BackupState> &states);

Q_SIGNALS:
    /// What it would mean to restore the copy at @p path. @p isRestorable is false if it cannot be
    /// read or would change nothing. Comes from another thread.
    void compared(const QString &path, const QString &text, bool isRestorable);

private:
    void compareAll(const QList<BackupState> &states, int generation);

    const QString m_channelFolder;
    QThreadPool m_pool;
    std::atomic<int> m_generation{0};
};

} // namespace Zavo
