#include "MonkeyClock.h"

#include <QtGlobal>

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace {

constexpr qint64 SecondNs = 1000000000;
constexpr qint64 FirstMoment = 1780304400; // seconds; a Monday morning in June of 2026
constexpr timespec NoTime = {0, 0};
constexpr timespec AMillisecond = {0, 1000000};
constexpr long KernelMaskSize = 8;  // bytes
constexpr int LongestRestMs = 2000; // a thread that never rests must not stop the clock

bool s_isStarted = false;
qint64 s_calendarOffset = 0; // ns, from the machine's calendar to the one that is told
thread_local bool t_isTold = false;
thread_local qint64 t_passed = 0; // ns

qint64 nanoseconds(const timespec &time)
{
    return time.tv_sec * SecondNs + time.tv_nsec;
}

timespec timeOf(qint64 ns)
{
    return {static_cast<time_t>(ns / SecondNs), static_cast<long>(ns % SecondNs)};
}

qint64 machineTime(clockid_t clock)
{
    timespec time = {};
    syscall(SYS_clock_gettime, clock, &time);
    return nanoseconds(time);
}

bool isCalendar(clockid_t clock)
{
    return clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE;
}

qint64 toldTime(clockid_t clock)
{
    if (isCalendar(clock))
        return t_isTold ? FirstMoment * SecondNs + t_passed : machineTime(clock) + s_calendarOffset;
    const bool runs = clock == CLOCK_MONOTONIC || clock == CLOCK_MONOTONIC_COARSE ||
                      clock == CLOCK_MONOTONIC_RAW || clock == CLOCK_BOOTTIME;
    return t_isTold && runs ? SecondNs + t_passed : machineTime(clock);
}

/// Whether the thread is in the middle of something: it runs, or waits for the disk.
bool isBusy(const char *thread)
{
    char path[288];
    std::snprintf(path, sizeof path, "/proc/self/task/%s/stat", thread);
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    char text[128] = {};
    const ssize_t size = read(file, text, sizeof text - 1);
    close(file);
    const char *name = size > 0 ? std::strrchr(text, ')') : nullptr;
    return name && name[1] && std::strchr("RD", name[2]);
}

bool areOthersBusy()
{
    DIR *folder = opendir("/proc/self/task");
    if (!folder)
        return false;
    const auto self = static_cast<long>(syscall(SYS_gettid));
    bool areBusy = false;
    while (const dirent *entry = readdir(folder)) {
        const long thread = std::strtol(entry->d_name, nullptr, 10);
        areBusy = areBusy || (thread > 0 && thread != self && isBusy(entry->d_name));
    }
    closedir(folder);
    return areBusy;
}

int machinePoll(pollfd *files, nfds_t count, const timespec *timeout, const sigset_t *mask)
{
    timespec left = timeout ? *timeout : NoTime;
    return static_cast<int>(
        syscall(SYS_ppoll, files, count, timeout ? &left : nullptr, mask, KernelMaskSize));
}

} // namespace

#define MONKEY_EXPORT extern "C" __attribute__((visibility("default")))

// These stand before those of the C library for every library of this program.

MONKEY_EXPORT int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    if (!s_isStarted)
        return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    *time = timeOf(toldTime(clock));
    return 0;
}

MONKEY_EXPORT int gettimeofday(timeval *time, void *) noexcept
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    *time = {now.tv_sec, now.tv_nsec / 1000};
    return 0;
}

MONKEY_EXPORT time_t time(time_t *result) noexcept
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    if (result)
        *result = now.tv_sec;
    return now.tv_sec;
}

MONKEY_EXPORT int nanosleep(const timespec *wanted, timespec *left)
{
    if (!t_isTold)
        return static_cast<int>(syscall(SYS_nanosleep, wanted, left));
    t_passed += nanoseconds(*wanted);
    return 0;
}

MONKEY_EXPORT int ppoll(pollfd *files, nfds_t count, const timespec *timeout, const sigset_t *mask)
{
    if (!t_isTold || !timeout || nanoseconds(*timeout) == 0)
        return machinePoll(files, count, timeout, mask);
    int ready = machinePoll(files, count, &NoTime, mask);
    for (int i = 0; i < LongestRestMs && ready == 0 && areOthersBusy(); ++i)
        ready = machinePoll(files, count, &AMillisecond, mask);
    if (ready == 0)
        ready = machinePoll(files, count, &NoTime, mask);
    if (ready == 0)
        t_passed += nanoseconds(*timeout);
    return ready;
}

namespace ZavoTest::MonkeyClock {

void start()
{
    s_calendarOffset = FirstMoment * SecondNs - machineTime(CLOCK_REALTIME);
    t_isTold = true;
    s_isStarted = true;
}

} // namespace ZavoTest::MonkeyClock
