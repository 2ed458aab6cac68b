#pragma once

#include "check/CheckFinding.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace Zavo {

class CheckThread;

/// The check of the data folder that goes before an upload. Runs beside the event loop.
class UploadCheck final : public QObject
{
    Q_OBJECT

public:
    explicit UploadCheck(QObject *parent = nullptr);

    /// Ends a check that runs.
    ~UploadCheck() override;

    bool isRunning() const { return m_thread != nullptr; }

    /// Of the check that finished last. One that was cancelled is neither complete nor has a
    /// problem.
    const CheckReport &report() const { return m_report; }

    /// Begins a check unless one runs; finished() follows.
    void start();

public Q_SLOTS:
    void cancel();

Q_SIGNALS:
    /// How many of the files that are known so far have been looked at. Emitted by a check that
    /// takes longer than half a second.
    void progressed(int done, int total);

    void finished();

private Q_SLOTS:
    void onThreadFinished();
    void tellProgress();

private:
    std::unique_ptr<CheckThread> m_thread;
    CheckReport m_report;
    QTimer m_timer;
};

} // namespace Zavo
