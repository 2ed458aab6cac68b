#include "ScheduleNames.h"

#include "ZvSchedule.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTime>

namespace Zavo::ScheduleNames {

namespace {
constexpr int lastMsOfDay = 86400 * 1000 - 1;
} // namespace

QString of(const ZvSchedule &schedule)
{
    switch (schedule.type()) {
    case ZvSchedule::Date:
        return schedule.date().toString(Qt::ISODate);
    case ZvSchedule::DayOfWeek:
        return QLocale().standaloneDayName(schedule.dayOfWeek());
    case ZvSchedule::Default:
    case ZvSchedule::NoType:
        break;
    }
    return QCoreApplication::translate("Zavo::ScheduleNames", "Default schedule");
}

QString timeText(int ms)
{
    if (ms >= lastMsOfDay)
        return QStringLiteral("24:00");
    const QTime time = QTime::fromMSecsSinceStartOfDay(ms);
    if (time.msec() != 0)
        return QLocale::c().toString(time, QStringLiteral("hh:mm:ss.zzz"));
    return QLocale::c().toString(time, time.second() != 0 ? QStringLiteral("hh:mm:ss")
                                                          : QStringLiteral("hh:mm"));
}

} // namespace Zavo::ScheduleNames
