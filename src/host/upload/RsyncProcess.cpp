#include "upload/RsyncProcess.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <algorithm>
#include <csignal>
#include <unistd.h>

namespace Zavo {

namespace {
constexpr int killAfterMs = 1500;
constexpr int mostOutputBytes = 1024 * 1024;
constexpr int mostErrorBytes = 16 * 1024;
constexpr int mostDetails = 20;
// Codes with which rsync ends.
constexpr int someFilesFailed = 23;
constexpr int someFilesVanished = 24;

class ProcessWithoutTerminal final : public QProcess
{
public:
    using QProcess::QProcess;

protected:
    void setupChildProcess() override { ::setsid(); }
};

QProcessEnvironment plainEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    // What a shell of the user sets for rsync is not meant for this program.
    environment.remove(QStringLiteral("RSYNC_RSH"));
    environment.remove(QStringLiteral("RSYNC_PROXY"));
    environment.remove(QStringLiteral("RSYNC_PARTIAL_DIR"));
    environment.remove(QStringLiteral("SSH_ASKPASS"));
    return environment;
}

struct KnownWords
{
    const char *words;
    const char *message;
};
// In the order in which they tell more than those behind them.
constexpr KnownWords knownWords[] = {
    // What shells say; the code depends on who notices first that the far side has ended.
    {"rsync: command not found",
     QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "A program is missing at the target.")},
    {"rsync: not found",
     QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "A program is missing at the target.")},
    {"No space left on device", QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target is full.")},
    {"Disk quota exceeded", QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target is full.")},
    {"File too large", QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target is full.")},
    {"Read-only file system", QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target is read-only.")},
    {"read only", QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target is read-only.")},
    {"auth failed", QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target refuses this user.")},
    {"Permission denied",
     QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target refuses: permission denied.")},
    {"Host key verification failed",
     QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The key of the host is not known to ssh.")},
    {"Unknown module", QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target has no such module.")},
    {"@ERROR", QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target refuses.")},
    {"Connection refused",
     QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target cannot be reached: connection refused.")},
    {"Could not resolve",
     QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "There is no host of this name.")},
    {"Name or service not known",
     QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "There is no host of this name.")},
    {"No such file or directory",
     QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target does not exist.")},
};

struct KnownCode
{
    int code;
    const char *message;
};
constexpr KnownCode knownCodes[] = {
    {2, QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target's rsync is too old or too new.")},
    {5, QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target refuses.")},
    {10, QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The connection to the target is lost.")},
    {11, QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target cannot be written to.")},
    {12, QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The connection to the target is lost.")},
    {someFilesFailed,
     QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "Some files could not be transferred.")},
    {30, QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target does not answer any more.")},
    {35, QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target does not answer.")},
    {127, QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "A program is missing at the target.")},
    {255, QT_TRANSLATE_NOOP("Zavo::RsyncProcess", "The target cannot be reached by ssh.")},
};

QString explanation(int exitCode, const QByteArray &errors)
{
    const char *message = nullptr;
    for (const KnownWords &known : knownWords) {
        if (!message && errors.contains(known.words))
            message = known.message;
    }
    for (const KnownCode &known : knownCodes) {
        if (!message && known.code == exitCode)
            message = known.message;
    }
    if (message)
        return QCoreApplication::translate("Zavo::RsyncProcess", message);
    return QCoreApplication::translate("Zavo::RsyncProcess", "rsync failed with code %1.")
        .arg(exitCode);
}

QStringList linesOf(const QByteArray &errors)
{
    QStringList lines =
        QString::fromUtf8(errors).split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(0, mostDetails);
    for (QString &line : lines)
        line = line.simplified();
    lines.removeDuplicates();
    return lines;
}
} // namespace

RsyncProcess::RsyncProcess(QObject *parent)
    : QObject(parent)
    , m_process(new ProcessWithoutTerminal(this))
{
    m_process->setProcessEnvironment(plainEnvironment());
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_killTimer.setSingleShot(true);
    m_killTimer.setInterval(killAfterMs);
    // clang-format off
    connect(m_process, SIGNAL(finished(int,QProcess::ExitStatus)), this,
                       SLOT(onFinished(int,QProcess::ExitStatus)));
    connect(m_process, SIGNAL(errorOccurred(QProcess::ProcessError)), this,
                       SLOT(onErrorOccurred(QProcess::ProcessError)));
    connect(m_process, SIGNAL(readyReadStandardOutput()), this, SLOT(onOutput()));
    connect(m_process, SIGNAL(readyReadStandardError()), this, SLOT(onErrors()));
    connect(&m_killTimer, SIGNAL(timeout()), this, SLOT(kill()));
    // clang-format on
}

RsyncProcess::~RsyncProcess()
{
    if (!isRunning())
        return;
    m_process->disconnect(this);
    signalAll(SIGKILL);
    m_process->waitForFinished(killAfterMs);
}

bool RsyncProcess::isRunning() const
{
    return m_process->state() != QProcess::NotRunning;
}

void RsyncProcess::start(const QStringList &arguments)
{
    m_result = {};
    m_errors.clear();
    m_stopped = false;
    m_process->start(QStringLiteral("rsync"), arguments);
}

bool RsyncProcess::waitForEnd(int timeoutMs)
{
    return m_process->waitForFinished(timeoutMs);
}

void RsyncProcess::stop()
{
    if (!isRunning())
        return;
    m_stopped = true;
    signalAll(SIGTERM);
    m_killTimer.start();
}

void RsyncProcess::onFinished(int exitCode, QProcess::ExitStatus status)
{
    m_killTimer.stop();
    onOutput();
    onErrors();
    if (status == QProcess::NormalExit && exitCode == 0)
        end(RsyncResult::Outcome::Done, {});
    else if (m_stopped)
        end(RsyncResult::Outcome::Stopped, tr("Cancelled."));
    else if (status == QProcess::CrashExit)
        end(RsyncResult::Outcome::Failed, tr("rsync was killed."));
    else
        fail(exitCode);
}

void RsyncProcess::fail(int exitCode)
{
    m_result.isPartial = exitCode == someFilesFailed || exitCode == someFilesVanished;
    end(RsyncResult::Outcome::Failed, explanation(exitCode, m_errors));
}

void RsyncProcess::onErrorOccurred(QProcess::ProcessError error)
{
    // Every other error is told by the end of the process, this one while start() still runs.
    if (error == QProcess::FailedToStart)
        QMetaObject::invokeMethod(this, "tellThatItDidNotStart", Qt::QueuedConnection);
}

void RsyncProcess::tellThatItDidNotStart()
{
    const bool isThere = !QStandardPaths::findExecutable(QStringLiteral("rsync")).isEmpty();
    end(RsyncResult::Outcome::Failed, isThere ? tr("The program rsync cannot be started.")
                                              : tr("The program rsync is not installed."));
}

void RsyncProcess::onOutput()
{
    const QByteArray chunk = m_process->readAllStandardOutput();
    if (m_result.output.size() + chunk.size() <= mostOutputBytes)
        m_result.output += chunk;
    const int sign = chunk.lastIndexOf('%');
    int first = sign;
    while (first > 0 && chunk.at(first - 1) >= '0' && chunk.at(first - 1) <= '9')
        --first;
    if (sign > 0 && first < sign)
        Q_EMIT progressed(qBound(0, chunk.mid(first, sign - first).toInt(), 100));
}

void RsyncProcess::onErrors()
{
    const QByteArray chunk = m_process->readAllStandardError();
    // The first lines tell the cause.
    m_errors += chunk.left(std::max(0, mostErrorBytes - m_errors.size()));
}

void RsyncProcess::kill()
{
    signalAll(SIGKILL);
}

void RsyncProcess::signalAll(int signalNumber) const
{
    // The process leads a session, so its number is that of the group, too.
    const auto leader = static_cast<pid_t>(m_process->processId());
    if (leader > 1 && ::kill(-leader, signalNumber) != 0)
        ::kill(leader, signalNumber);
}

void RsyncProcess::end(RsyncResult::Outcome outcome, const QString &message)
{
    m_result.outcome = outcome;
    m_result.message = message;
    m_result.details = linesOf(m_errors);
    Q_EMIT ended();
}

} // namespace Zavo
