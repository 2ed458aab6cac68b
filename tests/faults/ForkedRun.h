#pragma once

#include <QStringList>

#include <functional>

#include <sys/types.h>

namespace ZavoTest {

/// A process forked from this one for one piece of work. It tells what happens line by line, so
/// that what it told is known however it ends.
class ForkedRun final
{
    Q_DISABLE_COPY(ForkedRun)

public:
    using Report = std::function<void(const QString &line)>;
    using Work = std::function<void(const Report &report)>;

    /// Starts the work as @p user, if this process may choose; it ends itself after two minutes.
    ForkedRun(uid_t user, const Work &work);
    ~ForkedRun();

    void kill() const;

    /// Waits for the end.
    void wait();

    /// After wait(): the lines that were told, and how it ended.
    QStringList lines() const { return m_lines; }
    bool isDone() const { return m_status == 0; }
    bool wasKilled() const;

    /// Neither done nor killed on purpose: a crash, or no end.
    QString oddEnd() const;

private:
    pid_t m_process = -1;
    int m_reports = -1;
    int m_status = -1;
    QStringList m_lines;
};

} // namespace ZavoTest
