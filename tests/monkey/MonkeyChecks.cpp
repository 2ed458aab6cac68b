#include "MonkeyChecks.h"

#include "MonkeyHouse.h"

#include "ZvChannel.h"
#include "timetable/TimeAxis.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"
#include "timetable/ZvTimeTableView.h"
#include "workspace/ZvScheduleMainWidget.h"
#include "workspace/ZvScheduleTabWidget.h"

#include <QDateTime>
#include <QDir>
#include <QLocale>
#include <QSet>
#include <QUndoGroup>
#include <QUndoStack>

#include <algorithm>
#include <set>
#include <tuple>

using namespace Zavo;

namespace ZavoTest {

namespace {

QString timeText(const ZvTime &time)
{
    const auto format = QStringLiteral("HH:mm:ss.zzz");
    return QStringLiteral("%1-%2 %3")
        .arg(QLocale::c().toString(time.startTime(), format),
             QLocale::c().toString(time.endTime(), format), time.stageName());
}

QTime rounded(QTime time)
{
    const int tenths = (time.msecsSinceStartOfDay() + 50) / 100;
    return QTime::fromMSecsSinceStartOfDay(
        qMin(tenths * 100, TimeAxis::endOfDay().msecsSinceStartOfDay()));
}

ZvSchedule bandsOf(const ZvSchedule &schedule)
{
    ZvSchedule bands = schedule;
    QList<ZvTime> times = schedule.timeList();
    for (ZvTime &time : times) {
        time.setStartTime(rounded(time.startTime()));
        time.setEndTime(rounded(time.endTime()));
    }
    bands.setDefaultStage(QString());
    bands.setTimeList(times);
    return bands;
}

QString scheduleText(const ZvSchedule &schedule)
{
    QStringList lines{QStringLiteral("schedule %1 %2 %3 default %4")
                          .arg(schedule.type())
                          .arg(static_cast<int>(schedule.dayOfWeek()))
                          .arg(schedule.date().toString(Qt::ISODate), schedule.defaultStage())};
    const QString place = lines.first().section(QLatin1Char(' '), 1, 3);
    const QList<ZvTime> &times = schedule.timeList();
    for (const ZvTime &time : times)
        lines.append(place + QLatin1Char(' ') + timeText(time));
    return lines.join(QLatin1Char('\n'));
}

QStringList wrongWithBand(const QList<ZvTimeTableTimeItem *> &items, int i)
{
    const ZvTimeTableTimeItem *item = items.at(i);
    const ZvTimeTableTimeItem *previous = i > 0 ? items.at(i - 1) : nullptr;
    const ZvTimeTableTimeItem *next = i + 1 < items.size() ? items.at(i + 1) : nullptr;
    QStringList wrong;
    if (item->index() != i)
        wrong.append(QStringLiteral("has the number %1").arg(item->index()));
    if (item->previousItem() != previous || item->nextItem() != next)
        wrong.append(QStringLiteral("is not linked to its neighbours"));
    if (!item->startTime().isValid() || item->endTime() < item->startTime())
        wrong.append(QStringLiteral("has no time"));
    if (previous && previous->endTime().msecsTo(item->startTime()) < -ZvTime::ToleranceMs)
        wrong.append(QStringLiteral("begins before ") + timeText(previous->timeInfo()));
    if (previous && item->startTime() < previous->startTime())
        wrong.append(QStringLiteral("is not in the order of time"));
    return wrong;
}

void checkBands(const ZvScheduleWorkingArea *area, QStringList *wrong)
{
    const ZvTimeTableTimeZoneItem *zone = MonkeyHouse::timeZone(area);
    if (!zone)
        return;
    const QList<ZvTimeTableTimeItem *> items = zone->timeItems();
    for (int i = 0; i < items.size(); ++i) {
        const QStringList here = wrongWithBand(items, i);
        for (const QString &what : here)
            wrong->append(QStringLiteral("band %1 (%2) %3")
                              .arg(i)
                              .arg(timeText(items.at(i)->timeInfo()), what));
    }
}

void checkSelection(const ZvScheduleWorkingArea *area, QStringList *wrong)
{
    const ZvTimeTableTimeZoneItem *zone = MonkeyHouse::timeZone(area);
    if (!zone)
        return;
    if (!zone->containsAll(area->selectedTimeItems()))
        wrong->append(QStringLiteral("a selected band is not in the strip"));
    else if (area->selectedTimeItems().size() != zone->selectedTimeItemCount())
        wrong->append(QStringLiteral("%1 bands are noted as selected, %2 are")
                          .arg(area->selectedTimeItems().size())
                          .arg(zone->selectedTimeItemCount()));
}

void checkSchedules(const ZvScheduleWorkingArea *area, QStringList *wrong)
{
    const QList<ZvSchedule> &list = area->channel()->scheduleList();
    std::set<std::tuple<int, int, qint64>> keys;
    for (const ZvSchedule &schedule : list) {
        const int day = static_cast<int>(schedule.dayOfWeek());
        const bool hasDay = schedule.type() == ZvSchedule::DayOfWeek;
        const bool hasDate = schedule.type() == ZvSchedule::Date;
        const auto key = std::make_tuple(static_cast<int>(schedule.type()), hasDay ? day : 0,
                                         hasDate ? schedule.date().toJulianDay() : 0);
        if (!keys.insert(key).second)
            wrong->append(QStringLiteral("two of ") + scheduleText(schedule));
    }
}

} // namespace

QStringList MonkeyChecks::wrongInWindow() const
{
    QStringList wrong;
    const QList<ZvScheduleWorkingArea *> areas = m_house->areas();
    QSet<int> ids;
    for (int i = 0; i < areas.size(); ++i) {
        ZvScheduleWorkingArea *area = areas.at(i);
        QStringList here;
        if (!area->channel())
            continue;
        if (m_house->tabs()->tabText(i) != area->channelName())
            here.append(QStringLiteral("is titled ") + m_house->tabs()->tabText(i));
        if (ids.contains(area->channel()->id()))
            here.append(QStringLiteral("has the id of another tab"));
        ids.insert(area->channel()->id());
        checkBands(area, &here);
        checkSelection(area, &here);
        checkSchedules(area, &here);
        if (!here.isEmpty())
            wrong.append(QStringLiteral("tab %1 (%2): %3")
                             .arg(i)
                             .arg(area->channelName(), here.join(QStringLiteral("; "))));
    }
    if (!areas.isEmpty() && areas.first()->channel() && areas.first()->channel()->id() != 0)
        wrong.append(QStringLiteral("the first tab has id %1").arg(areas.first()->channel()->id()));
    const ZvScheduleWorkingArea *current = m_house->currentArea();
    if (current && m_house->main()->undoGroup()->activeStack() != current->undoStack())
        wrong.append(QStringLiteral("the history is not that of the current tab"));
    return wrong;
}

QStringList MonkeyChecks::wrongOnDisk(bool thorough)
{
    QStringList wrong;
    QDir folder(m_house->data().channelFolder());
    const QDateTime change = QFileInfo(folder.path()).lastModified();
    if (!thorough && change == m_seenFolder)
        return wrong;
    m_seenFolder = change;
    const QFileInfoList files = folder.entryInfoList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QFileInfo &file : files) {
        const auto stamp = qMakePair(file.lastModified(), file.size());
        if (m_seenFiles.value(file.fileName()) == stamp)
            continue;
        m_seenFiles.insert(file.fileName(), stamp);
        if (file.fileName().startsWith(QLatin1Char('.')))
            wrong.append(QStringLiteral("%1 was left").arg(file.fileName()));
        else if (file.suffix() == QLatin1String("xml") &&
                 !ZvChannel(file.absoluteFilePath()).readFile())
            wrong.append(QStringLiteral("%1 cannot be read").arg(file.fileName()));
    }
    return wrong;
}

QString MonkeyChecks::contentOf(ZvScheduleWorkingArea *area, Content content)
{
    area->refreshStoredSchedule();
    QStringList texts;
    const QList<ZvSchedule> &list = area->channel()->scheduleList();
    for (const ZvSchedule &schedule : list)
        texts.append(scheduleText(content == Bands ? bandsOf(schedule) : schedule));
    texts.sort();
    texts.prepend(area->channelName());
    return texts.join(QLatin1Char('\n'));
}

ZvSchedule MonkeyChecks::tableOf(const ZvScheduleWorkingArea *area)
{
    ZvSchedule schedule = area->currentScheduleInfo().toSchedule();
    schedule.setTimeList(area->currentTimes());
    return schedule;
}

QString MonkeyChecks::placeInHistory(const ZvScheduleWorkingArea *area)
{
    const QUndoStack *stack = area->undoStack();
    const auto pointer = [](const void *object) { return reinterpret_cast<quintptr>(object); };
    const ZvSchedule schedule = area->currentScheduleInfo().toSchedule();
    return QStringLiteral("%1 %2 %3 %4 %5 %6")
        .arg(pointer(area))
        .arg(stack->index())
        .arg(pointer(stack->command(stack->count() - 1)))
        .arg(schedule.type())
        .arg(static_cast<int>(schedule.dayOfWeek()))
        .arg(schedule.date().toString(Qt::ISODate));
}

QStringList MonkeyChecks::differences(const QString &before, const QString &after)
{
    QStringList old = before.split(QLatin1Char('\n'));
    QStringList differences;
    const QStringList lines = after.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (!old.removeOne(line))
            differences.append(QStringLiteral("+ ") + line);
    }
    for (const QString &line : qAsConst(old))
        differences.append(QStringLiteral("- ") + line);
    return differences;
}

QStringList MonkeyChecks::differences(const ZvSchedule &before, const ZvSchedule &after)
{
    const QList<ZvTime> &times = before.timeList();
    const QList<ZvTime> &others = after.timeList();
    const auto isSame = [](const ZvTime &a, const ZvTime &b) {
        return a.startTime() == b.startTime() && a.endTime() == b.endTime() &&
               a.stageName() == b.stageName();
    };
    if (before.hasSameKey(after) &&
        std::equal(times.cbegin(), times.cend(), others.cbegin(), others.cend(), isSame))
        return {};
    return differences(scheduleText(bandsOf(before)), scheduleText(bandsOf(after)));
}

} // namespace ZavoTest
