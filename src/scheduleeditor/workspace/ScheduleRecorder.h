#pragma once

#include "workspace/ScheduleRouter.h"

#include "ZvSchedule.h"
#include "ZvTime.h"

#include <QMap>
#include <QRectF>

class QUndoCommand;

namespace Zavo {

/// The side of the central widget that records: commands that can be undone are carried out by the
/// current page and then pushed, and what the user did in a page is pushed when the page reports
/// it.
class ScheduleRecorder : public ScheduleRouter
{
    Q_OBJECT

public:
    explicit ScheduleRecorder(QWidget *parent = nullptr);

    void deleteSelectedItems() override;
    bool cutSelectedItems() override;

    /// Asks whether to delete @p subject, with @p details behind a button. True for Yes.
    bool confirmDelete(const QString &subject, const QString &details);

public Q_SLOTS:
    /// The last step of the current page; a move that is still under way is one.
    void undo();
    void redo();

    void createScheduleByCurrentInfoWithUndo();
    /// Schedules that exist are passed over. An empty list is no command.
    void createScheduleWithUndo(const QList<ZvScheduleBasicInfo> &list);
    /// Asks first.
    void removeScheduleByCurrentInfoWithUndo();
    /// Asks first if @p showConfirm.
    void removeScheduleWithUndo(const QList<ZvScheduleBasicInfo> &list, bool showConfirm = true);
    /// Pastes over existing schedules. Whoever asks has the table on show stored before.
    void removeAndInsertScheduleWithUndo(const QList<ZvScheduleBasicInfo> &removeList,
                                         const QList<ZvSchedule> &insertList);
    /// Replaces the whole table on show.
    void onResetTimeTable(const QString &newDefaultStageName, const QList<ZvTime> &newTimes);

    void onTimeItemInserted(const QList<ZvTime> &times);
    void onTimeItemMovingFinished(const QMap<int, QRectF> &after, const QMap<int, QRectF> &before);
    void onTimeItemPasted(const QList<ZvTime> &removedTimes, const QList<ZvTime> &pastedTimes);
    void onDefaultStageNameChangedWithUndo(const QString &oldName, const QString &newName);

protected:
    void connectWorkingArea(ZvScheduleWorkingArea *area) override;

private:
    void push(QUndoCommand *command);
};

} // namespace Zavo
