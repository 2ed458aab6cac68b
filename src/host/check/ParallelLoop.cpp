#include "check/ParallelLoop.h"

#include "Calendars.h"

#include <QThread>
#include <QThreadPool>

#include <atomic>

namespace Zavo {

void runInParallel(int count, const std::function<void(int)> &work,
                   const std::function<bool()> &isCancelled)
{
    std::atomic<int> next{0};
    const auto runShare = [&] {
        for (int number = next++; number < count && !isCancelled(); number = next++)
            work(number);
    };
    makeCalendars();
    // A pool of its own: the global one may be busy with what waits for this very result.
    QThreadPool pool;
    const int helpers = qMin(count, QThread::idealThreadCount()) - 1;
    for (int i = 0; i < helpers; ++i)
        pool.start(runShare);
    runShare();
    pool.waitForDone();
}

} // namespace Zavo
