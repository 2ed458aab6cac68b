#include "editor/NavigationWiring.h"

#include "domain/ActionNames.h"
#include "editor/EditStateWatch.h"
#include "editor/ZvScheduleEditor.h"
#include "navigation/NavigationNames.h"
#include "navigation/ZvCalendarWidget.h"
#include "navigation/ZvScheduleSwitcherWidget.h"
#include "workspace/ZvScheduleMainWidget.h"

#include "ZvChannel.h"

#include <QDockWidget>
#include <QMenu>

namespace Zavo {

namespace {

void connectToEditor(ZvScheduleSwitcherWidget *switcher, QDockWidget *dock,
                     ZvScheduleEditor *editor)
{
    // clang-format off
    QObject::connect(switcher, SIGNAL(activated(QWidget*)), editor, SLOT(setActivatedWidget(QWidget*)));
    QObject::connect(dock, SIGNAL(topLevelChanged(bool)), switcher, SLOT(setActivated(bool)));
    QObject::connect(dock, SIGNAL(visibilityChanged(bool)), switcher, SLOT(setActivated(bool)));
    QObject::connect(switcher, SIGNAL(requestEditMenuAboutToShow()), editor, SLOT(onMenuEditAboutToShow()));
    // clang-format on
}

// The docks activate themselves while they are placed; once there are tabs, the start is over and
// the edit commands go to the tables.
void activateAfterStart(ZvScheduleEditor *editor, ZvScheduleMainWidget *mainWidget)
{
    QObject::connect(mainWidget, &ZvScheduleMainWidget::tabsCreated, editor,
                     [editor, mainWidget] { editor->setActivatedWidget(mainWidget); });
}

void connectToMainWidget(ZvScheduleSwitcherWidget *switcher, ZvScheduleMainWidget *widget)
{
    // clang-format off
    QObject::connect(switcher, SIGNAL(requestSwitchToDefault()), widget, SLOT(switchToDefaultSchedule()));
    QObject::connect(switcher, SIGNAL(requestSwitchToDayOfWeek(Qt::DayOfWeek)), widget, SLOT(switchToDayOfWeekSchedule(Qt::DayOfWeek)));
    QObject::connect(switcher, SIGNAL(requestSwitchToDate(QDate)), widget, SLOT(switchToDateSchedule(QDate)));
    QObject::connect(switcher, SIGNAL(requestRemoveSchedule(QList<ZvScheduleBasicInfo>,bool)), widget, SLOT(removeScheduleWithUndo(QList<ZvScheduleBasicInfo>,bool)));
    QObject::connect(switcher, SIGNAL(requestStoreCurrentSchedule()), widget, SLOT(storeCurrentSchedule()));
    QObject::connect(switcher, SIGNAL(requestRemoveAndInsertSchedule(QList<ZvScheduleBasicInfo>,QList<ZvSchedule>)), widget, SLOT(removeAndInsertScheduleWithUndo(QList<ZvScheduleBasicInfo>,QList<ZvSchedule>)));

    QObject::connect(widget, SIGNAL(requestCurrentScheduleType(ZvScheduleBasicInfo*)), switcher, SLOT(getCurrentScheduleInfo(ZvScheduleBasicInfo*)), Qt::DirectConnection);
    QObject::connect(widget, SIGNAL(currentChannelChanged(const ZvChannel*)), switcher, SLOT(setCurrentChannel(const ZvChannel*)));
    QObject::connect(widget, SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)), switcher, SLOT(onScheduleCreated(QList<int>,ZvScheduleBasicInfo)));
    QObject::connect(widget, SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)), switcher, SLOT(onScheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)));
    QObject::connect(widget, SIGNAL(scheduleStageCountChanged(ZvScheduleBasicInfo,int)), switcher, SLOT(onScheduleStageCountChanged(ZvScheduleBasicInfo,int)));
    QObject::connect(widget, SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), switcher, SLOT(changeCurrentScheduleSelection(ZvScheduleBasicInfo)));
    // clang-format on

    // The channels die with the main widget.
    QObject::connect(widget, &QObject::destroyed, switcher,
                     [switcher] { switcher->setCurrentChannel(nullptr); });
}

// What is selected in the calendar changes by keys and by its menus, too.
void watchSelection(ZvScheduleSwitcherWidget *switcher, EditStateWatch *editState)
{
    const auto *calendar = switcher->findChild<ZvCalendarWidget *>();
    editState->watch(calendar, SIGNAL(selectionChanged()));
    const QList<QMenu *> menus = calendar->findChildren<QMenu *>(QLatin1String(MenuName::Calendar));
    for (const QMenu *menu : menus)
        editState->watch(menu, SIGNAL(triggered(QAction*)));
}

} // namespace

ZvScheduleSwitcherWidget *fillSwitchDock(QDockWidget *dock, ZvScheduleEditor *editor,
                                         ZvScheduleMainWidget *mainWidget,
                                         EditStateWatch *editState)
{
    auto *switcher = new ZvScheduleSwitcherWidget(dock);
    switcher->setEditMenu(editor->getMenu(QLatin1String(MenuName::Edit)));
    dock->setWidget(switcher);
    connectToEditor(switcher, dock, editor);
    connectToMainWidget(switcher, mainWidget);
    activateAfterStart(editor, mainWidget);

    QMenu *calendarMenu = switcher->createCalendarMenu();
    watchSelection(switcher, editState);
    // The host may keep the menu longer than there are docks.
    calendarMenu->setParent(nullptr, calendarMenu->windowFlags());
    editor->setCalendarMenu(calendarMenu);
    return switcher;
}

} // namespace Zavo
