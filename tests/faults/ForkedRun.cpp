#include "ForkedRun.h"

#include <QByteArray>

#include <csignal>

#include <fcntl.h>
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ZavoTest {

namespace {

constexpr unsigned LongestWorkSeconds = 120;

void become(uid_t user)
{
    if (geteuid() == user)
        return;
    if (setgroups(0, nullptr) != 0 || setresgid(user, user, user) != 0 ||
        setresuid(user, user, user) != 0)
        _exit(2);
}

} // namespace

ForkedRun::ForkedRun(uid_t user, const Work &work)
{
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0)
        qFatal("no pipe");
    m_reports = ends[0];
    m_process = fork();
    if (m_process < 0)
        qFatal("no fork");
    if (m_process == 0) {
        ::close(ends[0]);
        alarm(LongestWorkSeconds);
        become(user);
        const int out = ends[1];
        work([out](const QString &line) {
            QByteArray bytes = QString(line).replace(QLatin1Char('\n'), QLatin1Char(' ')).toUtf8();
            bytes += '\n';
            if (::write(out, bytes.constData(), static_cast<size_t>(bytes.size())) < 0)
                _exit(3);
        });
        _exit(0);
    }
    ::close(ends[1]);
}

ForkedRun::~ForkedRun()
{
    if (m_status == -1) {
        kill();
        wait();
    }
    ::close(m_reports);
}

void ForkedRun::kill() const
{
    ::kill(m_process, SIGKILL);
}

void ForkedRun::wait()
{
    QByteArray all;
    char buffer[4096];
    for (;;) {
        const ssize_t count = ::read(m_reports, buffer, sizeof buffer);
        if (count <= 0)
            break;
        all.append(buffer, static_cast<int>(count));
    }
    waitpid(m_process, &m_status, 0);
    m_lines = QString::fromUtf8(all).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

bool ForkedRun::wasKilled() const
{
    return WIFSIGNALED(m_status) && WTERMSIG(m_status) == SIGKILL;
}

QString ForkedRun::oddEnd() const
{
    if (isDone() || wasKilled())
        return {};
    if (WIFSIGNALED(m_status) && WTERMSIG(m_status) == SIGALRM)
        return QStringLiteral("it did not end");
    return WIFSIGNALED(m_status)
               ? QStringLiteral("it died of signal %1").arg(WTERMSIG(m_status))
               : QStringLiteral("it ended with code %1").arg(WEXITSTATUS(m_status));
}

} // namespace ZavoTest
