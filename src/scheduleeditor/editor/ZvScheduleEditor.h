#pragma once

#include "ZvScheduleEditorExport.h"
#include "domain/ZvScheduleCommonInterface.h"

#include <QDir>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class QAction;
class QDockWidget;
class QGraphicsScene;
class QMainWindow;
class QMenu;
class QTimer;

namespace Zavo {

class ActionRegistry;
class EditStateWatch;
class ScheduleDocks;
class ZvChannel;
class ZvScheduleMainWidget;
class ZvScheduleStageChooserWidget;
class ZvScheduleSwitcherWidget;

/// The schedule editor as a host sees it. It fills a window of the host with its widgets, hands out
/// menus to install, and asks by signals for whatever lies outside of it.
///
/// A host constructs it, installs menu(), connects the request signals and closed(), and calls
/// exec(). It owns its menus and widgets, not the window. All on the GUI thread.
class ZVSCHEDULEEDITOR_EXPORT ZvScheduleEditor final : public QObject
{
    Q_OBJECT

public:
    /// Builds menus and widgets; the content of @p window is not touched. The window becomes the
    /// parent. A null window is told by exec().
    explicit ZvScheduleEditor(QMainWindow *window);

    /// Deletes the menus that were not taken, but for the help menu; and the widgets, if the editor
    /// was not closed.
    ~ZvScheduleEditor() override;

    /// Fills the window and starts the creation of the tabs from the event loop. False if there is
    /// no window or the editor was closed; the reason is in hasError().
    bool exec();

    /// Always true. @p message, if not null, receives the last error, empty if there was none.
    bool hasError(QString *message) const;

    /// The action of this object name, or null.
    QAction *getAction(const QString &name) const;

    /// For each name, in their order, the first action of that name; a name without one adds
    /// nothing.
    QList<QAction *> getActions(const QStringList &names) const;

    /// The actions that the tool bar shares with the menus.
    QList<QAction *> getMainWidgetActions() const;

    /// The menu of this object name, or null.
    QMenu *getMenu(const QString &name) const;

    /// All menus, in the order in which the host shows them.
    QList<QMenu *> menu() const;

    /// @{
    /// Enters a menu before the channel menu, and a help menu at the end, unless it is there
    /// already. The calendar menu is owned from then on; the help menu stays the host's.
    void setCalendarMenu(QMenu *menu);
    void setHelpMenu(QMenu *menu);
    /// @}

    /// @{
    /// Takes the menu out of menu(); the caller owns it. Null if there is none.
    QMenu *takeCalendarMenu();
    QMenu *takeHelpMenu();
    /// @}

    /// Deletes a menu with all its actions and submenus. Nothing happens for null.
    static void deleteMenuAndAction(QMenu *menu);

    /// @{
    /// The widget that the edit commands act on, or null; and the same widget as what it offers,
    /// null if it offers nothing.
    QWidget *activatedWidget() const;
    ZvScheduleCommonInterface *activatedScheudleWidget() const;
    /// @}

    /// @{
    /// What the activated widget allows; nothing if there is none.
    ZvScheduleCommonInterface::SelectedType hasSelectedItems() const;
    bool isPastingPossible() const;
    /// @}

    /// The folder of the upload log, made if it did not exist and could be made.
    static QDir getUploadLogDir();

    /// Asks, then deletes every file of the channel folder and closes the editor without asking
    /// about modified channels.
    void removeAllChannelsAndSettings();

    /// Fits the title buttons of the docks to their screen. No event is consumed.
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Asks about modified channels, stores the layout of the window, gives up all widgets and
    /// scenes and emits closed(). A second call does nothing.
    void close();

    /// Asks the host to quit, which normally answers by close().
    void quit();

    /// @{
    /// Asks the host by the signal of the same name; for the exporter only if there is a channel,
    /// for the upload manager only once it has asked about unsaved channels.
    void showVersionInformation();
    void showConfiguration();
    void showChannelConfiguration();
    void showChannelExporter();
    void showUploadManager();
    /// @}

    /// @{
    /// Open the folder of the upload log, and the log, on the desktop. Failures are told.
    void openUploadLogDir();
    void showUploadLogFile();
    /// @}

    /// The edit commands act on @p activatedWidget from now on; on nothing if it is null.
    void setActivatedWidget(QWidget *activatedWidget);

    /// Writes through @p activated, if it is not null, whether @p widget is the activated one.
    void isActivatedWidgetRequested(const QWidget *widget, bool *activated) const;

    /// @{
    /// Does what the menu entry of that name does, without a look at whether it is enabled. Nothing
    /// happens where there is nothing to do it to.
    void action_save_channel();
    void action_save_all_channel();
    void action_undo();
    void action_redo();
    void action_cut();
    void action_copy();
    void action_paste();
    void action_delete();
    void action_selectAll();
    void action_deselectAll();
    void action_upload();
    void action_output_channel_data();
    void action_show_log_file();
    void action_open_log_folder();
    void action_create_schedule();
    void action_delete_schedule();
    void action_rename_channel();
    void action_change_channel_order();
    void action_create_channel();
    void action_delete_channel();
    void action_delete_channels_settings();
    void action_show_channel_information();
    void action_channel_configuration();
    /// @}

    /// Brings all docks back to their default places and sizes. What is stored stays.
    void action_window_to_default_position();

    /// Writes the docks of the window with their geometry to the debug log.
    void action_dock_test();

    /// Brings the commands on channels, and the dock for dates, in line with @p channel. Nothing
    /// happens for null.
    void onCurrentChannelChanged(const ZvChannel *channel);

Q_SIGNALS:
    /// The editor has finished; the last that the host hears of it.
    void closed();

    /// The user wants to quit. Nothing has been asked or stored.
    void requestQuit();

    /// @{
    /// The user wants to see that, and the host has it.
    void requestShowVersionInformation();
    void requestShowConfiguration();
    void requestShowChannelConfiguration();
    /// @}

    /// The user wants to upload, and has been asked about unsaved channels.
    void requestShowUploadManager();

    /// The user wants to export the channel whose file is @p channelFilePath.
    void requestShowChannelExporter(const QString &channelFilePath);

    /// For hosts that place docks of their own. The editor places its docks without asking.
    void requestRestoreDockWidgetSetting(bool useDefault = false);

    /// @{
    /// Scenes whose pages are gone. The host owns them from now on and deletes them.
    void graphicsScenePurged(QGraphicsScene *scene);
    void graphicsScenePurged(const QList<QGraphicsScene *> &sceneList);
    /// @}

private Q_SLOTS:
    void onMenuEditAboutToShow();
    void onMenuWindowAboutToShow();
    void restoreDockWidgetSetting(bool useDefault = false);
    void setVisibleSwitchSchdule(bool visible);
    void setVisibleScheduleList(bool visible);
    void setVisibleChooseStage(bool visible);
    void setVisibleItemProperty(bool visible);
    void onGraphicsScenePurged(QGraphicsScene *scene);
    void startScheduleValidator(const QList<ZvChannel *> &channelList);

private:
    bool setup();
    void setupMainMenu();
    void setupMainWidget();
    void connectMainWidget();
    void setupDocks();
    void attatchWidgetsToMainWindow();
    void restoreAllWidgetGeometry();
    void storeAllWidgetGeometry();
    static void setDockWidgetVisible(QDockWidget *dock, bool visible);
    void deleteWidgets();
    QString errorMessage() const;
    void setErrorMessage(const QString &message);

    QMainWindow *m_mainWindow = nullptr;
    std::unique_ptr<ActionRegistry> m_registry;
    std::unique_ptr<ScheduleDocks> m_docks;
    QString m_errorText;
    QPointer<ZvScheduleMainWidget> m_mainWidget;
    QPointer<ZvScheduleStageChooserWidget> m_stageChooser;
    QPointer<ZvScheduleSwitcherWidget> m_switcherWidget;
    QPointer<QWidget> m_activatedWidget;
    EditStateWatch *m_editState = nullptr;
    QTimer *m_createTabsTimer = nullptr;
    bool m_saveOnClose = true;
    bool m_closed = false;
};

} // namespace Zavo
