#include "exporter/ChannelCalendar.h"

#include "ScheduleNames.h"
#include "ZvChannel.h"
#include "exporter/DayProgramme.h"

#include <KCalendarCore/Event>
#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/MemoryCalendar>

#include <QLocale>
#include <QTimeZone>

namespace Zavo {

namespace {

/// Without a zone: half past eight is half past eight wherever the file is read.
QDateTime wallClock(const QDate &date, int ms)
{
    if (ms >= DayProgramme::DayMs)
        return {date.addDays(1), QTime(0, 0), Qt::LocalTime};
    // Calendars know seconds.
    return {date, QTime::fromMSecsSinceStartOfDay(ms / 1000 * 1000), Qt::LocalTime};
}

KCalendarCore::Event::Ptr makeEvent(const ZvChannel &channel, const DayProgramme &programme,
                                    const ProgrammeSlot &slot)
{
    const KCalendarCore::Event::Ptr event(new KCalendarCore::Event);
    event->setUid(QStringLiteral("channel-%1-%2-%3@zavo")
                      .arg(channel.id())
                      .arg(QLocale::c().toString(programme.date, QStringLiteral("yyyyMMdd")))
                      .arg(slot.fromMs));
    event->setDtStart(wallClock(programme.date, slot.fromMs));
    event->setDtEnd(wallClock(programme.date, slot.toMs));
    event->setSummary(slot.stage);
    event->setLocation(channel.name());
    event->setDescription(ScheduleNames::of(programme.schedule));
    event->setTransparency(KCalendarCore::Event::Transparent);
    return event;
}

} // namespace

ExportContent ChannelCalendar::of(const ZvChannel &channel, const QDate &from, const QDate &to)
{
    ExportContent content;
    const QList<ZvSchedule> &schedules = channel.scheduleList();
    // Looked at before events are made, each of which takes much more memory.
    int events = 0;
    QVector<DayProgramme> days;
    for (QDate date = from; date <= to && events <= MaximumEvents; date = date.addDays(1)) {
        days.append(DayProgramme::of(schedules, date));
        events += days.constLast().slotList.size();
    }
    if (events > MaximumEvents) {
        content.problem = tr("There are more than %n bands in these dates. Choose fewer dates.",
                             nullptr, MaximumEvents);
        return content;
    }
    const KCalendarCore::MemoryCalendar::Ptr calendar(
        new KCalendarCore::MemoryCalendar(QTimeZone::systemTimeZone()));
    for (const DayProgramme &day : qAsConst(days)) {
        for (const ProgrammeSlot &slot : day.slotList)
            calendar->addEvent(makeEvent(channel, day, slot));
    }
    KCalendarCore::ICalFormat format;
    content.bytes = format.toString(calendar, QString()).toUtf8();
    if (content.bytes.isEmpty())
        content.problem = tr("The calendar cannot be made.");
    return content;
}

} // namespace Zavo
