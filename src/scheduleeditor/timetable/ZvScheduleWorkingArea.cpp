#include "timetable/ZvScheduleWorkingArea.h"

#include "ZvChannel.h"
#include "ZvConfig.h"
#include "ZvEditorConfig.h"
#include "domain/ChannelSchedules.h"
#include "domain/ScheduleText.h"
#include "stages/ZvScheduleDefaultStageWidget.h"
#include "timetable/WorkingAreaHeader.h"
#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"

#include <QDate>
#include <QPointer>
#include <QUndoStack>

namespace Zavo {

namespace {

QDate oldestKeptDate()
{
    return QDate::currentDate().addDays(-ZvEditorConfig::getConfig()->removingDuration());
}

void registerPageMetaTypes()
{
    qRegisterMetaType<QList<ZvTimeTableTimeItem *>>("QList<ZvTimeTableTimeItem*>");
    qRegisterMetaType<ZvScheduleWorkingArea *>("ZvScheduleWorkingArea*");
}

} // namespace

// Runs when the library is loaded: who listens to a page's relays may come before any page.
Q_CONSTRUCTOR_FUNCTION(registerPageMetaTypes)

ZvScheduleWorkingArea::ZvScheduleWorkingArea(ZvChannel *channel, QWidget *parent)
    : TimeTablePage(parent)
    , m_channel(channel)
    , m_undoStack(new QUndoStack(this))
{
    // The snapshot comes first: a schedule that is dropped for its age is a change to be saved.
    renewSavedChannel();
    ChannelSchedules::removeBefore(channel, oldestKeptDate());
    connectTable();
}

ZvScheduleWorkingArea::~ZvScheduleWorkingArea() = default;

void ZvScheduleWorkingArea::connectTable()
{
    // The scene reports in the middle of its changes; queued, its reports find the table at rest.
    // clang-format off
    connect(header()->defaultStageWidget(), SIGNAL(stageNameChanged(QString)), this, SLOT(onDefaultStageNameChanged(QString)));
    connect(timeZone(), SIGNAL(timeItemCountChanged(int)), this, SLOT(onTimeItemCountChanged(int)));
    connect(scene(), SIGNAL(timeTableTimeItemHasNotSelected()), this, SLOT(onTimeTableTimeItemHasNotSelected()), Qt::QueuedConnection);
    connect(scene(), SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>)), this, SLOT(onTimeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>)), Qt::QueuedConnection);
    // clang-format on
}

QString ZvScheduleWorkingArea::channelName() const
{
    return m_channel ? m_channel->name() : QString();
}

bool ZvScheduleWorkingArea::isChannelChanged() const
{
    return m_channel && !m_channel->isMatch(*m_savedChannel, false, false);
}

void ZvScheduleWorkingArea::renewSavedChannel()
{
    if (m_channel)
        m_savedChannel = std::make_unique<ZvChannel>(*m_channel);
}

void ZvScheduleWorkingArea::setTabIndex(int index)
{
    m_tabIndex = index;
    if (m_channel)
        m_channel->setIndex(index);
}

void ZvScheduleWorkingArea::changeChannelName(const QString &name)
{
    if (!m_channel || m_channel->name() == name)
        return;
    m_channel->setName(name);
    Q_EMIT channelNameChanged(name, this);
}

void ZvScheduleWorkingArea::moveTabTo(int index)
{
    Q_EMIT requestMoveTabTo(this, index);
}

void ZvScheduleWorkingArea::active()
{
    Q_EMIT requestActiveWidget(this);
}

ZvSchedule ZvScheduleWorkingArea::defaultSchedule() const
{
    return ChannelSchedules::find(m_channel.get(), ZvScheduleBasicInfo(ZvSchedule::Default));
}

ZvSchedule ZvScheduleWorkingArea::weekDaySchedule(Weekday::Days day) const
{
    return ChannelSchedules::find(m_channel.get(), ZvScheduleBasicInfo(day));
}

ZvSchedule ZvScheduleWorkingArea::dateSchedule(const QDate &date) const
{
    return ChannelSchedules::find(m_channel.get(), ZvScheduleBasicInfo(date));
}

bool ZvScheduleWorkingArea::hasSchedule(const ZvScheduleBasicInfo &info) const
{
    return ChannelSchedules::contains(m_channel.get(), info);
}

QList<ZvSchedule> ZvScheduleWorkingArea::schedules(const QList<ZvScheduleBasicInfo> &list) const
{
    return ChannelSchedules::findAll(m_channel.get(), list);
}

void ZvScheduleWorkingArea::switchToDefaultSchedule()
{
    switchToScheduleInfo(ZvScheduleBasicInfo(ZvSchedule::Default), false);
}

void ZvScheduleWorkingArea::switchToWeekDaySchedule(Qt::DayOfWeek day)
{
    switchToScheduleInfo(ZvScheduleBasicInfo(static_cast<Weekday::Days>(day)), false);
}

void ZvScheduleWorkingArea::switchToDateSchedule(const QDate &date)
{
    switchToScheduleInfo(ZvScheduleBasicInfo(date), false);
}

void ZvScheduleWorkingArea::switchToScheduleInfo(const ZvScheduleBasicInfo &info, bool force)
{
    if (info == m_currentInfo && !force)
        return;
    completeMove();
    if (isCurrentScheduleEnabled())
        storeCurrentSchedule();
    m_currentInfo = info;
    const bool isKnownType = info.type() == ZvSchedule::Default ||
                             info.type() == ZvSchedule::Date ||
                             info.type() == ZvSchedule::DayOfWeek;
    setTitle(isKnownType ? scheduleText(info) : tr("Unknown"));
    // A message about a band runs an event loop.
    const QPointer<ZvScheduleWorkingArea> self(this);
    const bool isFilled = switchSchedule(ChannelSchedules::find(m_channel.get(), info));
    if (!self)
        return;
    setScheduleEnabled(isFilled);
    Q_EMIT currentScheduleInfoChanged(info);
}

void ZvScheduleWorkingArea::storeCurrentSchedule()
{
    const ZvTimeTableTimeZoneItem *zone = timeZone();
    if (!zone || !m_channel)
        return;
    ZvSchedule schedule = m_currentInfo.toSchedule();
    if (header()->defaultStageWidget()->isDefaultStageChecked())
        schedule.setDefaultStage(defaultStageName());
    schedule.setTimeList(zone->times());
    m_channel->insertSchedule(schedule);
}

void ZvScheduleWorkingArea::refreshStoredSchedule()
{
    if (isCurrentScheduleEnabled() && hasSchedule(m_currentInfo))
        storeCurrentSchedule();
}

void ZvScheduleWorkingArea::createSchedule(const QList<ZvScheduleBasicInfo> &list)
{
    if (!m_channel)
        return;
    const ZvScheduleBasicInfo current = m_currentInfo;
    QList<int> indices;
    for (const ZvScheduleBasicInfo &info : list) {
        if (info.type() == ZvSchedule::NoType || hasSchedule(info))
            continue;
        const int index = m_channel->insertSchedule(info.toSchedule());
        if (index < 0)
            continue;
        indices.append(index);
        if (info == current)
            switchToScheduleInfo(info, true);
    }
    if (indices.isEmpty())
        return;
    refreshStoredSchedule();
    Q_EMIT scheduleCreated(indices, current);
}

void ZvScheduleWorkingArea::createSchedule(const ZvScheduleBasicInfo &info)
{
    createSchedule(QList<ZvScheduleBasicInfo>{info});
}

void ZvScheduleWorkingArea::createScheduleByCurrentInfo()
{
    createSchedule(m_currentInfo);
}

void ZvScheduleWorkingArea::removeSchedule(const QList<ZvScheduleBasicInfo> &list)
{
    if (!m_channel)
        return;
    const ZvScheduleBasicInfo current = m_currentInfo;
    QList<ZvScheduleBasicInfo> removed;
    for (const ZvScheduleBasicInfo &info : list) {
        if (info.type() == ZvSchedule::NoType || !hasSchedule(info))
            continue;
        if (m_channel->removeSchedule(info.toSchedule()) >= 0)
            removed.append(info);
    }
    if (list.contains(current)) {
        // The table on show must not be stored back by the switch.
        forgetSchedule();
        switchToScheduleInfo(current, true);
    }
    refreshStoredSchedule();
    Q_EMIT scheduleRemoved(removed, current);
}

void ZvScheduleWorkingArea::removeSchedule(const ZvScheduleBasicInfo &info)
{
    removeSchedule(QList<ZvScheduleBasicInfo>{info});
}

void ZvScheduleWorkingArea::removeScheduleByCurrentInfo()
{
    removeSchedule(m_currentInfo);
}

void ZvScheduleWorkingArea::insertSchedule(const QList<ZvSchedule> &list)
{
    if (!m_channel)
        return;
    const ZvScheduleBasicInfo current = m_currentInfo;
    QList<int> indices;
    for (const ZvSchedule &schedule : list) {
        const int index = m_channel->insertSchedule(schedule);
        if (index >= 0)
            indices.append(index);
    }
    switchToScheduleInfo(current, true);
    Q_EMIT scheduleCreated(indices, current);
}

void ZvScheduleWorkingArea::onTimeItemCountChanged(int count)
{
    Q_EMIT scheduleStageCountChanged(m_currentInfo, count + (defaultStageName().isEmpty() ? 0 : 1));
}

void ZvScheduleWorkingArea::onDefaultStageNameChanged(const QString &name)
{
    const ZvTimeTableTimeZoneItem *zone = timeZone();
    const int count = zone ? zone->timeItemCount() : 0;
    Q_EMIT scheduleStageCountChanged(m_currentInfo, count + (name.isEmpty() ? 0 : 1));
}

void ZvScheduleWorkingArea::onTimeTableTimeItemsMoved(const QList<ZvTimeTableTimeItem *> &items)
{
    // The report was queued: its bands may have died since.
    const ZvTimeTableTimeZoneItem *zone = timeZone();
    if (zone && zone->containsAll(items))
        Q_EMIT timeTableTimeItemsMoved(items, this);
}

void ZvScheduleWorkingArea::onTimeTableTimeItemHasNotSelected()
{
    if (scene())
        Q_EMIT timeTableTimeItemHasNotSelected(this);
}

} // namespace Zavo
