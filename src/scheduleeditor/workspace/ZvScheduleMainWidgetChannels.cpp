#include "workspace/ZvScheduleMainWidget.h"

#include "domain/ActionNames.h"
#include "domain/MessageBox.h"
#include "domain/ZvScheduleCommon.h"
#include "services/UndoCommands.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "workspace/ChannelCreation.h"
#include "workspace/ChannelFolder.h"
#include "workspace/ChannelNaming.h"
#include "workspace/ZvScheduleTabWidget.h"

#include "ZvChannel.h"
#include "ZvEditorConfig.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QUndoGroup>
#include <QUndoStack>

// The commands that change the set of channels and their names, and the menu of a tab.
namespace Zavo {

// False if this died meanwhile: a refused name is told by a message, which runs an event loop.
bool ZvScheduleMainWidget::endRename()
{
    const QPointer<ZvScheduleMainWidget> self(this);
    if (m_tabWidget)
        m_tabWidget->finishEditing();
    return self;
}

void ZvScheduleMainWidget::addNewChannel()
{
    // Before the start has read the channels nobody knows which ids are taken.
    const bool isStarting = !m_tabsCreated && m_areaById.isEmpty();
    if (!m_tabWidget || isStarting || !endRename())
        return;
    QString error;
    // The file says one place too few until the channel is saved; only the added tab has its place.
    auto channel = ChannelCreation::create(ChannelFolder(ZvEditorConfig::dataDir()),
                                           m_areaById.keys(), m_tabWidget->count() - 1, &error);
    if (!channel) {
        showCritical(tr("Add New Channel"), error);
        return;
    }
    ZvChannel *added = channel.release();
    addChannel(added);
    m_tabWidget->setCurrentIndex(added->index());
}

bool ZvScheduleMainWidget::confirmChannelDeletion(const QString &channelName)
{
    const QString text =
        tr("The channel \"%1\" will be deleted.\nAfter it has been deleted, it can "
           "not be undone.\n\nAre you sure that you want to delete this channel?")
            .arg(channelName);
    return showMessageBox(this, QMessageBox::Warning, tr("Delete Channel"), text,
                          QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void ZvScheduleMainWidget::removeCurrentChannel()
{
    const QPointer<ZvScheduleWorkingArea> area = currentWorkingArea();
    if (!area || !area->channel())
        return;
    if (!endRename() || !area || !confirmChannelDeletion(area->channelName()) || !area)
        return;
    if (!QFile::remove(area->channel()->filePath())) {
        showCritical(tr("Delete Channel"),
                     tr("The channel file can not be deleted.\nPlease check whether it is possible "
                        "to delete the file."));
        return;
    }
    removeTab(area);
}

// The docks let go of the page and its channel when another tab becomes current; without one they
// are told.
void ZvScheduleMainWidget::removeTab(ZvScheduleWorkingArea *area)
{
    undoGroup()->removeStack(area->undoStack());
    m_tabWidget->removeTab(m_tabWidget->indexOf(area));
    forgetArea(area);
    if (m_tabWidget->count() == 0) {
        Q_EMIT timeTableTimeItemHasNotSelected(area);
        Q_EMIT currentChannelChanged(nullptr);
    }
    delete area;
}

// Of two channels with the same id only one is entered. The other takes its place, so that it is
// saved with all.
void ZvScheduleMainWidget::forgetArea(const ZvScheduleWorkingArea *area)
{
    const int id = area->channel()->id();
    if (m_areaById.value(id) != area)
        return;
    m_areaById.remove(id);
    for (int i = 0; i < m_tabWidget->count(); ++i) {
        auto *other = qobject_cast<ZvScheduleWorkingArea *>(m_tabWidget->widget(i));
        if (other && other->channel() && other->channel()->id() == id)
            m_areaById.insert(id, other);
    }
}

QStringList ZvScheduleMainWidget::namesOfOtherTabs(int tabIndex) const
{
    QStringList names;
    for (int i = 0; i < m_tabWidget->count(); ++i) {
        if (i != tabIndex)
            names.append(m_tabWidget->tabText(i));
    }
    return names;
}

void ZvScheduleMainWidget::changeChannelNameWithUndo(int tabIndex, const QString &name)
{
    if (!m_tabWidget)
        return;
    auto *area = qobject_cast<ZvScheduleWorkingArea *>(m_tabWidget->widget(tabIndex));
    if (!area)
        return;
    const QString refusal = ChannelNaming::refusal(name, namesOfOtherTabs(tabIndex));
    m_tabWidget->setCurrentIndex(tabIndex);
    if (refusal.isEmpty()) {
        area->completeMove();
        undoGroup()->activeStack()->push(
            new UndoCommand::ChangeChannelName(name, area->channelName(), area));
    } else {
        refuseName(refusal);
    }
}

void ZvScheduleMainWidget::refuseName(const QString &text)
{
    const QMessageBox::StandardButton pressed =
        showMessageBox(this, QMessageBox::Critical, tr("Change Channel Name"), text,
                       QMessageBox::Ok | QMessageBox::Cancel);
    if (pressed == QMessageBox::Ok)
        toEditTabName();
}

void ZvScheduleMainWidget::onChannlNameChanged(const QString &name, ZvScheduleWorkingArea *area)
{
    const int index = m_tabWidget ? m_tabWidget->indexOf(area) : -1;
    if (index < 0)
        return;
    m_tabWidget->setTabText(index, name);
    m_tabWidget->setCurrentIndex(index);
}

void ZvScheduleMainWidget::toEditTabName()
{
    if (m_tabWidget)
        m_tabWidget->editTabNameRequested();
}

// Only the header of the current tab has a menu.
void ZvScheduleMainWidget::onTabWidgetContextMenuRequested(const QPoint &pos)
{
    if (!m_tabWidget || !m_tabWidget->currentTabRect().contains(pos))
        return;
    auto *menu = new QMenu(this);
    QAction *rename =
        menu->addAction(tr("Change Channel &Name..."), m_tabWidget, SLOT(editTabNameRequested()));
    rename->setShortcut(Qt::Key_F2);
    rename->setStatusTip(tr("Changes the name of the channel in its tab"));
    rename->setWhatsThis(tr("Opens the name in the tab for editing. Enter takes the new name over. "
                            "Two channels cannot have the same name."));
    rename->setObjectName(QLatin1String(ActionName::ChangeChannelName));
    const QStringList names = {QLatin1String(ActionName::Undo), QLatin1String(ActionName::Redo)};
    const QList<QAction *> shared = ZvScheduleCommon::actionsByObjectName(m_editMenu, names);
    if (!shared.isEmpty()) {
        menu->addSeparator();
        menu->addActions(shared);
    }
    connect(menu, SIGNAL(aboutToShow()), this, SLOT(onTabWidgetContextMenuAboutToShow()));
    connect(menu, SIGNAL(aboutToHide()), rename, SLOT(deleteLater()));
    connect(menu, SIGNAL(aboutToHide()), menu, SLOT(deleteLater()));
    menu->exec(m_tabWidget->mapToGlobal(pos));
}

void ZvScheduleMainWidget::onTabWidgetContextMenuAboutToShow()
{
    Q_EMIT requestEditMenuAboutToShow();
}

} // namespace Zavo
