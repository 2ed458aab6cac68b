#pragma once

#include "safety/SessionRecord.h"

#include <QDateTime>
#include <QObject>
#include <QStringList>
#include <QTimer>

namespace Zavo {

class BackupStore;
class ChannelStates;

/// What is done for safety beside the GUI thread, in a thread of its own: it sweeps leftovers,
/// follows the channel folder, also where the system tells of no changes, and records the session.
class SafetyWorker final : public QObject
{
    Q_OBJECT

public:
    /// @p states and @p store must outlive this object.
    SafetyWorker(const QString &dataDir, ChannelStates *states, BackupStore *store);

    /// How long it waits from one look at the folder to the next.
    static constexpr int lookIntervalMs = 1000;

public Q_SLOTS:
    void start();
    void look();

    /// Puts on record which channels have edits that are not saved.
    void recordUnsaved(const QStringList &channelNames);

    /// Ends in the thread it began in.
    void finish();

Q_SIGNALS:
    /// Another program has changed files of the channel folder. Their copies are kept.
    void changedByOthers(const QStringList &fileNames);

    /// No copy could be made; told once until it works again.
    void copiesFailed(const QString &reason);

private:
    QString m_dataDir;
    ChannelStates *m_states = nullptr;
    BackupStore *m_store = nullptr;
    SessionRecord m_record;
    QDateTime m_started = QDateTime::currentDateTime();
    QTimer m_timer;
    bool m_failed = false;
    bool m_isFinished = false;
};

} // namespace Zavo
