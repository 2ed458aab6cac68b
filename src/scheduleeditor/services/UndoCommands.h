#pragma once

#include "ZvSchedule.h"
#include "ZvTime.h"
#include "domain/ZvScheduleBasicInfo.h"

#include <QList>
#include <QMap>
#include <QRectF>
#include <QString>
#include <QUndoCommand>

namespace Zavo {

class ZvScheduleWorkingArea;

/// What can be undone. A change is carried out first and then recorded, so the first redo, which
/// comes with the push, does nothing. Commands act through public operations of their page alone,
/// hold values and never items, carry no text and never merge. Each lives on the stack of its page,
/// so the page outlives it.
namespace UndoCommand {

/// Base of all commands that belong to a schedule: brings that schedule on show before it acts.
class ScheduleCommand : public QUndoCommand
{
public:
    void undo() final;
    void redo() final;

protected:
    enum FirstRedo { SkipsFirstRedo, ActsAtFirstRedo };

    ScheduleCommand(const ZvScheduleBasicInfo &scheduleInfo, ZvScheduleWorkingArea *workingArea,
                    QUndoCommand *parent, FirstRedo firstRedo = SkipsFirstRedo);

    ZvScheduleWorkingArea *workingArea() const { return m_workingArea; }

    virtual void undoChange() = 0;
    virtual void redoChange() = 0;

private:
    bool m_firstRedo;
    ZvScheduleWorkingArea *m_workingArea;
    ZvScheduleBasicInfo m_scheduleInfo;
};

/// The push itself renames the channel.
class ChangeChannelName final : public QUndoCommand
{
public:
    ChangeChannelName(const QString &newName, const QString &oldName,
                      ZvScheduleWorkingArea *workingArea, QUndoCommand *parent = nullptr);
    void undo() override;
    void redo() override;

private:
    ZvScheduleWorkingArea *m_workingArea;
    QString m_newName;
    QString m_oldName;
};

class ChangeDefaultStageName final : public ScheduleCommand
{
public:
    ChangeDefaultStageName(const QString &oldName, const QString &newName,
                           const ZvScheduleBasicInfo &scheduleInfo,
                           ZvScheduleWorkingArea *workingArea, QUndoCommand *parent = nullptr);

protected:
    void undoChange() override;
    void redoChange() override;

private:
    QString m_oldName;
    QString m_newName;
};

class CreateSchedule final : public ScheduleCommand
{
public:
    CreateSchedule(const QList<ZvScheduleBasicInfo> &infos, const ZvScheduleBasicInfo &scheduleInfo,
                   ZvScheduleWorkingArea *workingArea, QUndoCommand *parent = nullptr);

protected:
    void undoChange() override;
    void redoChange() override;

private:
    QList<ZvScheduleBasicInfo> m_infos;
};

class RemoveSchedule final : public ScheduleCommand
{
public:
    RemoveSchedule(const QList<ZvSchedule> &schedules, const ZvScheduleBasicInfo &scheduleInfo,
                   ZvScheduleWorkingArea *workingArea, QUndoCommand *parent = nullptr);

protected:
    void undoChange() override;
    void redoChange() override;

private:
    QList<ZvSchedule> m_schedules;
};

class PasteSchedule final : public ScheduleCommand
{
public:
    PasteSchedule(const QList<ZvSchedule> &removedSchedules,
                  const QList<ZvSchedule> &pastedSchedules, const ZvScheduleBasicInfo &scheduleInfo,
                  ZvScheduleWorkingArea *workingArea, QUndoCommand *parent = nullptr);

protected:
    void undoChange() override;
    void redoChange() override;

private:
    QList<ZvSchedule> m_removedSchedules;
    QList<ZvSchedule> m_pastedSchedules;
};

class InsertTimeItem final : public ScheduleCommand
{
public:
    InsertTimeItem(const QList<ZvTime> &times, const ZvScheduleBasicInfo &scheduleInfo,
                   ZvScheduleWorkingArea *workingArea, QUndoCommand *parent = nullptr);

protected:
    void undoChange() override;
    void redoChange() override;

private:
    QList<ZvTime> m_times;
};

class RemoveTimeItem final : public ScheduleCommand
{
public:
    RemoveTimeItem(const QList<ZvTime> &times, const ZvScheduleBasicInfo &scheduleInfo,
                   ZvScheduleWorkingArea *workingArea, QUndoCommand *parent = nullptr);

protected:
    void undoChange() override;
    void redoChange() override;

private:
    QList<ZvTime> m_times;
};

class PasteTimeItem final : public ScheduleCommand
{
public:
    PasteTimeItem(const QList<ZvTime> &removedTimes, const QList<ZvTime> &pastedTimes,
                  const ZvScheduleBasicInfo &scheduleInfo, ZvScheduleWorkingArea *workingArea,
                  QUndoCommand *parent = nullptr);

protected:
    void undoChange() override;
    void redoChange() override;

private:
    QList<ZvTime> m_removedTimes;
    QList<ZvTime> m_pastedTimes;
};

/// Moves and stretches bands. Rectangles stand under the bands' indices, which a move cannot
/// change.
class MoveTimeItem final : public ScheduleCommand
{
public:
    MoveTimeItem(const QMap<int, QRectF> &afterRects, const QMap<int, QRectF> &beforeRects,
                 const ZvScheduleBasicInfo &scheduleInfo, ZvScheduleWorkingArea *workingArea,
                 QUndoCommand *parent = nullptr);

protected:
    void undoChange() override;
    void redoChange() override;

private:
    QMap<int, QRectF> m_afterRects;
    QMap<int, QRectF> m_beforeRects;
};

/// Replaces the whole table. The push itself does it: its caller changes nothing.
class ResetTimeTable final : public ScheduleCommand
{
public:
    ResetTimeTable(const QString &oldDefaultStage, const QString &newDefaultStage,
                   const QList<ZvTime> &oldTimes, const QList<ZvTime> &newTimes,
                   const ZvScheduleBasicInfo &scheduleInfo, ZvScheduleWorkingArea *workingArea,
                   QUndoCommand *parent = nullptr);

protected:
    void undoChange() override;
    void redoChange() override;

private:
    QString m_oldDefaultStage;
    QString m_newDefaultStage;
    QList<ZvTime> m_oldTimes;
    QList<ZvTime> m_newTimes;
};

} // namespace UndoCommand
} // namespace Zavo
