#include "workspace/ScheduleRecorder.h"

#include "ZvChannel.h"
#include "domain/MessageBox.h"
#include "domain/ScheduleText.h"
#include "services/UndoCommands.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "workspace/ChannelSaver.h"

#include <QLocale>
#include <QPointer>
#include <QUndoGroup>
#include <QUndoStack>

namespace Zavo {

namespace {

/// What an entry of the list of schedules to be deleted is called. The day is that of the entry's
/// date, so an entry for a day of the week, which has none, stays without a line.
QString deletedScheduleText(const ZvScheduleBasicInfo &info)
{
    if (info.type() != ZvSchedule::DayOfWeek)
        return scheduleText(info);
    const int day = info.date().dayOfWeek();
    return day == 0 ? QString() : QLocale::system().dayName(day, QLocale::LongFormat);
}

/// The bands of a drop, which are selected, as the page has made them: their geometry gives their
/// times back truncated.
QList<ZvTime> asShown(const QList<ZvTime> &times, const ZvScheduleWorkingArea *area)
{
    QList<ZvTime> shown;
    const QList<ZvTimeTableTimeItem *> items = area->selectedTimeItems();
    for (const ZvTimeTableTimeItem *item : items)
        shown.append(item->timeInfo());
    return shown == times ? shown : times;
}

/// The bands as a channel keeps them when it stores them: a time close to a second is put on it.
QList<ZvTime> asStored(const QList<ZvTime> &times)
{
    ZvSchedule schedule;
    schedule.setType(ZvSchedule::Default);
    ZvChannel channel{QString()};
    channel.insertSchedule(schedule);
    schedule.setTimeList(times);
    channel.insertSchedule(schedule);
    return channel.scheduleList().constFirst().timeList();
}

QList<ZvScheduleBasicInfo> missingSchedules(const ZvScheduleWorkingArea *area,
                                            const QList<ZvScheduleBasicInfo> &list)
{
    QList<ZvScheduleBasicInfo> missing;
    for (const ZvScheduleBasicInfo &info : list) {
        if (!area->hasSchedule(info))
            missing.append(info);
    }
    return missing;
}

} // namespace

ScheduleRecorder::ScheduleRecorder(QWidget *parent)
    : ScheduleRouter(parent)
{
}

void ScheduleRecorder::connectWorkingArea(ZvScheduleWorkingArea *area)
{
    ScheduleRouter::connectWorkingArea(area);
    // clang-format off
    connect(area, SIGNAL(timeItemInserted(QList<ZvTime>)), this, SLOT(onTimeItemInserted(QList<ZvTime>)));
    connect(area, SIGNAL(timeTableTimeItemsMovingFinished(QMap<int,QRectF>,QMap<int,QRectF>)), this, SLOT(onTimeItemMovingFinished(QMap<int,QRectF>,QMap<int,QRectF>)));
    connect(area, SIGNAL(defaultStageNameChangedWithUndo(QString,QString)), this, SLOT(onDefaultStageNameChangedWithUndo(QString,QString)));
    connect(area, SIGNAL(requestCreateCurrentSchedule()), this, SLOT(createScheduleByCurrentInfoWithUndo()));
    connect(area, SIGNAL(timeItemPasted(QList<ZvTime>,QList<ZvTime>)), this, SLOT(onTimeItemPasted(QList<ZvTime>,QList<ZvTime>)));
    // clang-format on
}

void ScheduleRecorder::push(QUndoCommand *command)
{
    if (QUndoStack *stack = undoGroup()->activeStack())
        stack->push(command);
    else
        delete command;
}

void ScheduleRecorder::deleteSelectedItems()
{
    ZvScheduleWorkingArea *area = areaAtRest();
    if (!area)
        return;
    const QList<ZvTime> times = area->deleteSelectedItems();
    if (!times.isEmpty())
        area->undoStack()->push(
            new UndoCommand::RemoveTimeItem(times, area->currentScheduleInfo(), area));
}

bool ScheduleRecorder::cutSelectedItems()
{
    ZvScheduleWorkingArea *area = areaAtRest();
    if (!area)
        return false;
    const QList<ZvTime> times = area->cutSelectedItems();
    if (times.isEmpty())
        return false;
    push(new UndoCommand::RemoveTimeItem(times, area->currentScheduleInfo(), area));
    return true;
}

void ScheduleRecorder::undo()
{
    if (areaAtRest() && undoGroup()->activeStack())
        undoGroup()->activeStack()->undo();
}

void ScheduleRecorder::redo()
{
    if (areaAtRest() && undoGroup()->activeStack())
        undoGroup()->activeStack()->redo();
}

void ScheduleRecorder::createScheduleByCurrentInfoWithUndo()
{
    if (const ZvScheduleWorkingArea *area = areaAtRest())
        createScheduleWithUndo({area->currentScheduleInfo()});
}

void ScheduleRecorder::createScheduleWithUndo(const QList<ZvScheduleBasicInfo> &list)
{
    ZvScheduleWorkingArea *area = areaAtRest();
    if (!area)
        return;
    // An undo removes what the command names, so it names nothing that was there before.
    const QList<ZvScheduleBasicInfo> missing = missingSchedules(area, list);
    if (missing.isEmpty())
        return;
    const ZvScheduleBasicInfo info = area->currentScheduleInfo();
    area->createSchedule(missing);
    push(new UndoCommand::CreateSchedule(missing, info, area));
}

void ScheduleRecorder::removeScheduleByCurrentInfoWithUndo()
{
    const QPointer<ZvScheduleWorkingArea> area = areaAtRest();
    if (!area ||
        !confirmDelete(tr("the schedule of %1").arg(area->currentScheduleName()), QString()))
        return;
    if (!area) // The question runs an event loop.
        return;
    ChannelSaver::storeTable(area);
    const ZvScheduleBasicInfo info = area->currentScheduleInfo();
    const QList<ZvSchedule> removed = area->schedules({info});
    area->removeScheduleByCurrentInfo();
    push(new UndoCommand::RemoveSchedule(removed, info, area));
}

void ScheduleRecorder::removeScheduleWithUndo(const QList<ZvScheduleBasicInfo> &list,
                                              bool showConfirm)
{
    const QPointer<ZvScheduleWorkingArea> area = areaAtRest();
    if (!area)
        return;
    if (showConfirm) {
        const QString subject =
            list.size() == 1 ? tr("the selected schedule") : tr("the selected schedules");
        QString details = numberedTexts(list, deletedScheduleText);
        if (!details.isEmpty())
            details.prepend(tr("The following schedule will be deleted.\n\n"));
        if (!confirmDelete(subject, details) || !area)
            return;
    }
    ChannelSaver::storeTable(area);
    const ZvScheduleBasicInfo info = area->currentScheduleInfo();
    const QList<ZvSchedule> removed = area->schedules(list);
    area->removeSchedule(list);
    push(new UndoCommand::RemoveSchedule(removed, info, area));
}

void ScheduleRecorder::removeAndInsertScheduleWithUndo(const QList<ZvScheduleBasicInfo> &removeList,
                                                       const QList<ZvSchedule> &insertList)
{
    ZvScheduleWorkingArea *area = areaAtRest();
    if (!area)
        return;
    const QList<ZvSchedule> removed = area->schedules(removeList);
    if (!removeList.isEmpty())
        area->removeSchedule(removeList);
    if (!insertList.isEmpty())
        area->insertSchedule(insertList);
    push(new UndoCommand::PasteSchedule(removed, insertList, area->currentScheduleInfo(), area));
}

void ScheduleRecorder::onResetTimeTable(const QString &newDefaultStageName,
                                        const QList<ZvTime> &newTimes)
{
    if (ZvScheduleWorkingArea *area = areaAtRest())
        push(new UndoCommand::ResetTimeTable(area->defaultStageName(), newDefaultStageName,
                                             area->currentTimes(), newTimes,
                                             area->currentScheduleInfo(), area));
}

// A drop divides its gap to the millisecond. Undo looks for what is there by then.
void ScheduleRecorder::onTimeItemInserted(const QList<ZvTime> &times)
{
    if (ZvScheduleWorkingArea *area = currentWorkingArea())
        push(new UndoCommand::InsertTimeItem(asStored(asShown(times, area)),
                                             area->currentScheduleInfo(), area));
}

void ScheduleRecorder::onTimeItemMovingFinished(const QMap<int, QRectF> &after,
                                                const QMap<int, QRectF> &before)
{
    if (ZvScheduleWorkingArea *area = currentWorkingArea())
        push(new UndoCommand::MoveTimeItem(after, before, area->currentScheduleInfo(), area));
}

void ScheduleRecorder::onTimeItemPasted(const QList<ZvTime> &removedTimes,
                                        const QList<ZvTime> &pastedTimes)
{
    if (ZvScheduleWorkingArea *area = currentWorkingArea())
        push(new UndoCommand::PasteTimeItem(removedTimes, pastedTimes, area->currentScheduleInfo(),
                                            area));
}

void ScheduleRecorder::onDefaultStageNameChangedWithUndo(const QString &oldName,
                                                         const QString &newName)
{
    if (ZvScheduleWorkingArea *area = areaAtRest())
        push(new UndoCommand::ChangeDefaultStageName(oldName, newName, area->currentScheduleInfo(),
                                                     area));
}

bool ScheduleRecorder::confirmDelete(const QString &subject, const QString &details)
{
    return showMessageBox(this, QMessageBox::Warning, tr("Confirm Delete"),
                          tr("Are you sure you want to delete %1?").arg(subject),
                          QMessageBox::Yes | QMessageBox::No, details) == QMessageBox::Yes;
}

} // namespace Zavo
