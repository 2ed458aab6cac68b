#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QTimer>

namespace Zavo {

/// How a run of rsync ended.
struct RsyncResult
{
    enum class Outcome { Done, Failed, Stopped };

    Outcome outcome = Outcome::Failed;
    QString message;        ///< a sentence for the user; empty for Done
    QStringList details;    ///< what rsync itself said
    QByteArray output;      ///< of a listing
    bool isPartial = false; ///< Failed, but only with some of the files
};

/// One run of the program rsync. It has no terminal, so that neither it nor ssh can wait for an
/// answer there, and it ends with everything that it started.
class RsyncProcess final : public QObject
{
    Q_OBJECT

public:
    explicit RsyncProcess(QObject *parent = nullptr);

    /// Kills what still runs.
    ~RsyncProcess() override;

    bool isRunning() const;

    /// Of the run that ended last.
    const RsyncResult &result() const { return m_result; }

    /// Starts the program; each argument is handed over as it is. ended() always follows, from the
    /// event loop.
    void start(const QStringList &arguments);

    /// Blocks until the program has ended, which ended() tells before this returns. False if it has
    /// not ended in time.
    bool waitForEnd(int timeoutMs);

    /// Asks the program to end, and ends it if it does not.
    void stop();

Q_SIGNALS:
    /// How much of the transfer is done, 0 to 100.
    void progressed(int percent);

    void ended();

private Q_SLOTS:
    void onFinished(int exitCode, QProcess::ExitStatus status);
    void onErrorOccurred(QProcess::ProcessError error);
    void tellThatItDidNotStart();
    void onOutput();
    void onErrors();
    void kill();

private:
    void signalAll(int signalNumber) const;
    void fail(int exitCode);
    void end(RsyncResult::Outcome outcome, const QString &message);

    QProcess *m_process = nullptr;
    QTimer m_killTimer;
    RsyncResult m_result;
    QByteArray m_errors;
    bool m_stopped = false;
};

} // namespace Zavo
