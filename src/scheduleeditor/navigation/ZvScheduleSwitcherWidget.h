#pragma once

#include "domain/SelectionType.h"
#include "domain/ZvScheduleBasicInfo.h"
#include "domain/ZvScheduleCommonInterface.h"

#include <QDate>
#include <QList>
#include <QPointer>
#include <QScrollArea>

class QBoxLayout;
class QMenu;

namespace Zavo {

struct SchedulePastePlan;
class ZvCalendarWidget;
class ZvChannel;
class ZvScheduleDefaultWidget;
class ZvScheduledToBeExecutedWidget;
class ZvScheduleSwitcherSelectedWidget;
class ZvTodayWidget;
class ZvWeekWidget;

/// Decides which schedule of the current channel is edited: that of a date, of a day of the week or
/// the default schedule, each chosen in a frame of its own. It shows which of them exist, and the
/// edit commands act on whole schedules while it is activated.
///
/// It asks for changes by signals and is told of them by slots, and passes on to the schedule list
/// what it is told. It never meets a page; the channel is not owned and only looked at.
class ZvScheduleSwitcherWidget final : public QScrollArea, public ZvScheduleCommonInterface
{
    Q_OBJECT

public:
    explicit ZvScheduleSwitcherWidget(QWidget *parent = nullptr);

    /// The kind of the first frame that shows as selected.
    SelectionType currentSelection() const;
    /// The same as a value of ZvSchedule::ScheduleTypes; the default schedule's for none.
    int currentScheduleType() const;

    /// Without a selection the list is empty; so it is for the default schedule, which cannot be
    /// removed.
    QList<ZvScheduleBasicInfo> selectedScheduleInfos() const;
    /// Copies of the selected schedules. With @p withEmpty a date without one gives an empty
    /// schedule, which keeps its place.
    QList<ZvSchedule> selectedSchedules(bool withEmpty) const;

    SelectedType hasSelectedItems() const override;
    void deleteSelectedItems() override;
    bool copySelectedItems() override;
    bool cutSelectedItems() override;
    bool isPastingPossible() const override;
    bool pasteItems() override;
    /// The same for @p list, as the clipboard held it: an empty schedule keeps its place. True if
    /// the paste was asked for.
    bool pasteSchedules(const QList<ZvSchedule> &list);
    void selectAllItems() override;
    void deselectAllItems() override;

    /// The actions for the context menus; the menu stays its owner's.
    void setEditMenu(QMenu *menu);
    /// A further menu of the calendar; see there.
    QMenu *createCalendarMenu();

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// A frame, or what is inside one, was clicked: selects the frame and asks for its schedule.
    void onObjectSelected(QObject *object);
    void onCalendarSelectionChanged();

    /// Whether the channel is known to have the schedule; also written through @p has if it is not
    /// null.
    bool hasSchedule(const QDate &date, bool *has = nullptr);
    bool hasSchedule(Qt::DayOfWeek day, bool *has = nullptr);

    /// Shows the frame of @p selection as selected, without a request. None selects all of them.
    void setSelection(SelectionType selection);
    /// Fills @p info with the name of the schedule that is chosen; nothing for null.
    void getCurrentScheduleInfo(ZvScheduleBasicInfo *info);
    /// Shows the schedules of this channel from now on, or none for null.
    void setCurrentChannel(const ZvChannel *currentChannel);
    /// Chooses the schedule @p info and asks for it, unless it is chosen already.
    void changeCurrentScheduleSelection(const ZvScheduleBasicInfo &info);

    void onScheduleCreated(const QList<int> &indexies, const ZvScheduleBasicInfo &curInfo);
    void onScheduleRemoved(const QList<ZvScheduleBasicInfo> &list,
                           const ZvScheduleBasicInfo &curInfo);
    void onScheduleStageCountChanged(const ZvScheduleBasicInfo &info, int stageCount);

    void setActivated(bool flag);
    void setActivated();
    void storeCurrentSchedule();
    void onEditMenuAboutToShow();

    /// Tell what runs on today, on a date, or on the date that the calendar has selected.
    void changeExecutedScheduleDisplaying();
    void changeExecutedScheduleDisplaying(const QDate &date);
    void updateExecutedShceudleDisplaying();

Q_SIGNALS:
    void requestSwitchToDefault();
    void requestSwitchToDayOfWeek(Qt::DayOfWeek day);
    void requestSwitchToDate(const QDate &date);

    /// The channel has to know the latest edits before its schedules are copied or replaced.
    void requestStoreCurrentSchedule();
    void requestRemoveSchedule(const QList<ZvScheduleBasicInfo> &list, bool showConfirm = true);
    /// All questions have been asked.
    void requestRemoveAndInsertSchedule(const QList<ZvScheduleBasicInfo> &removeList,
                                        const QList<ZvSchedule> &insertList);

    /// This widget shows another channel now.
    void currentChannelChanged(const ZvChannel *channel);
    /// What this widget was told, and shows by now.
    void scheduleCreated(const QList<int> &indexies, const ZvScheduleBasicInfo &curInfo);
    void scheduleRemoved(const QList<ZvScheduleBasicInfo> &list,
                         const ZvScheduleBasicInfo &curInfo);
    void scheduleStageCountChanged(const ZvScheduleBasicInfo &info, int stageCount);

    /// This widget, @p widget, was clicked or shown.
    void activated(QWidget *widget);
    void requestEditMenuAboutToShow();

private:
    void createContent();
    void fillCalendarFrame(ZvScheduleSwitcherSelectedWidget *frame);
    ZvScheduleSwitcherSelectedWidget *addFrame(const char *name, QBoxLayout *layout);
    void selectAtStart();
    void connectParts();

    ZvScheduleBasicInfo currentInfo() const;
    ZvScheduleBasicInfo infoOf(SelectionType selection) const;
    void requestSwitchTo(const ZvScheduleBasicInfo &info);
    void markSchedule(const ZvSchedule &schedule);
    bool writeSelectedSchedules();
    bool planPasteOverOne(const QList<ZvSchedule> &list, SchedulePastePlan *plan);
    bool planPasteOverDates(const QList<ZvSchedule> &list, SchedulePastePlan *plan);

    ZvTodayWidget *m_todayWidget;
    ZvCalendarWidget *m_calendarWidget;
    ZvWeekWidget *m_weekWidget;
    ZvScheduleDefaultWidget *m_defaultWidget;
    ZvScheduledToBeExecutedWidget *m_executedWidget;
    QList<ZvScheduleSwitcherSelectedWidget *> m_selectedWidgets;
    const ZvChannel *m_currentChannel = nullptr;
    QPointer<QMenu> m_editMenu;
};

} // namespace Zavo
