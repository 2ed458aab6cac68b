#include "exporter/ChannelTable.h"

#include "ZvChannel.h"

#include <QLocale>

namespace Zavo::ChannelTable {

namespace {

constexpr int lastTableMs = 86400 * 1000 - 1;

QByteArray quoted(const QString &text)
{
    QByteArray field = text.toUtf8();
    field.replace('"', "\"\"");
    return '"' + field + '"';
}

QByteArray timeField(QTime time)
{
    // The last millisecond stands for 24 o'clock.
    return time.msecsSinceStartOfDay() == lastTableMs
               ? QByteArrayLiteral("24:00:00.000")
               : QLocale::c().toString(time, QStringLiteral("hh:mm:ss.zzz")).toLatin1();
}

/// Kind, day and date of the schedule, with the comma behind each.
QByteArray keyFields(const ZvSchedule &schedule)
{
    switch (schedule.type()) {
    case ZvSchedule::Date:
        return "date,," + schedule.date().toString(Qt::ISODate).toLatin1() + ',';
    case ZvSchedule::DayOfWeek:
        return "day," + QLocale::c().dayName(schedule.dayOfWeek()).toUtf8() + ",,";
    case ZvSchedule::Default:
    case ZvSchedule::NoType:
        break;
    }
    return QByteArrayLiteral("default,,,");
}

} // namespace

QByteArray of(const ZvChannel &channel)
{
    QByteArray bytes = "\xef\xbb\xbf"
                       "channel,schedule,day,date,start,end,stage\r\n";
    const QByteArray name = quoted(channel.name()) + ',';
    const QList<ZvSchedule> &schedules = channel.scheduleList();
    for (const ZvSchedule &schedule : schedules) {
        const QByteArray key = name + keyFields(schedule);
        if (!schedule.defaultStage().isEmpty())
            bytes += key + ",," + quoted(schedule.defaultStage()) + "\r\n";
        const QList<ZvTime> &bands = schedule.timeList();
        for (const ZvTime &band : bands)
            bytes += key + timeField(band.startTime()) + ',' + timeField(band.endTime()) + ',' +
                     quoted(band.stageName()) + "\r\n";
    }
    return bytes;
}

} // namespace Zavo::ChannelTable
