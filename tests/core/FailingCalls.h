#pragma once

#include "storage/FileSystemCalls.h"

#include <QByteArray>
#include <QMap>

#include <cerrno>
#include <functional>
#include <limits>

/// The system's calls, of which chosen ones fail as on a bad disk. In use while it lives.
class FailingCalls final : public Zavo::FileSystemCalls
{
public:
    enum Kind {
        Stat,
        Access,
        Open,
        Fstat,
        Read,
        Write,
        Fchown,
        Fchmod,
        Fsync,
        Close,
        Link,
        Rename,
        Unlink
    };
    static constexpr int ForEver = std::numeric_limits<int>::max();

    FailingCalls() { setCurrent(this); }
    ~FailingCalls() override { setCurrent(nullptr); }
    Q_DISABLE_COPY(FailingCalls)

    /// The call of the kind that comes after @p successes others fails, and @p times in all.
    void fail(Kind kind, int error, int successes = 0, int times = 1)
    {
        m_plans[kind] = {error, successes, times};
    }

    /// No write takes more than so many bytes.
    void setLongestWrite(size_t bytes) { m_longestWrite = bytes; }

    int count(Kind kind) const { return m_counts.value(kind); }

    /// Called before each call; null for none.
    void setObserver(const std::function<void()> &observer) { m_observer = observer; }

    int stat(const char *path, struct stat *status) override
    {
        return allowed(Stat) ? FileSystemCalls::stat(path, status) : -1;
    }
    int access(const char *path, int mode) override
    {
        return allowed(Access) ? FileSystemCalls::access(path, mode) : -1;
    }
    int open(const char *path, int flags, mode_t mode) override
    {
        return allowed(Open) ? FileSystemCalls::open(path, flags, mode) : -1;
    }
    int fstat(int file, struct stat *status) override
    {
        return allowed(Fstat) ? FileSystemCalls::fstat(file, status) : -1;
    }
    ssize_t read(int file, void *bytes, size_t count) override
    {
        return allowed(Read) ? FileSystemCalls::read(file, bytes, count) : -1;
    }
    ssize_t write(int file, const void *bytes, size_t count) override
    {
        return allowed(Write) ? FileSystemCalls::write(file, bytes, qMin(count, m_longestWrite))
                              : -1;
    }
    int fchown(int file, uid_t owner, gid_t group) override
    {
        return allowed(Fchown) ? FileSystemCalls::fchown(file, owner, group) : -1;
    }
    int fchmod(int file, mode_t mode) override
    {
        return allowed(Fchmod) ? FileSystemCalls::fchmod(file, mode) : -1;
    }
    int fsync(int file) override { return allowed(Fsync) ? FileSystemCalls::fsync(file) : -1; }
    int close(int file) override
    {
        const bool ok = allowed(Close);
        const int error = errno;
        const int result = FileSystemCalls::close(file); // a failed close has closed, too
        errno = ok ? errno : error;
        return ok ? result : -1;
    }
    int link(const char *from, const char *to) override
    {
        return allowed(Link) ? FileSystemCalls::link(from, to) : -1;
    }
    int rename(const char *from, const char *to) override
    {
        return allowed(Rename) ? FileSystemCalls::rename(from, to) : -1;
    }
    int unlink(const char *path) override
    {
        return allowed(Unlink) ? FileSystemCalls::unlink(path) : -1;
    }

private:
    struct Plan
    {
        int error = 0;
        int successes = 0;
        int times = 0;
    };

    bool allowed(Kind kind)
    {
        if (m_observer)
            m_observer();
        const int number = m_counts[kind]++;
        const Plan plan = m_plans.value(kind);
        if (plan.times == 0 || number < plan.successes || number - plan.successes >= plan.times)
            return true;
        errno = plan.error;
        return false;
    }

    QMap<Kind, int> m_counts;
    QMap<Kind, Plan> m_plans;
    size_t m_longestWrite = std::numeric_limits<size_t>::max();
    std::function<void()> m_observer;
};
