#include "FaultRounds.h"

#include "BoxClerk.h"
#include "ForkedRun.h"

#include <QDir>
#include <QFile>

#include <cerrno>

#include <sys/statvfs.h>

namespace ZavoTest {

namespace {

constexpr FaultKind Kinds[] = {{"killed", FaultPlan::Kill, false},
                               {"ENOSPC", ENOSPC, false},
                               {"EIO", EIO, false},
                               {"EACCES", EACCES, false},
                               {"EMFILE", EMFILE, false},
                               {"ENOSPC from there on", ENOSPC, true},
                               {"EIO from there on", EIO, true},
                               {"EACCES from there on", EACCES, true},
                               {"EMFILE from there on", EMFILE, true}};

constexpr qint64 BytesPerPage = 4096;
constexpr qint64 MostRoom = 20 * BytesPerPage;

QStringList boxesOf(const QStringList &lines)
{
    const QLatin1String mark("box ");
    QStringList boxes;
    for (const QString &line : lines) {
        if (line.startsWith(mark))
            boxes.append(line.mid(mark.size()));
    }
    return boxes;
}

/// What a process does that was forked for one run.
void work(FaultHouse *house, const Operation &operation, const FaultPlan &plan,
          const ForkedRun::Report &report)
{
    const BoxClerk clerk(report);
    const bool isOthers = plan.thread == FaultPlan::Thread::Others;
    if (isOthers)
        FaultyFiles::begin(plan);
    house->startSafety();
    if (!isOthers)
        FaultyFiles::begin(plan);
    operation.act(*house);
    const QString notice = house->notice();
    if (!notice.isEmpty())
        report(QStringLiteral("box Notice|") + notice);
    if (isOthers)
        house->endSafety();
    FaultyFiles::end();
}

} // namespace

FaultRounds::FaultRounds(FaultHouse *house, int budget, std::FILE *log)
    : m_house(house)
    , m_budget(budget)
    , m_log(log)
{
}

void FaultRounds::everyCall(const Operation &operation, uid_t user)
{
    everyCallOf(operation, user, FaultPlan::Thread::Gui);
    if (operation.needsWindow)
        everyCallOf(operation, user, FaultPlan::Thread::Others);
}

void FaultRounds::everyCallOf(const Operation &operation, uid_t user, FaultPlan::Thread thread)
{
    FaultPlan plan;
    plan.folder = m_house->dataDir();
    plan.thread = thread;
    run(operation, user, plan, QStringLiteral("without a fault"));
    const int step = qMax(1, (FaultyFiles::calls() + m_budget - 1) / m_budget);
    for (const FaultKind &kind : Kinds) {
        // Another place between the steps for each kind.
        plan.number =
            1 + static_cast<int>(&kind - Kinds) * step / static_cast<int>(std::size(Kinds));
        everyCallBy(operation, user, kind, step, plan);
    }
}

void FaultRounds::everyCallBy(const Operation &operation, uid_t user, const FaultKind &kind,
                              int step, FaultPlan plan)
{
    plan.error = kind.error;
    plan.lasts = kind.lasts;
    for (;; plan.number += step) {
        const QString what =
            QStringLiteral("call %1 %2").arg(plan.number).arg(QLatin1String(kind.name));
        if (!run(operation, user, plan, what))
            break;
    }
}

bool FaultRounds::run(const Operation &operation, uid_t user, const FaultPlan &plan,
                      const QString &what)
{
    ++m_runs;
    m_house->layOut(operation.before, user);
    leaveRoom(m_room);
    ForkedRun forked(
        user, [&](const ForkedRun::Report &report) { work(m_house, operation, plan, report); });
    forked.wait();
    QFile::remove(m_house->folder().filePath(QStringLiteral(".filler")));
    const Outcome outcome{forked.isDone(), boxesOf(forked.lines()), m_house->present()};
    QString wrong = forked.oddEnd();
    if (wrong.isEmpty() && forked.wasKilled() && !FaultyFiles::haveStruck())
        wrong = QStringLiteral("it was killed by somebody");
    if (wrong.isEmpty())
        wrong = operation.check(outcome, *m_house);
    if (wrong.isEmpty() && !m_house->leftovers().isEmpty())
        wrong =
            QStringLiteral("files are left over: ") + m_house->leftovers().join(QLatin1Char(' '));
    if (!wrong.isEmpty()) {
        ++m_failures;
        std::fprintf(m_log, "%s, %s (%s, %s thread, user %u): %s\n", qPrintable(operation.name),
                     qPrintable(what), FaultyFiles::struckCall().constData(),
                     plan.thread == FaultPlan::Thread::Gui ? "first" : "another", user,
                     qPrintable(wrong));
        for (const QString &box : outcome.boxes)
            std::fprintf(m_log, "    box: %s\n", qPrintable(box));
    }
    return FaultyFiles::haveStruck();
}

void FaultRounds::fullDisk(const Operation &operation, uid_t user, int step)
{
    FaultPlan plan;
    plan.folder = m_house->dataDir();
    for (m_room = MostRoom; m_room >= 0; m_room -= step * BytesPerPage)
        run(operation, user, plan, QStringLiteral("%1 bytes of room").arg(m_room));
    m_room = -1;
}

void FaultRounds::leaveRoom(qint64 bytes)
{
    struct statvfs disk = {};
    if (bytes < 0 || statvfs(m_house->dataDir().constData(), &disk) != 0)
        return;
    const qint64 free = qint64(disk.f_bavail) * qint64(disk.f_bsize);
    QFile filler(m_house->folder().filePath(QStringLiteral(".filler")));
    if (filler.open(QIODevice::WriteOnly))
        filler.write(QByteArray(static_cast<int>(qMax<qint64>(0, free - bytes)), 'x'));
}

} // namespace ZavoTest
