#pragma once

#include "check/CheckFinding.h"
#include "upload/UploadJob.h"
#include "upload/UploadLog.h"
#include "upload/UploadSet.h"

#include <QList>
#include <QObject>
#include <QVector>

namespace Zavo {

class UploadCollection;

/// One upload to some targets, from the collection of the files to the last line of the log. Runs
/// from the event loop; the work is done by a thread and by processes. Dies with what it started.
class UploadRun final : public QObject
{
    Q_OBJECT

public:
    /// How many targets are served at a time.
    static constexpr int mostAtOnce = 6;

    /// @p logFolder is where the log goes.
    UploadRun(const QString &dataDir, const QString &logFolder, QObject *parent = nullptr);
    ~UploadRun() override;

    /// One for each target, in their order.
    const QList<UploadJob *> &jobs() const { return m_jobs; }

    bool isOver() const;

    /// How many jobs are in the state.
    int count(UploadJob::State state) const;

    /// What was not found; known as soon as the first job runs.
    QStringList remarks() const { return m_remarks; }

    QString logFile() const { return m_log.filePath(); }
    bool isLogWhole() const { return m_log.isWhole(); }

    /// To be called once, with at least one target. @p findings are put into the log.
    void start(const QList<UploadTarget> &targets, const QVector<CheckFinding> &findings = {});

public Q_SLOTS:
    /// Cancels what can be cancelled; finished() follows.
    void cancel();

Q_SIGNALS:
    /// Something about a job is another.
    void changed();

    /// All jobs are over and the log is written. Emitted once, from the event loop.
    void finished();

private Q_SLOTS:
    void onCollected();
    void onJobChanged();
    void finish();

private:
    void startJobs();
    void logFindings(const QVector<CheckFinding> &findings);
    void logSet();
    void logResult(const UploadJob &job);

    const QString m_dataDir;
    UploadLog m_log;
    UploadCollection *m_collection = nullptr;
    UploadSet m_set;
    QStringList m_remarks;
    QList<UploadJob *> m_jobs;
    bool m_finished = false;
};

} // namespace Zavo
