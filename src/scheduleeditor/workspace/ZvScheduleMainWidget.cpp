#include "workspace/ZvScheduleMainWidget.h"

#include "domain/MessageBox.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "workspace/ChannelFolder.h"
#include "workspace/ChannelSaver.h"
#include "workspace/HiddenMeanwhile.h"
#include "workspace/ScheduleToolBar.h"
#include "workspace/WorkspaceNames.h"
#include "workspace/ZvScheduleTabWidget.h"
#include "workspace/ZvTabBar.h"

#include "ZvChannel.h"
#include "ZvEditorConfig.h"

#include <QAction>
#include <QEvent>
#include <QGraphicsScene>
#include <QMenu>
#include <QTimer>
#include <QUndoGroup>
#include <QVBoxLayout>

namespace Zavo {

namespace {

constexpr int RetryDelay = 1; // ms

// The Tab key comes to widgets in the order in which they came into the window. Pages come after
// the docks, and the bar of their tabs has to go before them.
void moveTabOrderToEnd(QWidget *widget)
{
    QWidget *last = widget->window()->previousInFocusChain();
    while (last != widget && last->focusPolicy() == Qt::NoFocus)
        last = last->previousInFocusChain();
    if (last != widget && !widget->isAncestorOf(last))
        QWidget::setTabOrder(last, widget);
}

} // namespace

ZvScheduleMainWidget::ZvScheduleMainWidget(QWidget *parent)
    : ScheduleRecorder(parent)
    , m_channelIcon(QStringLiteral(":/images/channel.svg"))
{
}

// The pages leave their scenes while they die, and only a whole widget can pass them on.
ZvScheduleMainWidget::~ZvScheduleMainWidget()
{
    if (m_tabWidget)
        m_tabWidget->disconnect(this);
    delete m_tabWidget;
}

void ZvScheduleMainWidget::setEditMenu(QMenu *menu)
{
    m_editMenu = menu;
}

void ZvScheduleMainWidget::setupWidgets()
{
    if (m_tabWidget)
        return;
    auto *layout = new QVBoxLayout;
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setMenuBar(createToolBar());
    m_tabWidget = createTabWidget();
    layout->addWidget(m_tabWidget);
    setLayout(layout);
}

QToolBar *ZvScheduleMainWidget::createToolBar()
{
    auto *toolBar = new ScheduleToolBar(actionList(), this);
    toolBar->installEventFilter(this);
    QAction *closing = toolBar->closeAction();
    connect(closing, SIGNAL(triggered()), this, SLOT(closeScheduleEditor()), Qt::QueuedConnection);
    return toolBar;
}

ZvScheduleTabWidget *ZvScheduleMainWidget::createTabWidget()
{
    auto *tabWidget = new ZvScheduleTabWidget(this);
    tabWidget->setObjectName(QLatin1String(WorkspaceName::TabWidget));
    tabWidget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    tabWidget->setAccessibleName(tr("Channels"));
    tabWidget->tabBar()->setAccessibleName(tr("Channels"));
    tabWidget->setMovable(true);
    tabWidget->setContextMenuPolicy(Qt::CustomContextMenu);
    // clang-format off
    connect(tabWidget, SIGNAL(currentChanged(int)), this, SLOT(onTabCurrentIndexChanged(int)));
    connect(tabWidget, SIGNAL(requestIsActivatedWidget(bool*)),
            this, SLOT(isCurrentWidgetActivated(bool*)), Qt::DirectConnection);
    connect(tabWidget, SIGNAL(requestChangeTabName(int,QString)),
            this, SLOT(changeChannelNameWithUndo(int,QString)));
    connect(tabWidget, SIGNAL(customContextMenuRequested(QPoint)),
            this, SLOT(onTabWidgetContextMenuRequested(QPoint)));
    // clang-format on
    return tabWidget;
}

bool ZvScheduleMainWidget::eventFilter(QObject *watched, QEvent *event)
{
    const bool scales = event->type() == QEvent::ShowToParent || event->type() == QEvent::Resize;
    if (auto *toolBar = scales ? qobject_cast<ScheduleToolBar *>(watched) : nullptr)
        toolBar->scaleButtons();
    return ScheduleRouter::eventFilter(watched, event);
}

void ZvScheduleMainWidget::showCritical(const QString &title, const QString &text)
{
    showMessageBox(this, QMessageBox::Critical, title, text);
}

// Channels

void ZvScheduleMainWidget::createTabs()
{
    if (m_tabsCreated)
        return;
    if (!m_tabWidget) {
        QTimer::singleShot(RetryDelay, this, SLOT(createTabs()));
        return;
    }
    ChannelFolder::Channels channels;
    const QPointer<ZvScheduleMainWidget> self(this);
    switch (ChannelFolder(ZvEditorConfig::dataDir()).load(&channels)) {
    case ChannelFolder::LoadResult::FolderNotCreated:
        showCritical(tr("Critical Error"),
                     tr("Channel Folder cannot be created. \nPlease check the data folder write "
                        "permission."));
        if (self)
            QTimer::singleShot(RetryDelay, this, SLOT(closeScheduleEditor()));
        return;
    case ChannelFolder::LoadResult::ChannelNotWritten:
        showCritical(tr("Create Channel"),
                     tr("The channel file can not be created. \nPlease make sure that channel "
                        "folder is writable."));
        if (self)
            Q_EMIT requestClose();
        return;
    case ChannelFolder::LoadResult::Loaded:
        break;
    }
    m_tabsCreated = true;
    QList<ZvChannel *> list;
    for (auto &channel : channels)
        list.append(channel.release());
    addChannels(list);
    Q_EMIT tabsCreated(list);
}

void ZvScheduleMainWidget::addChannels(const QList<ZvChannel *> &channels)
{
    const HiddenMeanwhile hidden(m_tabWidget);
    moveTabOrderToEnd(m_tabWidget);
    if (auto *bar = qobject_cast<ZvTabBar *>(m_tabWidget->tabBar()))
        bar->takeShownLook();
    m_areaById.clear();
    for (ZvChannel *channel : channels)
        addChannel(channel);
}

void ZvScheduleMainWidget::addChannel(ZvChannel *channel)
{
    if (!channel || !m_tabWidget)
        return;
    auto *area = new ZvScheduleWorkingArea(channel, nullptr);
    undoGroup()->addStack(area->undoStack());
    area->setContextMenu(m_editMenu);
    m_areaById.insert(channel->id(), area);
    connectWorkingArea(area);
    // clang-format off
    connect(area, SIGNAL(requestActiveWidget(QWidget*)), this, SLOT(activeTab(QWidget*)));
    connect(area, SIGNAL(channelNameChanged(QString,ZvScheduleWorkingArea*)),
            this, SLOT(onChannlNameChanged(QString,ZvScheduleWorkingArea*)));
    // clang-format on
    // The first tab is current, and reported with its index, before it has been added.
    area->setTabIndex(m_tabWidget->count());
    m_tabWidget->addTab(area, m_channelIcon, channel->name());
}

QList<QGraphicsScene *> ZvScheduleMainWidget::takeGraphicsScenes()
{
    QList<QGraphicsScene *> scenes;
    const int count = m_tabWidget ? m_tabWidget->count() : 0;
    for (int i = 0; i < count; ++i) {
        auto *area = qobject_cast<ZvScheduleWorkingArea *>(m_tabWidget->widget(i));
        if (QGraphicsScene *scene = area ? area->takeScene() : nullptr)
            scenes.append(scene);
    }
    return scenes;
}

void ZvScheduleMainWidget::closeScheduleEditor()
{
    Q_EMIT requestClose();
}

// Saving

void ZvScheduleMainWidget::saveCurrentChannel()
{
    const QPointer<ZvScheduleWorkingArea> area = currentWorkingArea();
    if (!area)
        return;
    ChannelSaver(this).saveArea(area);
    if (area)
        ChannelSaver::renewBasicFile(area->channel());
}

void ZvScheduleMainWidget::saveAllChannel()
{
    const QPointer<ZvScheduleMainWidget> self(this);
    ChannelSaver(this).saveAreas(m_areaById.values());
    if (!self)
        return;
    if (ZvScheduleWorkingArea *area = m_areaById.value(ChannelFolder::BasicChannelId))
        saveAsBasicChannelFile(area->channel());
}

bool ZvScheduleMainWidget::saveChannel(ZvChannel *channel, bool showError)
{
    return ChannelSaver(this).saveChannel(channel, showError);
}

void ZvScheduleMainWidget::saveAsBasicChannelFile(ZvChannel *channel)
{
    if (channel)
        ChannelFolder::copyToBasicFile(*channel);
}

bool ZvScheduleMainWidget::confirmSaveChannels(int reason)
{
    return ChannelSaver(this).confirmSave(m_areaById.values(), reason);
}

// Tabs

ZvScheduleWorkingArea *ZvScheduleMainWidget::currentWorkingArea() const
{
    return m_tabWidget ? qobject_cast<ZvScheduleWorkingArea *>(m_tabWidget->currentWidget())
                       : nullptr;
}

void ZvScheduleMainWidget::onTabCurrentIndexChanged(int index)
{
    auto *area =
        m_tabWidget ? qobject_cast<ZvScheduleWorkingArea *>(m_tabWidget->widget(index)) : nullptr;
    if (!area)
        return;
    showWorkingArea(area);
    // The receivers read the channel, which may know less than the table of the page.
    area->refreshStoredSchedule();
    Q_EMIT currentChannelChanged(area->channel());
}

void ZvScheduleMainWidget::activeTab(int index)
{
    if (m_tabWidget)
        m_tabWidget->setCurrentIndex(index);
}

void ZvScheduleMainWidget::activeTab(QWidget *widget)
{
    if (m_tabWidget)
        m_tabWidget->setCurrentIndex(m_tabWidget->indexOf(widget));
}

} // namespace Zavo
