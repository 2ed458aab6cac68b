#include "upload/UploadCheck.h"

#include "check/CheckThread.h"

namespace Zavo {

namespace {
constexpr int tellAfterMs = 500;
constexpr int tellEveryMs = 100;
} // namespace

UploadCheck::UploadCheck(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(tellProgress()));
}

UploadCheck::~UploadCheck() = default;

void UploadCheck::start()
{
    if (m_thread)
        return;
    m_report = {};
    m_thread = std::make_unique<CheckThread>();
    connect(m_thread.get(), SIGNAL(finished()), this,
                                   SLOT(onThreadFinished()), Qt::QueuedConnection);
    m_thread->start();
    m_timer.start(tellAfterMs);
}

void UploadCheck::cancel()
{
    if (m_thread)
        m_thread->cancel();
}

void UploadCheck::onThreadFinished()
{
    // It was told by a thread before this one if there is none, or if it runs.
    if (!m_thread || !m_thread->isFinished())
        return;
    m_timer.stop();
    m_report = m_thread->report();
    m_thread.reset();
    Q_EMIT finished();
}

void UploadCheck::tellProgress()
{
    m_timer.start(tellEveryMs);
    if (m_thread)
        Q_EMIT progressed(m_thread->done(), m_thread->total());
}

} // namespace Zavo
