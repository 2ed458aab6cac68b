#include "workspace/ScheduleRouter.h"

#include "domain/ActionLookup.h"
#include "domain/ActionNames.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "workspace/ChannelSaver.h"

#include <QAction>
#include <QDebug>
#include <QGraphicsScene>
#include <QUndoGroup>

namespace Zavo {

namespace {

void switchTo(ZvScheduleWorkingArea *area, const ZvScheduleBasicInfo &info)
{
    switch (info.type()) {
    case ZvSchedule::Default:
        area->switchToDefaultSchedule();
        break;
    case ZvSchedule::Date:
        area->switchToDateSchedule(info.date());
        break;
    case ZvSchedule::DayOfWeek:
        area->switchToWeekDaySchedule(static_cast<Qt::DayOfWeek>(info.dayOfWeek()));
        break;
    default:
        break;
    }
}

} // namespace

ScheduleRouter::ScheduleRouter(QWidget *parent)
    : QWidget(parent)
    , m_undoGroup(new QUndoGroup(this))
{
}

void ScheduleRouter::setActionList(const QList<QAction *> &actions)
{
    m_actionList.clear();
    for (QAction *action : actions)
        m_actionList.append(action);
}

QList<QAction *> ScheduleRouter::actionList() const
{
    QList<QAction *> actions;
    for (const QPointer<QAction> &action : m_actionList) {
        if (action)
            actions.append(action);
    }
    return actions;
}

QList<QAction *> ScheduleRouter::findActions(const QStringList &names) const
{
    return findActionsByName(actionList(), names);
}

void ScheduleRouter::connectWorkingArea(ZvScheduleWorkingArea *area)
{
    // clang-format off
    connect(area, SIGNAL(timeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*)), this, SLOT(onTimeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*)));
    connect(area, SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)), this, SLOT(onTimeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)));
    connect(area, SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)), this, SLOT(onScheduleCreated(QList<int>,ZvScheduleBasicInfo)));
    connect(area, SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)), this, SLOT(onScheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)));
    connect(area, SIGNAL(currentScheuleEnabledChanged(bool)), this, SLOT(onCurrentScheduleEnabledChanged(bool)));
    connect(area, SIGNAL(scheduleStageCountChanged(ZvScheduleBasicInfo,int)), this, SLOT(onScheduleStageCountChanged(ZvScheduleBasicInfo,int)));
    connect(area, SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), this, SLOT(onCurrentScheduleInfoChanged(ZvScheduleBasicInfo)));
    connect(area, SIGNAL(activated()), this, SLOT(onWorkingAreaActivated()));
    connect(area, SIGNAL(graphicsScenePurged(QGraphicsScene*)), this, SLOT(onGraphicsScenePurged(QGraphicsScene*)));
    // clang-format on
}

void ScheduleRouter::mousePressEvent(QMouseEvent *event)
{
    Q_EMIT activated(this);
    QWidget::mousePressEvent(event);
}

void ScheduleRouter::showWorkingArea(ZvScheduleWorkingArea *area)
{
    m_undoGroup->setActiveStack(area->undoStack());
    Q_EMIT timeTableTimeItemsMoved(area->selectedTimeItems(), area);
    ZvScheduleBasicInfo info;
    Q_EMIT requestCurrentScheduleType(&info);
    switchTo(area, info);
    // A page that shows that schedule already does not report it again.
    onCurrentScheduleEnabledChanged(area->isCurrentScheduleEnabled());
}

ZvScheduleWorkingArea *ScheduleRouter::areaAtRest() const
{
    ZvScheduleWorkingArea *area = currentWorkingArea();
    if (area)
        area->completeMove();
    return area;
}

// Commands to the page of the current tab

void ScheduleRouter::switchToDefaultSchedule()
{
    if (ZvScheduleWorkingArea *area = areaAtRest())
        area->switchToDefaultSchedule();
}

void ScheduleRouter::switchToDayOfWeekSchedule(Qt::DayOfWeek day)
{
    if (ZvScheduleWorkingArea *area = areaAtRest())
        area->switchToWeekDaySchedule(day);
}

void ScheduleRouter::switchToDateSchedule(const QDate &date)
{
    if (ZvScheduleWorkingArea *area = areaAtRest())
        area->switchToDateSchedule(date);
}

void ScheduleRouter::createScheduleByCurrentInfo()
{
    if (ZvScheduleWorkingArea *area = areaAtRest())
        area->createScheduleByCurrentInfo();
}

void ScheduleRouter::removeScheduleByCurrentInfo()
{
    if (ZvScheduleWorkingArea *area = areaAtRest())
        area->removeScheduleByCurrentInfo();
}

void ScheduleRouter::setDefaultStageToCurrentSchedule(const QString &name)
{
    if (ZvScheduleWorkingArea *area = areaAtRest())
        area->setDefaultStageName(name);
}

void ScheduleRouter::onItemPropertyChangedByPropertyWidget()
{
    if (ZvScheduleWorkingArea *area = currentWorkingArea())
        area->onMousePressingMoved();
}

void ScheduleRouter::removeSelectedItems()
{
    deleteSelectedItems();
}

void ScheduleRouter::storeCurrentSchedule()
{
    if (ZvScheduleWorkingArea *area = currentWorkingArea())
        ChannelSaver::storeTable(area);
}

void ScheduleRouter::isCurrentScheduleEnabled(bool *enabled)
{
    if (!enabled)
        return;
    const ZvScheduleWorkingArea *area = currentWorkingArea();
    *enabled = area && area->isCurrentScheduleEnabled();
}

void ScheduleRouter::isCurrentWidgetActivated(bool *activated)
{
    Q_EMIT requestIsActivatedWidget(this, activated);
}

// The selection of the current page

ZvScheduleCommonInterface::SelectedType ScheduleRouter::hasSelectedItems() const
{
    const ZvScheduleWorkingArea *area = currentWorkingArea();
    return area ? area->hasSelectedItems() : SelectedType();
}

bool ScheduleRouter::copySelectedItems()
{
    ZvScheduleWorkingArea *area = areaAtRest();
    return area && area->copySelectedItems();
}

bool ScheduleRouter::isPastingPossible() const
{
    const ZvScheduleWorkingArea *area = currentWorkingArea();
    return area && area->isPastingPossible();
}

bool ScheduleRouter::pasteItems()
{
    ZvScheduleWorkingArea *area = areaAtRest();
    return area && area->pasteItems();
}

void ScheduleRouter::selectAllItems()
{
    if (ZvScheduleWorkingArea *area = areaAtRest())
        area->selectAllItems();
}

void ScheduleRouter::deselectAllItems()
{
    if (ZvScheduleWorkingArea *area = areaAtRest())
        area->deselectAllItems();
}

// Reports of the pages

// A schedule can be created only where there is none, and the default schedule cannot be deleted.
void ScheduleRouter::onCurrentScheduleEnabledChanged(bool enabled)
{
    const ZvScheduleWorkingArea *area = currentWorkingArea();
    if (!area)
        return;
    const bool isDefault = area->currentScheduleInfo().type() == ZvSchedule::Default;
    const auto setEnabled = [this](const char *name, bool on) {
        const QList<QAction *> actions = findActions({QLatin1String(name)});
        for (QAction *action : actions)
            action->setEnabled(on);
    };
    setEnabled(ActionName::CreateSchedule, !enabled);
    setEnabled(ActionName::DeleteSchedule, enabled && !isDefault);
}

void ScheduleRouter::onTimeTableTimeItemHasNotSelected(ZvScheduleWorkingArea *area)
{
    Q_EMIT timeTableTimeItemHasNotSelected(area);
}

void ScheduleRouter::onTimeTableTimeItemsMoved(const QList<ZvTimeTableTimeItem *> &items,
                                               ZvScheduleWorkingArea *area)
{
    Q_EMIT timeTableTimeItemsMoved(items, area);
}

void ScheduleRouter::onScheduleCreated(const QList<int> &list, const ZvScheduleBasicInfo &curInfo)
{
    Q_EMIT scheduleCreated(list, curInfo);
}

void ScheduleRouter::onScheduleRemoved(const QList<ZvScheduleBasicInfo> &list,
                                       const ZvScheduleBasicInfo &curInfo)
{
    Q_EMIT scheduleRemoved(list, curInfo);
}

void ScheduleRouter::onScheduleStageCountChanged(const ZvScheduleBasicInfo &info, int stageCount)
{
    Q_EMIT scheduleStageCountChanged(info, stageCount);
}

void ScheduleRouter::onCurrentScheduleInfoChanged(const ZvScheduleBasicInfo &info)
{
    Q_EMIT currentScheduleInfoChanged(info);
}

void ScheduleRouter::onWorkingAreaActivated()
{
    Q_EMIT activated(this);
}

void ScheduleRouter::onGraphicsScenePurged(QGraphicsScene *scene)
{
    qDebug() << metaObject()->className() << scene;
    Q_EMIT graphicsScenePurged(scene);
}

} // namespace Zavo
