#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

namespace ZavoTest {

/// While it lives, no file of this process can grow: every write fails as on a full disk, for root
/// too. Nothing else may write to a file meanwhile, the test's own output included.
class WriteFailure final
{
    Q_DISABLE_COPY(WriteFailure)

public:
    WriteFailure()
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_limit);
        rlimit none = m_limit;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_FSIZE, &none);
    }

    ~WriteFailure()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_limit{};
    void (*m_handler)(int) = nullptr;
};

} // namespace ZavoTest
