#include "check/CheckCommand.h"

#include "check/CheckText.h"
#include "check/CheckThread.h"

namespace Zavo {

namespace {
constexpr unsigned long progressDelayMs = 500;
constexpr unsigned long progressIntervalMs = 100;
} // namespace

CheckCommand::CheckCommand(FILE *out, FILE *errors, bool showProgress)
    : m_out(out)
    , m_errors(errors)
    , m_showProgress(showProgress)
{
}

CheckCommand::ExitCode CheckCommand::run()
{
    CheckThread thread;
    thread.start();
    unsigned long pauseMs = progressDelayMs;
    while (!thread.wait(pauseMs)) {
        writeProgress(thread.done(), thread.total());
        pauseMs = progressIntervalMs;
    }
    clearProgress();
    const CheckReport &report = thread.report();
    if (!report.isComplete) {
        std::fprintf(m_errors, "%s: %s\n", qUtf8Printable(QCoreApplication::applicationName()),
                     qUtf8Printable(report.problem));
        return NotChecked;
    }
    for (const CheckFinding &finding : report.findings)
        std::fprintf(m_out, "%s\n", qUtf8Printable(CheckText::line(finding)));
    std::fprintf(m_out, "%s\n", qUtf8Printable(CheckText::summary(report)));
    // Findings that no one could read are no answer.
    if (std::fflush(m_out) != 0 || std::ferror(m_out))
        return NotChecked;
    return report.findings.isEmpty() ? NothingFound : Found;
}

void CheckCommand::writeProgress(int done, int total)
{
    if (!m_showProgress)
        return;
    m_progressShown = true;
    std::fprintf(m_errors, "\r%s\x1b[K",
                 qUtf8Printable(tr("%1 of %2 files checked").arg(done).arg(total)));
    std::fflush(m_errors);
}

void CheckCommand::clearProgress()
{
    if (m_progressShown)
        std::fputs("\r\x1b[K", m_errors);
}

} // namespace Zavo
