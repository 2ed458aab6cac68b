#include "exporter/DayProgramme.h"

namespace Zavo {

namespace {

/// 0 if the schedule does not stand for the date.
int precedenceOn(const ZvSchedule &schedule, const QDate &date)
{
    switch (schedule.type()) {
    case ZvSchedule::Date:
        return schedule.date() == date ? 3 : 0;
    case ZvSchedule::DayOfWeek:
        return static_cast<int>(schedule.dayOfWeek()) == date.dayOfWeek() ? 2 : 0;
    case ZvSchedule::Default:
        return 1;
    case ZvSchedule::NoType:
        break;
    }
    return 0;
}

void fillWithDefault(QVector<ProgrammeSlot> *slotList, int fromMs, int toMs, const QString &stage)
{
    // A gap that comes of truncated times is none.
    if (!stage.isEmpty() && toMs - fromMs > ZvTime::ToleranceMs)
        slotList->append({fromMs, toMs, stage, true});
}

} // namespace

DayProgramme DayProgramme::of(const QList<ZvSchedule> &schedules, const QDate &date)
{
    DayProgramme result;
    result.date = date;
    int highest = 0;
    for (const ZvSchedule &schedule : schedules) {
        const int precedence = precedenceOn(schedule, date);
        if (precedence > highest) {
            highest = precedence;
            result.schedule = schedule;
        }
    }
    const QString defaultStage = result.schedule.defaultStage();
    const QList<ZvTime> &bands = result.schedule.timeList();
    int doneMs = 0;
    for (const ZvTime &band : bands) {
        const int fromMs = band.startTime().msecsSinceStartOfDay();
        const int endMs = band.endTime().msecsSinceStartOfDay();
        // The last millisecond stands for 24 o'clock.
        const int toMs = endMs >= DayMs - 1 ? DayMs : endMs;
        if (band.isEmpty() || toMs <= fromMs)
            continue;
        fillWithDefault(&result.slotList, doneMs, fromMs, defaultStage);
        result.slotList.append({fromMs, toMs, band.stageName(), false});
        doneMs = toMs;
    }
    fillWithDefault(&result.slotList, doneMs, DayMs, defaultStage);
    return result;
}

} // namespace Zavo
