#include "editor/ZvScheduleEditor.h"

#include "domain/ActionLookup.h"
#include "domain/ActionNames.h"
#include "editor/ActionRegistry.h"
#include "editor/EditActionState.h"
#include "editor/EditStateWatch.h"
#include "editor/MainMenu.h"
#include "editor/ScheduleDocks.h"
#include "navigation/ZvScheduleSwitcherWidget.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "workspace/SavePrompt.h"
#include "workspace/ZvScheduleMainWidget.h"

#include "ZvChannel.h"
#include "ZvConfig.h"
#include "ZvEditorConfig.h"

#include <QAction>
#include <QDebug>
#include <QGraphicsScene>
#include <QMainWindow>
#include <QMenu>
#include <QTimer>
#include <QUndoGroup>
#include <QUndoStack>

namespace Zavo {

namespace {

const QLatin1String EditorName("ScheduleEditor");
constexpr int CreateTabsDelay = 1;      // ms
constexpr int FirstDisplayDelay = 100;  // ms
constexpr int ChannelDisplayDelay = 16; // ms

} // namespace

ZvScheduleEditor::ZvScheduleEditor(QMainWindow *window)
    : QObject(window)
    , m_mainWindow(window)
    , m_registry(std::make_unique<ActionRegistry>())
    , m_docks(std::make_unique<ScheduleDocks>(window))
{
    setObjectName(EditorName);
    setup();
    if (m_switcherWidget)
        QTimer::singleShot(FirstDisplayDelay, m_switcherWidget,
                           SLOT(updateExecutedShceudleDisplaying()));
}

// Widgets that were never closed go before the menus whose actions they show.
ZvScheduleEditor::~ZvScheduleEditor()
{
    delete m_mainWidget;
}

bool ZvScheduleEditor::setup()
{
    setupMainMenu();
    qRegisterMetaType<QList<ZvChannel *>>("QList<ZvChannel*>");
    setupMainWidget();
    setupDocks();
    return true;
}

void ZvScheduleEditor::setupMainMenu()
{
    createMainMenu(m_registry.get(), this);
    QMenu *editMenu = getMenu(QLatin1String(MenuName::Edit));
    connect(editMenu, SIGNAL(aboutToShow()), this, SLOT(onMenuEditAboutToShow()));
    connect(getMenu(QLatin1String(MenuName::Window)), SIGNAL(aboutToShow()), this,
                                                             SLOT(onMenuWindowAboutToShow()));
    getAction(QLatin1String(ActionName::Upload))
        ->setEnabled(!ZvEditorConfig::getConfig()->allInOne());
}

void ZvScheduleEditor::setupMainWidget()
{
    m_mainWidget = new ZvScheduleMainWidget;
    m_mainWidget->setActionList(getMainWidgetActions());
    m_mainWidget->setupWidgets();
    m_mainWidget->setEditMenu(getMenu(QLatin1String(MenuName::Edit)));

    m_createTabsTimer = new QTimer(this);
    m_createTabsTimer->setSingleShot(true);
    m_createTabsTimer->setInterval(CreateTabsDelay);
    connectMainWidget();
    setActivatedWidget(m_mainWidget);
}

void ZvScheduleEditor::connectMainWidget()
{
    ZvScheduleMainWidget *widget = m_mainWidget;
    m_editState = new EditStateWatch(widget, this);
    connect(m_editState, SIGNAL(changed()), this, SLOT(onMenuEditAboutToShow()));
    // clang-format off
    connect(m_createTabsTimer, SIGNAL(timeout()), widget, SLOT(createTabs()));
    connect(widget, SIGNAL(requestClose()), this, SLOT(close()), Qt::QueuedConnection);
    connect(widget, SIGNAL(tabsCreated(QList<ZvChannel*>)),
            this, SLOT(startScheduleValidator(QList<ZvChannel*>)), Qt::QueuedConnection);
    connect(widget, SIGNAL(graphicsScenePurged(QGraphicsScene*)),
            this, SLOT(onGraphicsScenePurged(QGraphicsScene*)));
    connect(widget, SIGNAL(activated(QWidget*)), this, SLOT(setActivatedWidget(QWidget*)));
    connect(widget, SIGNAL(requestIsActivatedWidget(const QWidget*,bool*)),
            this, SLOT(isActivatedWidgetRequested(const QWidget*,bool*)), Qt::DirectConnection);
    connect(widget, SIGNAL(requestEditMenuAboutToShow()), this, SLOT(onMenuEditAboutToShow()));
    connect(widget, SIGNAL(currentChannelChanged(const ZvChannel*)),
            this, SLOT(onCurrentChannelChanged(const ZvChannel*)));
    // clang-format on
}

bool ZvScheduleEditor::exec()
{
    if (!m_mainWindow) {
        setErrorMessage(tr("MainWindow does not exist."));
        return false;
    }
    if (!m_mainWidget) {
        setErrorMessage(tr("The schedule editor has been closed."));
        return false;
    }
    attatchWidgetsToMainWindow();
    const QPointer<ZvScheduleEditor> self(this);
    restoreDockWidgetSetting(false);
    if (self && !m_closed)
        m_createTabsTimer->start();
    return true;
}

bool ZvScheduleEditor::hasError(QString *message) const
{
    if (message)
        *message = errorMessage();
    return true;
}

QString ZvScheduleEditor::errorMessage() const
{
    return m_errorText;
}

void ZvScheduleEditor::setErrorMessage(const QString &message)
{
    m_errorText = message;
}

// The prompt runs an event loop, in which this may be called again or the host may go.
void ZvScheduleEditor::close()
{
    if (m_closed)
        return;
    m_closed = true;
    const QPointer<ZvScheduleEditor> self(this);
    if (m_saveOnClose && m_mainWidget)
        m_mainWidget->confirmSaveChannels(SavePrompt::BeforeClosing);
    if (!self)
        return;
    storeAllWidgetGeometry();
    deleteWidgets();
    if (self)
        Q_EMIT closed();
}

void ZvScheduleEditor::deleteWidgets()
{
    m_createTabsTimer->stop();
    QList<QGraphicsScene *> scenes;
    if (m_mainWidget) {
        scenes = m_mainWidget->takeGraphicsScenes();
        m_mainWidget->setParent(nullptr);
        m_mainWidget->deleteLater();
        m_mainWidget.clear();
    }
    m_docks->giveUp();
    if (!scenes.isEmpty())
        Q_EMIT graphicsScenePurged(scenes);
}

void ZvScheduleEditor::quit()
{
    Q_EMIT requestQuit();
}

// Menus and actions

QAction *ZvScheduleEditor::getAction(const QString &name) const
{
    return m_registry->action(name);
}

QList<QAction *> ZvScheduleEditor::getActions(const QStringList &names) const
{
    return findActionsByName(m_registry->actions(), names);
}

QList<QAction *> ZvScheduleEditor::getMainWidgetActions() const
{
    QStringList names;
    for (const char *name :
         {ActionName::SaveChannel, ActionName::SaveAllChannel, ActionName::CreateSchedule,
          ActionName::DeleteSchedule, ActionName::CreateChannel, ActionName::DeleteChannel,
          ActionName::OutputChannelData, ActionName::Upload})
        names.append(QLatin1String(name));
    return getActions(names);
}

QMenu *ZvScheduleEditor::getMenu(const QString &name) const
{
    return m_registry->menu(name);
}

QList<QMenu *> ZvScheduleEditor::menu() const
{
    return m_registry->menus();
}

void ZvScheduleEditor::setCalendarMenu(QMenu *menu)
{
    m_registry->setCalendarMenu(menu);
}

void ZvScheduleEditor::setHelpMenu(QMenu *menu)
{
    m_registry->setHelpMenu(menu);
}

QMenu *ZvScheduleEditor::takeCalendarMenu()
{
    return m_registry->takeMenu(QLatin1String(MenuName::Calendar));
}

QMenu *ZvScheduleEditor::takeHelpMenu()
{
    return m_registry->takeMenu(QLatin1String(MenuName::Help));
}

void ZvScheduleEditor::deleteMenuAndAction(QMenu *menu)
{
    ActionRegistry::deleteMenuAndAction(menu);
}

// The first tab, the basic channel, can be neither deleted nor moved.
void ZvScheduleEditor::onCurrentChannelChanged(const ZvChannel *channel)
{
    if (!channel)
        return;
    if (QAction *action = getAction(QLatin1String(ActionName::DeleteChannel)))
        action->setEnabled(channel->index() >= 1);
    if (QAction *action = getAction(QLatin1String(ActionName::ChangeChannelOrder)))
        action->setEnabled(channel->index() != 0);
    // The switcher hears of the channel after this, and has to show its marks before.
    if (m_switcherWidget)
        QTimer::singleShot(ChannelDisplayDelay, m_switcherWidget,
                           SLOT(updateExecutedShceudleDisplaying()));
}

void ZvScheduleEditor::onMenuEditAboutToShow()
{
    const QUndoStack *stack = m_mainWidget ? m_mainWidget->undoGroup()->activeStack() : nullptr;
    updateEditActions(*m_registry, activatedScheudleWidget(), stack);
}

// The activated widget

void ZvScheduleEditor::setActivatedWidget(QWidget *activatedWidget)
{
    m_activatedWidget = activatedWidget;
    onMenuEditAboutToShow();
}

QWidget *ZvScheduleEditor::activatedWidget() const
{
    return m_activatedWidget;
}

ZvScheduleCommonInterface *ZvScheduleEditor::activatedScheudleWidget() const
{
    return dynamic_cast<ZvScheduleCommonInterface *>(m_activatedWidget.data());
}

void ZvScheduleEditor::isActivatedWidgetRequested(const QWidget *widget, bool *activated) const
{
    if (activated)
        *activated = widget == m_activatedWidget;
}

ZvScheduleCommonInterface::SelectedType ZvScheduleEditor::hasSelectedItems() const
{
    const ZvScheduleCommonInterface *activated = activatedScheudleWidget();
    return activated ? activated->hasSelectedItems() : ZvScheduleCommonInterface::SelectedType();
}

bool ZvScheduleEditor::isPastingPossible() const
{
    const ZvScheduleCommonInterface *activated = activatedScheudleWidget();
    return activated && activated->isPastingPossible();
}

void ZvScheduleEditor::action_cut()
{
    if (ZvScheduleCommonInterface *activated = activatedScheudleWidget())
        activated->cutSelectedItems();
}

void ZvScheduleEditor::action_copy()
{
    if (ZvScheduleCommonInterface *activated = activatedScheudleWidget())
        activated->copySelectedItems();
}

void ZvScheduleEditor::action_paste()
{
    if (ZvScheduleCommonInterface *activated = activatedScheudleWidget())
        activated->pasteItems();
}

void ZvScheduleEditor::action_delete()
{
    if (ZvScheduleCommonInterface *activated = activatedScheudleWidget())
        activated->deleteSelectedItems();
}

void ZvScheduleEditor::action_selectAll()
{
    if (ZvScheduleCommonInterface *activated = activatedScheudleWidget())
        activated->selectAllItems();
}

void ZvScheduleEditor::action_deselectAll()
{
    if (ZvScheduleCommonInterface *activated = activatedScheudleWidget())
        activated->deselectAllItems();
}

void ZvScheduleEditor::action_undo()
{
    if (m_mainWidget)
        m_mainWidget->undo();
}

void ZvScheduleEditor::action_redo()
{
    if (m_mainWidget)
        m_mainWidget->redo();
}

// Requests to the host

void ZvScheduleEditor::showVersionInformation()
{
    Q_EMIT requestShowVersionInformation();
}

void ZvScheduleEditor::showConfiguration()
{
    Q_EMIT requestShowConfiguration();
}

void ZvScheduleEditor::showChannelConfiguration()
{
    Q_EMIT requestShowChannelConfiguration();
}

void ZvScheduleEditor::showChannelExporter()
{
    const ZvScheduleWorkingArea *area = m_mainWidget ? m_mainWidget->currentWorkingArea() : nullptr;
    if (area && area->channel())
        Q_EMIT requestShowChannelExporter(area->channel()->filePath());
}

void ZvScheduleEditor::showUploadManager()
{
    const QPointer<ZvScheduleEditor> self(this);
    const bool wanted =
        !m_mainWidget || m_mainWidget->confirmSaveChannels(SavePrompt::BeforeUploading);
    if (self && wanted)
        Q_EMIT requestShowUploadManager();
}

// Reports of the main widget

void ZvScheduleEditor::onGraphicsScenePurged(QGraphicsScene *scene)
{
    Q_EMIT graphicsScenePurged(scene);
}

void ZvScheduleEditor::startScheduleValidator(const QList<ZvChannel *> &channelList)
{
    qDebug() << "startScheduleValidator called:" << channelList.size();
}

} // namespace Zavo
