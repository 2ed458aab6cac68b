#pragma once

#include "workspace/ScheduleRecorder.h"

#include <QIcon>
#include <QMap>

class QMenu;
class QToolBar;

namespace Zavo {

class ZvChannel;
class ZvScheduleTabWidget;

/// The central widget: a tool bar above one tab a channel. It makes the tabs from the channel files
/// and saves them; what reaches the schedule of the current tab is its base class's. The editor
/// creates it and hands it the shared actions and the edit menu before there are tabs; neither is
/// owned.
class ZvScheduleMainWidget final : public ScheduleRecorder
{
    Q_OBJECT

public:
    explicit ZvScheduleMainWidget(QWidget *parent = nullptr);
    ~ZvScheduleMainWidget() override;

    /// Builds the content. Called once, after setActionList().
    void setupWidgets();

    /// A tool bar of the actions of setActionList() with a close button of its own. This widget
    /// owns it; setupWidgets() puts one above the tabs.
    QToolBar *createToolBar();

    /// The page of the current tab, or null.
    ZvScheduleWorkingArea *currentWorkingArea() const override;

    /// The menu that every page shows as its context menu.
    void setEditMenu(QMenu *menu);

    /// Asks about every modified channel, in ascending id, and saves those that are to be.
    /// @p reason is 1 for closing and 2 for uploading. False if the user cancelled, which only
    /// uploading offers; what was saved by then stays saved.
    bool confirmSaveChannels(int reason);

    /// Writes the file of @p channel. False, after a message if @p showError, if that failed; false
    /// for null.
    bool saveChannel(ZvChannel *channel, bool showError);

    /// The scenes of all pages in the order of the tabs, given up by their pages. The caller owns
    /// them.
    QList<QGraphicsScene *> takeGraphicsScenes();

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Gives @p channel a page and a tab at the end. The page takes ownership.
    void addChannel(ZvChannel *channel);
    void saveCurrentChannel();
    void saveAllChannel();

    /// Renews the basic file from the file of @p channel.
    void saveAsBasicChannelFile(ZvChannel *channel);

    /// Makes one more channel, whose file is written first, and shows its tab. Tells the user if
    /// there can be none.
    void addNewChannel();

    /// Asks, then deletes the file of the current channel and with it tab, page and history. The
    /// basic channel is guarded by whoever offers the command. Tells the user if the file stays.
    void removeCurrentChannel();

    /// Lets the user choose the place of the current channel, as a drag of its tab would, and moves
    /// it there. The first tab stays where it is.
    void showChangeChannelOrderDialog();

    /// Shows what there is to know about the current channel.
    void showCurrentChannelInformation();

    /// Gives the channel of the tab another name, as a step of undo. A name that another tab has or
    /// that holds a forbidden character is refused with a message.
    void changeChannelNameWithUndo(int tabIndex, const QString &name);
    void onChannlNameChanged(const QString &name, ZvScheduleWorkingArea *area);
    void activeTab(int index);
    void activeTab(QWidget *widget);

    /// Opens the in-place editor over the title of the current tab.
    void toEditTabName();

Q_SIGNALS:
    /// The user or a failed start wants the editor to close. The receiver deletes this widget, so
    /// the connection is queued.
    void requestClose();

    /// After all tabs of the start have been created. The pages own the channels. Queued, so that
    /// createTabs() has returned.
    void tabsCreated(const QList<ZvChannel *> &channelList);

    /// Another tab is current, whose channel is @p channel; null if the last tab has gone.
    void currentChannelChanged(const ZvChannel *channel);

private Q_SLOTS:
    void createTabs();
    void closeScheduleEditor();
    void onTabCurrentIndexChanged(int index);
    void onTabWidgetContextMenuRequested(const QPoint &pos);
    void onTabWidgetContextMenuAboutToShow();

private:
    ZvScheduleTabWidget *createTabWidget();
    void addChannels(const QList<ZvChannel *> &channels);
    bool endRename();
    bool confirmChannelDeletion(const QString &channelName);
    void removeTab(ZvScheduleWorkingArea *area);
    void forgetArea(const ZvScheduleWorkingArea *area);
    QList<ZvChannel *> channelsToChangePlacesWith() const;
    int placeOfIndex(int channelIndex, int placeLeftOut) const;
    void moveTabTo(int from, int to);
    QStringList namesOfOtherTabs(int tabIndex) const;
    void refuseName(const QString &text);
    void showCritical(const QString &title, const QString &text);

    ZvScheduleTabWidget *m_tabWidget = nullptr;
    QPointer<QMenu> m_editMenu;
    QMap<int, ZvScheduleWorkingArea *> m_areaById;
    QIcon m_channelIcon;
    bool m_tabsCreated = false;
};

} // namespace Zavo
