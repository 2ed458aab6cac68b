#include "safety/SafetyNet.h"

#include "safety/SafetyWorker.h"

namespace Zavo {

SafetyNet::SafetyNet(const QString &dataDir, QObject *parent)
    : QObject(parent)
    , m_record(dataDir)
    , m_leftSession(m_record.read())
    , m_store(dataDir)
    , m_states(dataDir, &m_store)
    , m_guard(&m_states, &m_store)
    , m_worker(new SafetyWorker(dataDir, &m_states, &m_store))
{
    m_worker->moveToThread(&m_thread);
    // clang-format off
    connect(&m_thread, SIGNAL(started()), m_worker, SLOT(start()), Qt::QueuedConnection);
    connect(this, SIGNAL(unsavedRecordRequested(QStringList)),
            m_worker, SLOT(recordUnsaved(QStringList)), Qt::QueuedConnection);
    connect(m_worker, SIGNAL(changedByOthers(QStringList)),
            this, SIGNAL(changedByOthers(QStringList)), Qt::QueuedConnection);
    connect(m_worker, SIGNAL(copiesFailed(QString)),
            this, SIGNAL(copiesFailed(QString)), Qt::QueuedConnection);
    // clang-format on
    m_thread.start();
    recordUnsaved({});
}

SafetyNet::~SafetyNet()
{
    // Behind everything that was asked of the worker before.
    QMetaObject::invokeMethod(m_worker, "finish", Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
    delete m_worker;
    m_record.remove();
}

void SafetyNet::recordUnsaved(const QStringList &channelNames)
{
    Q_EMIT unsavedRecordRequested(channelNames);
}

} // namespace Zavo
