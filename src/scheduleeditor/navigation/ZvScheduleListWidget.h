#pragma once

#include "domain/DpiRatioWatch.h"
#include "domain/ZvScheduleBasicInfo.h"
#include "domain/ZvScheduleCommonInterface.h"

#include "ZvSchedule.h"

#include <QList>
#include <QPointer>
#include <QScrollArea>

class QItemSelection;
class QLabel;
class QMenu;
class QModelIndex;
class QStandardItem;
class QToolButton;
class QTreeView;

namespace Zavo {

class ScheduleListModel;
class ZvChannel;
class ZvScheduleSpecifyScheduleDialog;

/// The content of the schedule list dock: every schedule of the current channel as a row. The
/// selected row is the schedule on the time table; the check boxes are what the edit commands act
/// on. It reads the channel and asks by signals for every change of it, and never meets a page.
class ZvScheduleListWidget final : public QScrollArea, public ZvScheduleCommonInterface
{
    Q_OBJECT

public:
    explicit ZvScheduleListWidget(QWidget *parent = nullptr);
    ~ZvScheduleListWidget() override;

    /// The schedule of the selected row; of type 0 if none is selected.
    ZvScheduleBasicInfo currentRowInfo() const;
    /// The schedules of the checked rows, in the order of the rows.
    QList<ZvScheduleBasicInfo> checkedInfos() const;
    /// Copies of these schedules, in the order of the channel, each once.
    QList<ZvSchedule> checkedSchedules() const;
    /// The items of the row of @p info; empty if there is none.
    QList<QStandardItem *> rowItems(const ZvScheduleBasicInfo &info) const;
    bool existsInChannel(const ZvScheduleBasicInfo &info) const;
    /// All columns of the row of @p index.
    QItemSelection rowSelection(const QModelIndex &index) const;
    /// The names of these schedules; with @p excludeDefault of all but the default one, which
    /// cannot be removed.
    static QList<ZvScheduleBasicInfo> infosOfSchedules(const QList<ZvSchedule> &list,
                                                       bool excludeDefault);

    SelectedType hasSelectedItems() const override;
    /// Asks for the removal of the checked schedules but the default one, which is half marked.
    void deleteSelectedItems() override;
    bool copySelectedItems() override;
    bool cutSelectedItems() override;
    bool isPastingPossible() const override;
    /// Asks the user for the destination, and about what stands there.
    bool pasteItems() override;
    /// The same for @p list, as the clipboard held it. True if the paste was asked for.
    bool pasteSchedules(const QList<ZvSchedule> &list);
    void selectAllItems() override;
    void deselectAllItems() override;

    /// The menu whose actions follow those of the list in its own menu; not owned.
    void setEditMenu(QMenu *menu);

public Q_SLOTS:
    /// @p channel is not owned and has to live until another one is set; null for none.
    void setCurrentChannel(const ZvChannel *channel);

    void selectScheduleDefault();
    void selectScheduleDayOfWeek(Qt::DayOfWeek day);
    void selectScheduleDate(const QDate &date);
    /// Selects the row of @p info; none if there is no such row.
    void selectSchedule(const ZvScheduleBasicInfo &info);

    void onScheduleCreated(const QList<int> &indexies, const ZvScheduleBasicInfo &curInfo);
    void onScheduleRemoved(const QList<ZvScheduleBasicInfo> &list,
                           const ZvScheduleBasicInfo &curInfo);
    void onScheduleStageCountChanged(const ZvScheduleBasicInfo &info, int stageCount);

    void storeCurrentSchedule();
    void setActivated(bool flag = true);

    /// Reports the schedule of the row.
    void itemActivated(const QModelIndex &index);
    /// Reports the first row of @p selected, if there is one.
    void onItemSelectionChanged(const QItemSelection &selected, const QItemSelection &deselected);
    void onContextMenuRequested(const QPoint &pos);
    void onToolMenuAboutToShow();
    /// Asks the user for a schedule to be created, and for its creation.
    void onActionNewScheduleRequested();
    /// Puts a view with icons for @p dpiRatio in place of the one there is. The rows stay.
    void createTreeView(double dpiRatio);

Q_SIGNALS:
    /// Another row was selected, by the user or to follow the time table.
    void selectedScheduleChanged(const ZvScheduleBasicInfo &info);
    /// Which schedule is on the time table. The receiver fills @p info, so the connection is
    /// direct.
    void requestCurrentScheduleInfo(ZvScheduleBasicInfo *info);
    void requestRemoveSchedule(const QList<ZvScheduleBasicInfo> &list, bool showConfirm = true);
    /// The channel is about to be read and has to hold the table on show.
    void requestStoreCurrentSchedule();
    void requestRemoveAndInsertSchedule(const QList<ZvScheduleBasicInfo> &removeList,
                                        const QList<ZvSchedule> &insertList);
    void requestCreateSchedule(const QList<ZvScheduleBasicInfo> &list);
    /// The edit actions are about to be seen and have to show what is possible.
    void requestEditMenuAboutToShow();
    /// The user works with this widget, @p widget.
    void activated(QWidget *widget);
    /// The widget came to a screen of another ratio. Queued to this widget: the view that is being
    /// shown is replaced.
    void dpiRatioChanged(double dpiRatio);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void scaleMenuButton(double dpiRatio);

private:
    void createToolMenu();
    void createMenuButton();
    void rebuildList();
    void fitColumns();
    void selectInfoUnlessSelected(const ZvScheduleBasicInfo &info);

    QLabel *m_channelLabel;
    QTreeView *m_treeView = nullptr;
    const ZvChannel *m_currentChannel = nullptr;
    ScheduleListModel *m_model;
    QToolButton *m_menuButton;
    QPointer<QMenu> m_editMenu;
    QMenu *m_toolMenu;
    DpiRatioWatch m_dpiRatio;
    QPointer<ZvScheduleSpecifyScheduleDialog> m_dialog;
};

} // namespace Zavo
