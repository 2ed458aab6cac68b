#include "upload/UploadRun.h"

#include "check/CheckText.h"
#include "safety/BackupStore.h"
#include "upload/FolderRemoval.h"
#include "upload/UploadCollection.h"

#include <QDateTime>
#include <QDir>
#include <QLocale>

#include <algorithm>
#include <memory>
#include <utility>

namespace Zavo {

namespace {
constexpr int mostFindings = 200; // that are of use in a log

void letGo(UploadSet *set)
{
    removeAside(std::move(set->folder));
    *set = {};
}
} // namespace

UploadRun::UploadRun(const QString &dataDir, const QString &logFolder, QObject *parent)
    : QObject(parent)
    , m_dataDir(dataDir)
    , m_log(logFolder)
{
}

UploadRun::~UploadRun()
{
    // The processes read the set, so they go first.
    qDeleteAll(m_jobs);
    delete m_collection;
    letGo(&m_set);
}

bool UploadRun::isOver() const
{
    return std::all_of(m_jobs.cbegin(), m_jobs.cend(),
                       [](const UploadJob *job) { return job->isOver(); });
}

int UploadRun::count(UploadJob::State state) const
{
    return static_cast<int>(
        std::count_if(m_jobs.cbegin(), m_jobs.cend(),
                      [state](const UploadJob *job) { return job->state() == state; }));
}

void UploadRun::start(const QList<UploadTarget> &targets, const QVector<CheckFinding> &findings)
{
    m_log.begin();
    const QLocale plain(QLocale::C);
    m_log.write(tr("Upload of %1 to %n target(s), from \"%2\"", nullptr, targets.size())
                    .arg(plain.toString(QDateTime::currentDateTime(),
                                        QStringLiteral("yyyy-MM-dd hh:mm:ss")),
                         QDir::toNativeSeparators(m_dataDir)));
    logFindings(findings);
    const auto store = std::make_shared<BackupStore>(m_dataDir);
    for (const UploadTarget &target : targets) {
        auto *const job = new UploadJob(target, store, this);
        m_jobs.append(job);
        connect(job, SIGNAL(changed()), this, SLOT(onJobChanged()));
    }
    m_collection = new UploadCollection(m_dataDir);
    connect(m_collection, SIGNAL(finished()), this, SLOT(onCollected()), Qt::QueuedConnection);
    m_collection->start();
}

void UploadRun::cancel()
{
    if (m_collection)
        m_collection->requestInterruption();
    for (UploadJob *job : qAsConst(m_jobs))
        job->cancel();
}

void UploadRun::onCollected()
{
    m_set = m_collection->set();
    m_remarks = m_set.remarks;
    delete m_collection;
    m_collection = nullptr;
    if (m_finished) {
        letGo(&m_set);
        return;
    }
    logSet();
    for (UploadJob *job : qAsConst(m_jobs)) {
        if (!m_set.problem.isEmpty())
            job->fail(m_set.problem);
    }
    startJobs();
}

void UploadRun::onJobChanged()
{
    const auto *const job = qobject_cast<const UploadJob *>(sender());
    if (job && job->isOver()) {
        logResult(*job);
        startJobs();
    }
    Q_EMIT changed();
    if (isOver() && !m_finished) {
        m_finished = true;
        QMetaObject::invokeMethod(this, "finish", Qt::QueuedConnection);
    }
}

void UploadRun::finish()
{
    m_log.write(tr("%1 complete, %2 failed, %3 cancelled")
                    .arg(count(UploadJob::State::Done))
                    .arg(count(UploadJob::State::Failed))
                    .arg(count(UploadJob::State::Cancelled)));
    letGo(&m_set);
    Q_EMIT finished();
}

void UploadRun::startJobs()
{
    if (!m_set.folder || !m_set.problem.isEmpty())
        return;
    int running = count(UploadJob::State::Running);
    for (UploadJob *job : qAsConst(m_jobs)) {
        if (running >= mostAtOnce)
            return;
        if (job->state() != UploadJob::State::Waiting)
            continue;
        ++running;
        m_log.write(tr("%1: begins").arg(job->target().address()));
        job->start(m_set);
    }
}

void UploadRun::logFindings(const QVector<CheckFinding> &findings)
{
    if (findings.isEmpty())
        return;
    m_log.write(tr("The check found %n thing(s):", nullptr, findings.size()));
    QStringList lines;
    const QVector<CheckFinding> first = findings.mid(0, mostFindings);
    for (const CheckFinding &finding : first)
        lines.append(CheckText::line(finding));
    m_log.writeDetails(lines);
}

void UploadRun::logSet()
{
    m_log.write(tr("%1 channel files, %2 stages, %3 pictures, %4")
                    .arg(m_set.channelCount)
                    .arg(m_set.stageCount)
                    .arg(m_set.pictureCount)
                    .arg(QLocale(QLocale::C).formattedDataSize(m_set.bytes)));
    m_log.writeDetails(m_set.remarks);
}

void UploadRun::logResult(const UploadJob &job)
{
    m_log.write(tr("%1: %2").arg(job.target().address(), job.message()));
    m_log.writeDetails(job.details());
}

} // namespace Zavo
