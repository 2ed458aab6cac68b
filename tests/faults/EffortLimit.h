#pragma once

#include <QtGlobal>

#include <ctime>

namespace ZavoTest {

/// Time of the processors that this program took since the object was made, which hardly depends on
/// what else the machine does.
class EffortLimit final
{
public:
    /// True if no more was taken than what is linear in so many bytes takes, also unoptimised and
    /// under the sanitizers. What is quadratic takes a hundred times as long and more.
    bool isKept(qint64 bytes) const
    {
        constexpr double baseSeconds = 10.0;
        constexpr double secondsPerMegabyte = 1.0;
        return now() - m_begin < baseSeconds + secondsPerMegabyte * double(bytes) / 1e6;
    }

private:
    static double now()
    {
        constexpr double nanosecond = 1e-9;
        timespec time = {};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) + double(time.tv_nsec) * nanosecond;
    }

    double m_begin = now();
};

} // namespace ZavoTest
