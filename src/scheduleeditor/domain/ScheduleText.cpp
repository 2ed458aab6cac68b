#include "domain/ScheduleText.h"

#include "domain/ZvScheduleBasicInfo.h"

#include <QCoreApplication>
#include <QLocale>

namespace Zavo {

QString dateText(const QDate &date)
{
    const QLocale locale = QLocale::system();
    return QStringLiteral("%1(%2)").arg(locale.toString(date, QLocale::LongFormat),
                                        locale.dayName(date.dayOfWeek(), QLocale::ShortFormat));
}

QString scheduleText(const ZvScheduleBasicInfo &info)
{
    switch (info.type()) {
    case ZvSchedule::Default:
        return QCoreApplication::translate("Zavo::ZvScheduleCommon", "Default");
    case ZvSchedule::Date:
        return dateText(info.date());
    case ZvSchedule::DayOfWeek:
        return QLocale::system().dayName(info.dayOfWeek(), QLocale::LongFormat);
    default:
        return {};
    }
}

QString numberedTexts(const QList<ZvScheduleBasicInfo> &infos,
                      QString (*textOf)(const ZvScheduleBasicInfo &))
{
    QString lines;
    int number = 0;
    for (const ZvScheduleBasicInfo &info : infos) {
        const QString text = textOf(info);
        if (!text.isEmpty())
            lines += QStringLiteral("%1: %2\n").arg(QString::number(++number), text);
    }
    return lines;
}

} // namespace Zavo
