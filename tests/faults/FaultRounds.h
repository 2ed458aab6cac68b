#pragma once

#include "FaultHouse.h"
#include "FaultyFiles.h"
#include "Operation.h"

#include <QString>

#include <cstdio>

namespace ZavoTest {

/// A way in which calls go wrong.
struct FaultKind
{
    const char *name = "";
    int error = FaultPlan::Nothing;
    bool lasts = false;
};

/// Carries out operations with a fault at one call after the other, each in a process of its own,
/// and holds every outcome to what the operation promises.
class FaultRounds final
{
    Q_DISABLE_COPY(FaultRounds)

public:
    /// @p log receives what went wrong; @p budget is the largest number of calls to be tried for
    /// one operation, kind, thread and user, spread over all of them.
    FaultRounds(FaultHouse *house, int budget, std::FILE *log);

    /// Every call of the operation, by every kind of fault.
    void everyCall(const Operation &operation, uid_t user);

    /// The operation on a small disk, which is mounted, with less and less room on it: by so many
    /// pages each time.
    void fullDisk(const Operation &operation, uid_t user, int step);

    int runs() const { return m_runs; }
    int failures() const { return m_failures; }

private:
    void everyCallOf(const Operation &operation, uid_t user, FaultPlan::Thread thread);
    void everyCallBy(const Operation &operation, uid_t user, const FaultKind &kind, int step,
                     FaultPlan plan);
    /// Returns whether the fault has struck.
    bool run(const Operation &operation, uid_t user, const FaultPlan &plan, const QString &what);
    void leaveRoom(qint64 bytes);

    FaultHouse *m_house = nullptr;
    int m_budget = 0;
    std::FILE *m_log = nullptr;
    int m_runs = 0;
    int m_failures = 0;
    qint64 m_room = -1;
};

} // namespace ZavoTest
