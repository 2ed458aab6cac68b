#include "safety/SafetyWorker.h"

#include "safety/BackupStore.h"
#include "safety/ChannelStates.h"
#include "safety/Leftovers.h"

namespace Zavo {

SafetyWorker::SafetyWorker(const QString &dataDir, ChannelStates *states, BackupStore *store)
    : m_dataDir(dataDir)
    , m_states(states)
    , m_store(store)
    , m_record(dataDir)
    , m_timer(this)
{
    m_timer.setInterval(lookIntervalMs);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(look()));
}

void SafetyWorker::start()
{
    // A session can end before its thread has begun.
    if (m_isFinished)
        return;
    look();
    Leftovers::sweep(m_dataDir);
    m_timer.start();
}

void SafetyWorker::look()
{
    const ChannelStates::Changes changes = m_states->look();
    if (!changes.byOthers.isEmpty())
        Q_EMIT changedByOthers(changes.byOthers);
    if (changes.copiesFailed && !m_failed)
        Q_EMIT copiesFailed(m_store->lastError());
    m_failed = changes.copiesFailed;
}

void SafetyWorker::recordUnsaved(const QStringList &channelNames)
{
    m_record.write({m_started, channelNames});
}

void SafetyWorker::finish()
{
    m_isFinished = true;
    m_timer.stop();
    // The states of the last saves.
    look();
}

} // namespace Zavo
