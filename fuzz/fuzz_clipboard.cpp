// The payloads that bands and schedules have on the clipboard, from anywhere and from here.
#include "FuzzInput.h"
#include "RecordWriter.h"
#include "Verdict.h"

#include "ZvChannel.h"
#include "services/ZvScheduleClipboard.h"

#include <algorithm>

using namespace Zavo;
using namespace ZavoFuzz;

namespace {

/// Payloads hold whole seconds.
QTime onSecond(QTime time)
{
    return time.addMSecs(-time.msec());
}

bool isSame(const QList<ZvTime> &a, const QList<ZvTime> &b)
{
    return std::equal(
        a.cbegin(), a.cend(), b.cbegin(), b.cend(), [](const ZvTime &x, const ZvTime &y) {
            return onSecond(x.startTime()) == onSecond(y.startTime()) &&
                   onSecond(x.endTime()) == onSecond(y.endTime()) && x.stageName() == y.stageName();
        });
}

bool isSame(const QList<ZvSchedule> &a, const QList<ZvSchedule> &b)
{
    return std::equal(
        a.cbegin(), a.cend(), b.cbegin(), b.cend(), [](const ZvSchedule &x, const ZvSchedule &y) {
            return x.isEmpty() == y.isEmpty() && x.defaultStage() == y.defaultStage() &&
                   isSame(x.timeList(), y.timeList());
        });
}

QList<ZvTime> placeable(QList<ZvTime> times)
{
    times.erase(std::remove_if(times.begin(), times.end(),
                               [](const ZvTime &time) { return time.isEmpty(); }),
                times.end());
    return times;
}

void checkTimes(const QList<ZvTime> &times)
{
    const QByteArray xml = ZvScheduleClipboard::timesToXml(times);
    require(isSame(ZvScheduleClipboard::xmlToTimes(xml), times),
            QStringLiteral("bands change on the clipboard"));
}

void checkSchedules(const QList<ZvSchedule> &schedules)
{
    const QByteArray xml = ZvScheduleClipboard::schedulesToXml(schedules);
    require(isSame(ZvScheduleClipboard::xmlToSchedules(xml), schedules),
            QStringLiteral("schedules change on the clipboard"));
}

void checkPayload(const QByteArray &xml)
{
    const QList<ZvTime> times = ZvScheduleClipboard::xmlToTimes(xml);
    require(times.size() <= ZvScheduleClipboard::MaximumTimeCount,
            QStringLiteral("too many bands"));
    require(placeable(times).size() == times.size(), QStringLiteral("a band cannot be placed"));
    checkTimes(times);
    const QList<ZvSchedule> schedules = ZvScheduleClipboard::xmlToSchedules(xml);
    require(schedules.size() <= ZvScheduleClipboard::MaximumScheduleCount,
            QStringLiteral("too many schedules"));
    checkSchedules(schedules);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzInput input(bytes, size);
    if (input.byte() != 'R') {
        checkPayload(QByteArray(reinterpret_cast<const char *>(bytes), static_cast<int>(size)));
        return 0;
    }
    RecordWriter writer(&input);
    ZvChannel channel{QString()};
    const QList<ZvSchedule> schedules = writer.schedules();
    for (ZvSchedule schedule : schedules) {
        schedule.setTimeList(placeable(schedule.timeList()));
        channel.insertSchedule(schedule);
        checkTimes(schedule.timeList());
    }
    checkSchedules(channel.scheduleList());
    return 0;
}
