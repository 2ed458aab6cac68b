#include "editor/ScheduleListWiring.h"

#include "domain/ActionNames.h"
#include "editor/EditStateWatch.h"
#include "editor/ZvScheduleEditor.h"
#include "navigation/ScheduleListModel.h"
#include "navigation/ZvScheduleListWidget.h"
#include "navigation/ZvScheduleSwitcherWidget.h"
#include "workspace/ZvScheduleMainWidget.h"

#include <QDockWidget>
#include <QMenu>

namespace Zavo {

namespace {

void connectToEditor(ZvScheduleListWidget *list, QDockWidget *dock, ZvScheduleEditor *editor)
{
    // clang-format off
    QObject::connect(list, SIGNAL(activated(QWidget*)), editor, SLOT(setActivatedWidget(QWidget*)));
    QObject::connect(dock, SIGNAL(topLevelChanged(bool)), list, SLOT(setActivated(bool)));
    QObject::connect(dock, SIGNAL(visibilityChanged(bool)), list, SLOT(setActivated(bool)));
    QObject::connect(list, SIGNAL(requestEditMenuAboutToShow()), editor, SLOT(onMenuEditAboutToShow()));
    // clang-format on
}

void connectToSwitcher(ZvScheduleListWidget *list, ZvScheduleSwitcherWidget *switcher)
{
    // clang-format off
    QObject::connect(switcher, SIGNAL(currentChannelChanged(const ZvChannel*)), list, SLOT(setCurrentChannel(const ZvChannel*)));
    QObject::connect(switcher, SIGNAL(requestSwitchToDefault()), list, SLOT(selectScheduleDefault()));
    QObject::connect(switcher, SIGNAL(requestSwitchToDayOfWeek(Qt::DayOfWeek)), list, SLOT(selectScheduleDayOfWeek(Qt::DayOfWeek)));
    QObject::connect(switcher, SIGNAL(requestSwitchToDate(QDate)), list, SLOT(selectScheduleDate(QDate)));
    QObject::connect(switcher, SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)), list, SLOT(onScheduleCreated(QList<int>,ZvScheduleBasicInfo)));
    QObject::connect(switcher, SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)), list, SLOT(onScheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)));
    QObject::connect(switcher, SIGNAL(scheduleStageCountChanged(ZvScheduleBasicInfo,int)), list, SLOT(onScheduleStageCountChanged(ZvScheduleBasicInfo,int)));

    QObject::connect(list, SIGNAL(selectedScheduleChanged(ZvScheduleBasicInfo)), switcher, SLOT(changeCurrentScheduleSelection(ZvScheduleBasicInfo)));
    QObject::connect(list, SIGNAL(requestCurrentScheduleInfo(ZvScheduleBasicInfo*)), switcher, SLOT(getCurrentScheduleInfo(ZvScheduleBasicInfo*)), Qt::DirectConnection);
    // clang-format on
}

void connectToMainWidget(ZvScheduleListWidget *list, ZvScheduleMainWidget *widget)
{
    // clang-format off
    QObject::connect(list, SIGNAL(requestRemoveSchedule(QList<ZvScheduleBasicInfo>,bool)), widget, SLOT(removeScheduleWithUndo(QList<ZvScheduleBasicInfo>,bool)));
    QObject::connect(list, SIGNAL(requestStoreCurrentSchedule()), widget, SLOT(storeCurrentSchedule()));
    QObject::connect(list, SIGNAL(requestRemoveAndInsertSchedule(QList<ZvScheduleBasicInfo>,QList<ZvSchedule>)), widget, SLOT(removeAndInsertScheduleWithUndo(QList<ZvScheduleBasicInfo>,QList<ZvSchedule>)));
    QObject::connect(list, SIGNAL(requestCreateSchedule(QList<ZvScheduleBasicInfo>)), widget, SLOT(createScheduleWithUndo(QList<ZvScheduleBasicInfo>)));
    // clang-format on
}

} // namespace

void fillScheduleListDock(QDockWidget *dock, ZvScheduleEditor *editor,
                          ZvScheduleMainWidget *mainWidget, ZvScheduleSwitcherWidget *switcher,
                          EditStateWatch *editState)
{
    auto *list = new ZvScheduleListWidget(dock);
    list->setEditMenu(editor->getMenu(QLatin1String(MenuName::Edit)));
    dock->setWidget(list);
    connectToEditor(list, dock, editor);
    connectToSwitcher(list, switcher);
    connectToMainWidget(list, mainWidget);
    // Marks are set by key and by the edit commands, too.
    editState->watch(list->findChild<ScheduleListModel *>(), SIGNAL(checkMarksChanged()));
}

} // namespace Zavo
