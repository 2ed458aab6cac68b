#pragma once

#include "ZvChannel.h"
#include "domain/ScheduleText.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "timetable/ZvTimeTableTimeItem.h"

#include <QStringList>

namespace ZavoTest {

/// A time to the hundredth of a second: bands give their times back truncated.
inline QString hundredths(QTime time)
{
    const int hundredth = (time.msecsSinceStartOfDay() + Zavo::ZvTime::ToleranceMs) / 10;
    return QStringLiteral("%1:%2:%3.%4")
        .arg(hundredth / 360000, 2, 10, QLatin1Char('0'))
        .arg(hundredth / 6000 % 60, 2, 10, QLatin1Char('0'))
        .arg(hundredth / 100 % 60, 2, 10, QLatin1Char('0'))
        .arg(hundredth % 100, 2, 10, QLatin1Char('0'));
}

inline QStringList bandTexts(const QList<Zavo::ZvTime> &times)
{
    QStringList texts;
    for (const Zavo::ZvTime &time : times) {
        texts.append(
            QStringLiteral("%1-%2 %3")
                .arg(hundredths(time.startTime()), hundredths(time.endTime()), time.stageName()));
    }
    return texts;
}

inline QStringList scheduleTexts(const Zavo::ZvChannel *channel)
{
    QStringList texts;
    const QList<Zavo::ZvSchedule> &schedules = channel->scheduleList();
    for (const Zavo::ZvSchedule &schedule : schedules) {
        texts.append(QStringLiteral("type %1, day %2, date %3, default '%4', %5")
                         .arg(QString::number(schedule.type()),
                              QString::number(schedule.dayOfWeek()),
                              schedule.date().toString(Qt::ISODate), schedule.defaultStage(),
                              bandTexts(schedule.timeList()).join(QStringLiteral("; "))));
    }
    return texts;
}

/// The numbers of the selected bands, as "0 2".
inline QString selectionOf(const Zavo::ZvScheduleWorkingArea *area)
{
    QStringList numbers;
    const QList<Zavo::ZvTimeTableTimeItem *> items = area->selectedTimeItems();
    for (const Zavo::ZvTimeTableTimeItem *item : items)
        numbers.append(QString::number(item->index()));
    return numbers.join(QLatin1Char(' '));
}

/// All that a page shows and its channel holds, but for the selection. The table on show, if it
/// can be edited, is stored for this.
inline QStringList stateOf(Zavo::ZvScheduleWorkingArea *area)
{
    if (area->isCurrentScheduleEnabled())
        area->storeCurrentSchedule();
    QStringList state{QStringLiteral("channel ") + area->channelName(),
                      QStringLiteral("on show ") + Zavo::scheduleText(area->currentScheduleInfo()),
                      QStringLiteral("title ") + area->currentScheduleName(),
                      QLatin1String(area->isCurrentScheduleEnabled() ? "enabled" : "disabled"),
                      QStringLiteral("default ") + area->defaultStageName(),
                      QStringLiteral("bands ") +
                          bandTexts(area->currentTimes()).join(QStringLiteral("; "))};
    return state + scheduleTexts(area->channel());
}

} // namespace ZavoTest
