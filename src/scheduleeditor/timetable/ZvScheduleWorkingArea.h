#pragma once

#include "ZvSchedule.h"
#include "domain/ZvScheduleBasicInfo.h"
#include "timetable/TimeTablePage.h"

#include <memory>

class QUndoStack;

namespace Zavo {

class ZvChannel;

/// The page of one channel tab: owns the channel, its snapshot and its undo stack, and shows one
/// schedule of the channel at a time. The table on show is a working copy; the channel learns of it
/// by storeCurrentSchedule() alone. A schedule that the channel does not hold is shown as missing
/// and cannot be edited until it is created.
///
/// Owned by the tab widget. Its operations change the channel or the table and report by signal;
/// none of them records a step of undo. Without a channel they do nothing.
class ZvScheduleWorkingArea final : public TimeTablePage
{
    Q_OBJECT

public:
    /// Takes ownership of @p channel, notes it as saved, and then drops the date schedules that are
    /// older than the configuration keeps them.
    explicit ZvScheduleWorkingArea(ZvChannel *channel, QWidget *parent = nullptr);
    ~ZvScheduleWorkingArea() override;

    ZvChannel *channel() const { return m_channel.get(); }
    QString channelName() const;
    /// Whether the channel differs from what was saved last. The table on show counts once stored.
    bool isChannelChanged() const;
    QUndoStack *undoStack() const { return m_undoStack; }
    int tabIndex() const { return m_tabIndex; }

    /// Type 0 until the first switch.
    ZvScheduleBasicInfo currentScheduleInfo() const { return m_currentInfo; }

    /// The schedule that the channel holds; a default-constructed one if it holds none such.
    ZvSchedule defaultSchedule() const;
    ZvSchedule weekDaySchedule(Weekday::Days day) const;
    ZvSchedule dateSchedule(const QDate &date) const;
    bool hasSchedule(const ZvScheduleBasicInfo &info) const;
    /// Copies in the order of @p list; a schedule that the channel does not hold is left out.
    QList<ZvSchedule> schedules(const QList<ZvScheduleBasicInfo> &list) const;

    /// Notes the channel as saved as it is.
    void renewSavedChannel();
    void setTabIndex(int index);

    /// Stores the table on show if it is enabled and shows the schedule named by @p info. Does
    /// nothing if that is on show already, unless @p force.
    void switchToScheduleInfo(const ZvScheduleBasicInfo &info, bool force);
    /// Stores the table on show in the channel under the current info, enabled or not.
    void storeCurrentSchedule();
    /// Brings the channel's record of the schedule on show up to date, if there is one. Reports of
    /// changed schedules and tabs find it so.
    void refreshStoredSchedule();

public Q_SLOTS:
    void switchToDefaultSchedule();
    void switchToWeekDaySchedule(Qt::DayOfWeek day);
    void switchToDateSchedule(const QDate &date);

    /// Schedules that the channel holds already are passed over.
    void createSchedule(const QList<ZvScheduleBasicInfo> &list);
    void createSchedule(const ZvScheduleBasicInfo &info);
    void createScheduleByCurrentInfo();
    void removeSchedule(const QList<ZvScheduleBasicInfo> &list);
    void removeSchedule(const ZvScheduleBasicInfo &info);
    void removeScheduleByCurrentInfo();
    /// A schedule of the same name is replaced; but the table on show, if it is enabled, is stored
    /// over it again.
    void insertSchedule(const QList<ZvSchedule> &list);

    void onTimeItemCountChanged(int count);
    void onTimeTableTimeItemsMoved(const QList<ZvTimeTableTimeItem *> &items);
    void onTimeTableTimeItemHasNotSelected();

    void changeChannelName(const QString &name);
    void moveTabTo(int index);
    void active();

Q_SIGNALS:
    void timeTableTimeItemHasNotSelected(ZvScheduleWorkingArea *area);
    /// The selection or its geometry changed; @p items live at the time of the signal.
    void timeTableTimeItemsMoved(const QList<ZvTimeTableTimeItem *> &items,
                                 ZvScheduleWorkingArea *area);
    /// @p list holds the indices of the new schedules in the channel.
    void scheduleCreated(const QList<int> &list, const ZvScheduleBasicInfo &currentInfo);
    /// @p list holds what was removed, and may be empty.
    void scheduleRemoved(const QList<ZvScheduleBasicInfo> &list,
                         const ZvScheduleBasicInfo &currentInfo);
    /// The number of bands, plus one with a default stage.
    void scheduleStageCountChanged(const ZvScheduleBasicInfo &info, int stageCount);
    /// At the end of every switch.
    void currentScheduleInfoChanged(const ZvScheduleBasicInfo &info);
    void channelNameChanged(const QString &name, ZvScheduleWorkingArea *area);
    void requestActiveWidget(QWidget *widget);
    void requestMoveTabTo(ZvScheduleWorkingArea *area, int index);

private Q_SLOTS:
    void onDefaultStageNameChanged(const QString &name);

private:
    void connectTable();

    std::unique_ptr<ZvChannel> m_channel;
    std::unique_ptr<ZvChannel> m_savedChannel;
    QUndoStack *m_undoStack;
    int m_tabIndex = 0;
    ZvScheduleBasicInfo m_currentInfo;
};

} // namespace Zavo
