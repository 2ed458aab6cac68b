#include "navigation/ZvScheduleListWidget.h"

#include "ZvChannel.h"
#include "ZvSystemInfo.h"
#include "domain/ChannelSchedules.h"
#include "domain/ToolButtonStyle.h"
#include "domain/ZvScheduleCommon.h"
#include "navigation/CheckedSchedules.h"
#include "navigation/NavigationNames.h"
#include "navigation/ScheduleListModel.h"
#include "navigation/ScheduleListPaste.h"
#include "navigation/ScheduleListView.h"
#include "navigation/ZvScheduleSpecifyScheduleDialog.h"
#include "services/ZvScheduleClipboard.h"

#include <QAction>
#include <QEvent>
#include <QFileInfo>
#include <QFocusEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace Zavo {

namespace {

constexpr int iconSizePx = 16;
constexpr int ListMenuButtonWidthPx = 30;
constexpr int nameColumnSlackPx = 16;

constexpr int firstRow = 0;

bool isTabReason(const QEvent *event)
{
    const Qt::FocusReason reason = static_cast<const QFocusEvent *>(event)->reason();
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

} // namespace

ZvScheduleListWidget::ZvScheduleListWidget(QWidget *parent)
    : QScrollArea(parent)
    , m_channelLabel(new QLabel(tr("Channel: None"), this))
    , m_model(new ScheduleListModel(this))
    , m_menuButton(new QToolButton(this))
    , m_toolMenu(new QMenu(this))
{
    setWindowTitle(tr("Schedule List"));
    setAccessibleName(windowTitle());
    setWhatsThis(tr("The schedules of the channel. The selected row is the schedule in the time "
                    "table. The commands of the edit menu act on the checked rows."));
    m_channelLabel->setTextFormat(Qt::PlainText);
    // A long name must not widen the dock.
    m_channelLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto *layout = new QVBoxLayout(this);
    auto *line = new QHBoxLayout;
    line->addWidget(m_channelLabel);
    line->addWidget(m_menuButton);
    layout->addLayout(line);

    createToolMenu();
    createMenuButton();
    createTreeView(ZvSystemInfo::getDpiRatio(this));
    // clang-format off
    connect(this, SIGNAL(dpiRatioChanged(double)), this, SLOT(createTreeView(double)), Qt::QueuedConnection);
    connect(this, SIGNAL(dpiRatioChanged(double)), this, SLOT(scaleMenuButton(double)), Qt::QueuedConnection);
    // clang-format on
}

ZvScheduleListWidget::~ZvScheduleListWidget() = default;

void ZvScheduleListWidget::createToolMenu()
{
    m_toolMenu->setObjectName(QLatin1String(NavigationName::ScheduleListToolMenu));
    QAction *action = m_toolMenu->addAction(QIcon(QStringLiteral(":/images/create_schedule.svg")),
                                            tr("&New Schedule..."));
    action->setObjectName(QLatin1String(NavigationName::NewScheduleAction));
    action->setShortcut(QKeySequence::New);
    action->setStatusTip(tr("Creates a schedule for a date or a day of the week"));
    action->setWhatsThis(tr("Asks for a date or a day of the week, creates a schedule for it and "
                            "shows it. A date or day that has none yet is proposed."));
    connect(action, SIGNAL(triggered()), this, SLOT(onActionNewScheduleRequested()));
    m_toolMenu->addSeparator();
    connect(m_toolMenu, SIGNAL(aboutToShow()), this, SLOT(onToolMenuAboutToShow()));
}

void ZvScheduleListWidget::createMenuButton()
{
    m_menuButton->setObjectName(QLatin1String(NavigationName::CalendarMenuButton));
    m_menuButton->setIcon(QIcon(QStringLiteral(":/images/menu_simple.svg")));
    m_menuButton->setMinimumWidth(ListMenuButtonWidthPx);
    m_menuButton->setAutoRaise(true);
    m_menuButton->setPopupMode(QToolButton::InstantPopup);
    m_menuButton->setStyleSheet(QLatin1String(ToolButtonStyle));
    m_menuButton->setMenu(m_toolMenu);
    m_menuButton->setAccessibleName(tr("Menu of the schedule list"));
    m_menuButton->installEventFilter(this);
}

void ZvScheduleListWidget::createTreeView(double dpiRatio)
{
    const bool hadFocus = m_treeView && m_treeView->hasFocus();
    delete m_treeView;
    m_treeView = new ScheduleListView(this);
    const int iconSize = static_cast<int>(iconSizePx * dpiRatio);
    m_treeView->setIconSize({iconSize, iconSize});
    m_treeView->installEventFilter(this);
    m_treeView->viewport()->installEventFilter(this);
    m_treeView->header()->viewport()->installEventFilter(this);
    m_treeView->setModel(m_model);
    m_treeView->setAccessibleName(tr("Schedules of the channel"));
    m_treeView->setContextMenuPolicy(Qt::CustomContextMenu);
    m_treeView->setStyleSheet(QStringLiteral("font-size: 9.0pt;"));
    layout()->addWidget(m_treeView);
    // clang-format off
    connect(m_treeView, SIGNAL(customContextMenuRequested(QPoint)),
            this, SLOT(onContextMenuRequested(QPoint)));
    connect(m_treeView->selectionModel(), SIGNAL(selectionChanged(QItemSelection,QItemSelection)),
            this, SLOT(onItemSelectionChanged(QItemSelection,QItemSelection)));
    // clang-format on
    if (hadFocus) {
        m_treeView->show();
        m_treeView->setFocus();
    }
}

void ZvScheduleListWidget::scaleMenuButton(double dpiRatio)
{
    m_menuButton->setIconSize((QSizeF(iconSizePx, iconSizePx) * dpiRatio).toSize());
}

void ZvScheduleListWidget::setEditMenu(QMenu *menu)
{
    if (menu == m_editMenu)
        return;
    ZvScheduleCommon::removeWidgetActions(m_toolMenu, m_editMenu);
    m_editMenu = menu;
    if (menu)
        m_toolMenu->addActions(menu->actions());
}

bool ZvScheduleListWidget::event(QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        Q_EMIT activated(this);
    if (m_dpiRatio.hasChanged(this, event))
        Q_EMIT dpiRatioChanged(m_dpiRatio.ratio());
    return QScrollArea::event(event);
}

bool ZvScheduleListWidget::eventFilter(QObject *watched, QEvent *event)
{
    // The view itself is watched for the keyboard alone: its viewports get the mouse.
    if (watched == m_treeView) {
        if (event->type() == QEvent::FocusIn && isTabReason(event))
            Q_EMIT activated(this);
    } else if (event->type() == QEvent::MouseButtonRelease ||
               (event->type() == QEvent::MouseButtonPress && watched == m_menuButton)) {
        Q_EMIT activated(this);
    }
    return QScrollArea::eventFilter(watched, event);
}

// The rows

void ZvScheduleListWidget::setCurrentChannel(const ZvChannel *channel)
{
    if (channel == m_currentChannel)
        return;
    // What the dialog asks belongs to the channel that goes.
    if (m_dialog && m_dialog->isVisible())
        m_dialog->reject();
    m_currentChannel = channel;
    m_treeView->scrollToTop();
    rebuildList();
}

void ZvScheduleListWidget::rebuildList()
{
    const int scrolledRows = m_treeView->verticalScrollBar()->value();
    m_model->clearRows();
    if (!m_currentChannel)
        return;
    const QString name = m_currentChannel->name();
    m_channelLabel->setText(
        tr("Channel: %1")
            .arg(name.isEmpty() ? QFileInfo(m_currentChannel->filePath()).fileName() : name));
    const bool isFirstFilling = m_treeView->header()->count() < 2;
    const QList<ZvSchedule> &schedules = m_currentChannel->scheduleList();
    m_model->setSchedules(schedules);
    if (isFirstFilling)
        fitColumns();
    m_treeView->doItemsLayout();
    m_treeView->verticalScrollBar()->setValue(scrolledRows);
    ZvScheduleBasicInfo info;
    Q_EMIT requestCurrentScheduleInfo(&info);
    selectSchedule(info);
}

void ZvScheduleListWidget::fitColumns()
{
    constexpr int name = ScheduleListModel::NameColumn;
    m_treeView->resizeColumnToContents(name);
    m_treeView->setColumnWidth(name, m_treeView->columnWidth(name) + nameColumnSlackPx);
    m_treeView->resizeColumnToContents(ScheduleListModel::TypeColumn);
    m_treeView->resizeColumnToContents(ScheduleListModel::StageCountColumn);
}

void ZvScheduleListWidget::onScheduleCreated(const QList<int> &, const ZvScheduleBasicInfo &curInfo)
{
    if (!m_currentChannel)
        return;
    rebuildList();
    selectSchedule(curInfo);
}

void ZvScheduleListWidget::onScheduleRemoved(const QList<ZvScheduleBasicInfo> &,
                                             const ZvScheduleBasicInfo &)
{
    rebuildList();
}

void ZvScheduleListWidget::onScheduleStageCountChanged(const ZvScheduleBasicInfo &info,
                                                       int stageCount)
{
    m_model->setStageCount(info, stageCount);
}

QList<QStandardItem *> ZvScheduleListWidget::rowItems(const ZvScheduleBasicInfo &info) const
{
    return m_model->rowItems(info);
}

bool ZvScheduleListWidget::existsInChannel(const ZvScheduleBasicInfo &info) const
{
    return ChannelSchedules::contains(m_currentChannel, info);
}

// The selected row

ZvScheduleBasicInfo ZvScheduleListWidget::currentRowInfo() const
{
    const QModelIndexList rows = m_treeView->selectionModel()->selectedRows();
    return rows.isEmpty() ? ZvScheduleBasicInfo() : m_model->info(rows.first().row());
}

void ZvScheduleListWidget::selectScheduleDefault()
{
    selectInfoUnlessSelected(ZvScheduleBasicInfo(ZvSchedule::Default));
}

void ZvScheduleListWidget::selectScheduleDayOfWeek(Qt::DayOfWeek day)
{
    selectInfoUnlessSelected(ZvScheduleBasicInfo(static_cast<Weekday::Days>(day)));
}

void ZvScheduleListWidget::selectScheduleDate(const QDate &date)
{
    selectInfoUnlessSelected(ZvScheduleBasicInfo(date));
}

void ZvScheduleListWidget::selectInfoUnlessSelected(const ZvScheduleBasicInfo &info)
{
    if (info != currentRowInfo())
        selectSchedule(info);
}

void ZvScheduleListWidget::selectSchedule(const ZvScheduleBasicInfo &info)
{
    QItemSelectionModel *selection = m_treeView->selectionModel();
    selection->clear();
    const int row = m_model->rowOf(info);
    if (row < 0)
        return;
    const QModelIndex index = m_model->index(row, ScheduleListModel::NameColumn);
    if (!m_treeView->viewport()->rect().contains(m_treeView->visualRect(index).center()))
        m_treeView->scrollTo(index, QAbstractItemView::PositionAtCenter);
    // The keys go on from here.
    selection->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    selection->select(rowSelection(index),
                      QItemSelectionModel::Select | QItemSelectionModel::Current);
}

QItemSelection ZvScheduleListWidget::rowSelection(const QModelIndex &index) const
{
    return {index.siblingAtColumn(0), index.siblingAtColumn(m_model->columnCount() - 1)};
}

void ZvScheduleListWidget::itemActivated(const QModelIndex &index)
{
    Q_EMIT selectedScheduleChanged(m_model->info(index.row()));
}

void ZvScheduleListWidget::onItemSelectionChanged(const QItemSelection &selected,
                                                  const QItemSelection &)
{
    const QModelIndexList indexes = selected.indexes();
    if (!indexes.isEmpty())
        Q_EMIT selectedScheduleChanged(m_model->info(indexes.first().row()));
}

// The menu

void ZvScheduleListWidget::onContextMenuRequested(const QPoint &pos)
{
    const QPoint below(0, m_treeView->header()->height());
    m_toolMenu->exec(m_treeView->mapToGlobal(pos + below));
}

void ZvScheduleListWidget::onToolMenuAboutToShow()
{
    Q_EMIT requestEditMenuAboutToShow();
}

void ZvScheduleListWidget::storeCurrentSchedule()
{
    Q_EMIT requestStoreCurrentSchedule();
}

void ZvScheduleListWidget::setActivated(bool flag)
{
    if (flag)
        Q_EMIT activated(this);
}

// A dialog that was cancelled stays until the next question. This may die under it.
void ZvScheduleListWidget::onActionNewScheduleRequested()
{
    using Dialog = ZvScheduleSpecifyScheduleDialog;
    delete m_dialog;
    const QPointer<Dialog> dialog = new Dialog(Dialog::Create, m_currentChannel, this);
    m_dialog = dialog;
    dialog->setScheduleInfo(currentRowInfo());
    if (dialog->exec() != QDialog::Accepted || !dialog)
        return;
    const ZvScheduleBasicInfo info = dialog->selectedInfo();
    delete dialog;
    Q_EMIT requestCreateSchedule({info});
    selectSchedule(info);
}

// The checked rows

QList<ZvScheduleBasicInfo> ZvScheduleListWidget::checkedInfos() const
{
    return m_model->checkedInfos();
}

QList<ZvSchedule> ZvScheduleListWidget::checkedSchedules() const
{
    return CheckedSchedules::copies(*m_model, m_currentChannel);
}

QList<ZvScheduleBasicInfo> ZvScheduleListWidget::infosOfSchedules(const QList<ZvSchedule> &list,
                                                                  bool excludeDefault)
{
    QList<ZvScheduleBasicInfo> infos;
    for (const ZvSchedule &schedule : list) {
        if (!excludeDefault || schedule.type() != ZvSchedule::Default)
            infos.append(ZvScheduleBasicInfo(schedule));
    }
    return infos;
}

ZvScheduleCommonInterface::SelectedType ZvScheduleListWidget::hasSelectedItems() const
{
    return CheckedSchedules::possibleCommands(*m_model);
}

void ZvScheduleListWidget::deleteSelectedItems()
{
    QList<ZvScheduleBasicInfo> infos = checkedInfos();
    if (infos.isEmpty())
        return;
    if (infos.first().type() == ZvSchedule::Default) {
        infos.removeFirst();
        // The half mark says that this one is not deleted.
        if (m_model->info(firstRow).type() == ZvSchedule::Default)
            m_model->markPartially(firstRow);
    }
    if (infos.isEmpty())
        return;
    selectSchedule(infos.first());
    Q_EMIT requestRemoveSchedule(infos, true);
}

bool ZvScheduleListWidget::copySelectedItems()
{
    Q_EMIT requestStoreCurrentSchedule();
    const QList<ZvSchedule> schedules = checkedSchedules();
    ZvScheduleClipboard::writeSchedulesToClipboard(schedules);
    return !schedules.isEmpty();
}

bool ZvScheduleListWidget::cutSelectedItems()
{
    Q_EMIT requestStoreCurrentSchedule();
    const QList<ZvSchedule> schedules = checkedSchedules();
    if (schedules.isEmpty())
        return false;
    ZvScheduleClipboard::writeSchedulesToClipboard(schedules);
    Q_EMIT requestRemoveSchedule(infosOfSchedules(schedules, true), false);
    return true;
}

bool ZvScheduleListWidget::isPastingPossible() const
{
    return ZvScheduleClipboard::hasScheduleData();
}

bool ZvScheduleListWidget::pasteItems()
{
    const QList<ZvSchedule> schedules = ZvScheduleClipboard::readSchedulesFromClipboard();
    if (schedules.isEmpty())
        return false;
    Q_EMIT requestStoreCurrentSchedule();
    return pasteSchedules(schedules);
}

// This may die under the dialog and under the question.
bool ZvScheduleListWidget::pasteSchedules(const QList<ZvSchedule> &list)
{
    using Dialog = ZvScheduleSpecifyScheduleDialog;
    delete m_dialog;
    const QPointer<Dialog> dialog = new Dialog(Dialog::Paste, m_currentChannel, this);
    m_dialog = dialog;
    dialog->setScheduleInfo(currentRowInfo());
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return false;
    const ZvScheduleBasicInfo destination = dialog->selectedInfo();
    const bool repeat = dialog->isRepeatChecked();
    delete dialog;
    if (!accepted)
        return false;
    const SchedulePastePlan plan =
        planScheduleListPaste(list, destination, repeat, m_currentChannel);
    if (!plan.removed.isEmpty() &&
        ZvScheduleCommon::confirmScheduleReplace(plan.removed, this, false) != QMessageBox::Yes)
        return false;
    if (plan.isEmpty())
        return false;
    Q_EMIT requestRemoveAndInsertSchedule(plan.removed, plan.inserted);
    return true;
}

void ZvScheduleListWidget::selectAllItems()
{
    m_model->setAllChecked(true);
}

void ZvScheduleListWidget::deselectAllItems()
{
    m_model->setAllChecked(false);
}

} // namespace Zavo
