#include "services/UndoCommands.h"

#include "timetable/ZvScheduleWorkingArea.h"

namespace Zavo::UndoCommand {

namespace {

QList<ZvScheduleBasicInfo> infosOf(const QList<ZvSchedule> &schedules)
{
    QList<ZvScheduleBasicInfo> infos;
    infos.reserve(schedules.size());
    for (const ZvSchedule &schedule : schedules)
        infos.append(ZvScheduleBasicInfo(schedule));
    return infos;
}

void replaceSchedules(ZvScheduleWorkingArea *area, const QList<ZvSchedule> &removed,
                      const QList<ZvSchedule> &inserted)
{
    area->removeSchedule(infosOf(removed));
    area->insertSchedule(inserted);
}

void replaceTimes(ZvScheduleWorkingArea *area, const QList<ZvTime> &removed,
                  const QList<ZvTime> &inserted)
{
    area->removeTimeItems(removed);
    area->insertTimeItems(inserted);
}

} // namespace

ScheduleCommand::ScheduleCommand(const ZvScheduleBasicInfo &scheduleInfo,
                                 ZvScheduleWorkingArea *workingArea, QUndoCommand *parent,
                                 FirstRedo firstRedo)
    : QUndoCommand(parent)
    , m_firstRedo(firstRedo == SkipsFirstRedo)
    , m_workingArea(workingArea)
    , m_scheduleInfo(scheduleInfo)
{
}

void ScheduleCommand::undo()
{
    m_workingArea->switchToScheduleInfo(m_scheduleInfo, false);
    undoChange();
}

void ScheduleCommand::redo()
{
    if (m_firstRedo) {
        m_firstRedo = false;
        return;
    }
    m_workingArea->switchToScheduleInfo(m_scheduleInfo, false);
    redoChange();
}

ChangeChannelName::ChangeChannelName(const QString &newName, const QString &oldName,
                                     ZvScheduleWorkingArea *workingArea, QUndoCommand *parent)
    : QUndoCommand(parent)
    , m_workingArea(workingArea)
    , m_newName(newName)
    , m_oldName(oldName)
{
}

void ChangeChannelName::undo()
{
    m_workingArea->changeChannelName(m_oldName);
}

void ChangeChannelName::redo()
{
    m_workingArea->changeChannelName(m_newName);
}

ChangeDefaultStageName::ChangeDefaultStageName(const QString &oldName, const QString &newName,
                                               const ZvScheduleBasicInfo &scheduleInfo,
                                               ZvScheduleWorkingArea *workingArea,
                                               QUndoCommand *parent)
    : ScheduleCommand(scheduleInfo, workingArea, parent)
    , m_oldName(oldName)
    , m_newName(newName)
{
}

void ChangeDefaultStageName::undoChange()
{
    workingArea()->setDefaultStageName(m_oldName);
}

void ChangeDefaultStageName::redoChange()
{
    workingArea()->setDefaultStageName(m_newName);
}

CreateSchedule::CreateSchedule(const QList<ZvScheduleBasicInfo> &infos,
                               const ZvScheduleBasicInfo &scheduleInfo,
                               ZvScheduleWorkingArea *workingArea, QUndoCommand *parent)
    : ScheduleCommand(scheduleInfo, workingArea, parent)
    , m_infos(infos)
{
}

void CreateSchedule::undoChange()
{
    workingArea()->removeSchedule(m_infos);
}

void CreateSchedule::redoChange()
{
    workingArea()->createSchedule(m_infos);
}

RemoveSchedule::RemoveSchedule(const QList<ZvSchedule> &schedules,
                               const ZvScheduleBasicInfo &scheduleInfo,
                               ZvScheduleWorkingArea *workingArea, QUndoCommand *parent)
    : ScheduleCommand(scheduleInfo, workingArea, parent)
    , m_schedules(schedules)
{
}

void RemoveSchedule::undoChange()
{
    workingArea()->insertSchedule(m_schedules);
}

void RemoveSchedule::redoChange()
{
    workingArea()->removeSchedule(infosOf(m_schedules));
}

PasteSchedule::PasteSchedule(const QList<ZvSchedule> &removedSchedules,
                             const QList<ZvSchedule> &pastedSchedules,
                             const ZvScheduleBasicInfo &scheduleInfo,
                             ZvScheduleWorkingArea *workingArea, QUndoCommand *parent)
    : ScheduleCommand(scheduleInfo, workingArea, parent)
    , m_removedSchedules(removedSchedules)
    , m_pastedSchedules(pastedSchedules)
{
}

void PasteSchedule::undoChange()
{
    replaceSchedules(workingArea(), m_pastedSchedules, m_removedSchedules);
}

void PasteSchedule::redoChange()
{
    replaceSchedules(workingArea(), m_removedSchedules, m_pastedSchedules);
}

InsertTimeItem::InsertTimeItem(const QList<ZvTime> &times, const ZvScheduleBasicInfo &scheduleInfo,
                               ZvScheduleWorkingArea *workingArea, QUndoCommand *parent)
    : ScheduleCommand(scheduleInfo, workingArea, parent)
    , m_times(times)
{
}

void InsertTimeItem::undoChange()
{
    workingArea()->removeTimeItems(m_times);
}

void InsertTimeItem::redoChange()
{
    workingArea()->insertTimeItems(m_times);
}

RemoveTimeItem::RemoveTimeItem(const QList<ZvTime> &times, const ZvScheduleBasicInfo &scheduleInfo,
                               ZvScheduleWorkingArea *workingArea, QUndoCommand *parent)
    : ScheduleCommand(scheduleInfo, workingArea, parent)
    , m_times(times)
{
}

void RemoveTimeItem::undoChange()
{
    workingArea()->insertTimeItems(m_times);
}

void RemoveTimeItem::redoChange()
{
    workingArea()->removeTimeItems(m_times);
}

PasteTimeItem::PasteTimeItem(const QList<ZvTime> &removedTimes, const QList<ZvTime> &pastedTimes,
                             const ZvScheduleBasicInfo &scheduleInfo,
                             ZvScheduleWorkingArea *workingArea, QUndoCommand *parent)
    : ScheduleCommand(scheduleInfo, workingArea, parent)
    , m_removedTimes(removedTimes)
    , m_pastedTimes(pastedTimes)
{
}

void PasteTimeItem::undoChange()
{
    replaceTimes(workingArea(), m_pastedTimes, m_removedTimes);
}

void PasteTimeItem::redoChange()
{
    replaceTimes(workingArea(), m_removedTimes, m_pastedTimes);
}

MoveTimeItem::MoveTimeItem(const QMap<int, QRectF> &afterRects,
                           const QMap<int, QRectF> &beforeRects,
                           const ZvScheduleBasicInfo &scheduleInfo,
                           ZvScheduleWorkingArea *workingArea, QUndoCommand *parent)
    : ScheduleCommand(scheduleInfo, workingArea, parent)
    , m_afterRects(afterRects)
    , m_beforeRects(beforeRects)
{
}

void MoveTimeItem::undoChange()
{
    workingArea()->moveTimeItems(m_beforeRects, true);
}

void MoveTimeItem::redoChange()
{
    workingArea()->moveTimeItems(m_afterRects, true);
}

ResetTimeTable::ResetTimeTable(const QString &oldDefaultStage, const QString &newDefaultStage,
                               const QList<ZvTime> &oldTimes, const QList<ZvTime> &newTimes,
                               const ZvScheduleBasicInfo &scheduleInfo,
                               ZvScheduleWorkingArea *workingArea, QUndoCommand *parent)
    : ScheduleCommand(scheduleInfo, workingArea, parent, ActsAtFirstRedo)
    , m_oldDefaultStage(oldDefaultStage)
    , m_newDefaultStage(newDefaultStage)
    , m_oldTimes(oldTimes)
    , m_newTimes(newTimes)
{
}

void ResetTimeTable::undoChange()
{
    workingArea()->setDefaultStageName(m_oldDefaultStage);
    replaceTimes(workingArea(), m_newTimes, m_oldTimes);
}

void ResetTimeTable::redoChange()
{
    workingArea()->setDefaultStageName(m_newDefaultStage);
    replaceTimes(workingArea(), m_oldTimes, m_newTimes);
}

} // namespace Zavo::UndoCommand
