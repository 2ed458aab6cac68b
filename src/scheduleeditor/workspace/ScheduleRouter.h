#pragma once

#include "domain/ZvScheduleBasicInfo.h"
#include "domain/ZvScheduleCommonInterface.h"

#include <QList>
#include <QPointer>
#include <QWidget>

class QAction;
class QGraphicsScene;
class QUndoGroup;

namespace Zavo {

class ZvScheduleWorkingArea;
class ZvTimeTableTimeItem;

/// The schedule side of the central widget: routes every command to the current page, does nothing
/// if there is none, and relays what the pages report, so that docks never meet a page. Which page
/// is current is its subclass's to say, and what can be undone is ScheduleRecorder's. It owns the
/// undo group, in which each page has its stack; the actions that it enables belong to the editor.
class ScheduleRouter : public QWidget, public ZvScheduleCommonInterface
{
    Q_OBJECT

public:
    explicit ScheduleRouter(QWidget *parent = nullptr);

    /// The page that commands go to, or null.
    virtual ZvScheduleWorkingArea *currentWorkingArea() const = 0;

    QUndoGroup *undoGroup() const { return m_undoGroup; }

    /// For each name, in their order, the first handed-over action of that object name.
    QList<QAction *> findActions(const QStringList &names) const;

    SelectedType hasSelectedItems() const override;
    bool copySelectedItems() override;
    bool isPastingPossible() const override;
    bool pasteItems() override;
    void selectAllItems() override;
    void deselectAllItems() override;

    /// The actions shared with the menus; not owned.
    void setActionList(const QList<QAction *> &actions);

public Q_SLOTS:
    void switchToDefaultSchedule();
    void switchToDayOfWeekSchedule(Qt::DayOfWeek day);
    void switchToDateSchedule(const QDate &date);
    void createScheduleByCurrentInfo();
    void removeScheduleByCurrentInfo();
    void setDefaultStageToCurrentSchedule(const QString &name);
    void onItemPropertyChangedByPropertyWidget();
    void removeSelectedItems();

    /// Brings the current channel up to date with the table on show.
    void storeCurrentSchedule();

    /// Writes through @p enabled whether the schedule on show exists; false without a page.
    void isCurrentScheduleEnabled(bool *enabled);
    void isCurrentWidgetActivated(bool *activated);

    void onTimeTableTimeItemHasNotSelected(ZvScheduleWorkingArea *area);
    void onTimeTableTimeItemsMoved(const QList<ZvTimeTableTimeItem *> &items,
                                   ZvScheduleWorkingArea *area);
    void onScheduleCreated(const QList<int> &list, const ZvScheduleBasicInfo &curInfo);
    void onScheduleRemoved(const QList<ZvScheduleBasicInfo> &list,
                           const ZvScheduleBasicInfo &curInfo);
    void onCurrentScheduleEnabledChanged(bool enabled);
    void onScheduleStageCountChanged(const ZvScheduleBasicInfo &info, int stageCount);
    void onCurrentScheduleInfoChanged(const ZvScheduleBasicInfo &info);
    void onWorkingAreaActivated();
    void onGraphicsScenePurged(QGraphicsScene *scene);

Q_SIGNALS:
    /// Which schedule a page that becomes current is to show. The receiver fills @p info, so the
    /// connection is direct.
    void requestCurrentScheduleType(ZvScheduleBasicInfo *info);

    /// The edit actions are about to be seen and have to show what is possible.
    void requestEditMenuAboutToShow();

    /// This widget, @p widget, or the time table of a page was pressed.
    void activated(QWidget *widget);

    /// Whether @p widget is the one activated last. The receiver fills @p activated, so the
    /// connection is direct.
    void requestIsActivatedWidget(const QWidget *widget, bool *activated);

    /// Nothing is selected any more in the table of @p area.
    void timeTableTimeItemHasNotSelected(ZvScheduleWorkingArea *area);

    /// The selected @p items of @p area were selected, moved or resized, or @p area became current.
    void timeTableTimeItemsMoved(const QList<ZvTimeTableTimeItem *> &items,
                                 ZvScheduleWorkingArea *area);

    /// Schedules were added to the channel at the places @p list; @p curInfo is the one on show.
    void scheduleCreated(const QList<int> &list, const ZvScheduleBasicInfo &curInfo);

    /// The schedules @p list were removed from the channel; @p curInfo is the one on show.
    void scheduleRemoved(const QList<ZvScheduleBasicInfo> &list,
                         const ZvScheduleBasicInfo &curInfo);

    /// @p stageCount counts the bands of the schedule @p info, and its default stage if it has one.
    void scheduleStageCountChanged(const ZvScheduleBasicInfo &info, int stageCount);

    /// The current page shows the schedule @p info now.
    void currentScheduleInfoChanged(const ZvScheduleBasicInfo &info);

    /// A page died and left its scene, which the receiver owns from now on.
    void graphicsScenePurged(QGraphicsScene *scene);

protected:
    void mousePressEvent(QMouseEvent *event) override;

    /// The page that a command goes to, or null. A move that is still under way in it is recorded
    /// first.
    ZvScheduleWorkingArea *areaAtRest() const;

    /// The handed-over actions that still exist.
    QList<QAction *> actionList() const;

    /// Connects what @p area reports and asks for. Called once for each page.
    virtual void connectWorkingArea(ZvScheduleWorkingArea *area);

    /// Makes the undo stack of @p area the active one and lets it show the schedule that is chosen.
    void showWorkingArea(ZvScheduleWorkingArea *area);

private:
    QUndoGroup *m_undoGroup = nullptr;
    QList<QPointer<QAction>> m_actionList;
};

} // namespace Zavo
