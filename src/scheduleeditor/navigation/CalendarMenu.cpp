#include "navigation/CalendarMenu.h"

#include "domain/ActionNames.h"
#include "navigation/NavigationNames.h"
#include "navigation/ZvCalendarWidget.h"

#include <QMenu>

namespace Zavo {

namespace {

void setHelp(QAction *action, const QString &statusTip, const QString &whatsThis)
{
    action->setStatusTip(statusTip);
    action->setWhatsThis(whatsThis);
}

// Which dates are selected, and where.
void addSelectionActions(QMenu *menu, ZvCalendarWidget *calendar)
{
    setHelp(menu->addAction(ZvCalendarWidget::tr("Move to &Today"), calendar, SLOT(selectToday())),
                            ZvCalendarWidget::tr("Shows today's schedule"),
                            ZvCalendarWidget::tr(
                                "Turns the calendar to the present month and shows the schedule "
                                "of today's date."));
    menu->addSeparator();
    setHelp(menu->addAction(ZvCalendarWidget::tr("Select &Week"), calendar, SLOT(selectWeek())),
                            ZvCalendarWidget::tr("Selects the whole week of the selected date"),
                            ZvCalendarWidget::tr(
                                "Selects the seven days of the week of the selected date. Cut, "
                                "copy, paste and delete then act on all of them."));
    setHelp(menu->addAction(ZvCalendarWidget::tr("Select &Month"), calendar, SLOT(selectMonth())),
                            ZvCalendarWidget::tr("Selects the whole month of the selected date"),
                            ZvCalendarWidget::tr(
                                "Selects all days of the month of the selected date. Cut, copy, "
                                "paste and delete then act on all of them."));
    QAction *clear = menu->addAction(ZvCalendarWidget::tr("Clear &Selections"), calendar,
                                     SLOT(clearMultiSelection()));
    clear->setObjectName(QLatin1String(NavigationName::ClearSelectionsAction));
    setHelp(clear, ZvCalendarWidget::tr("Leaves only one date selected"),
            ZvCalendarWidget::tr("Takes the selection off all dates but the one whose schedule is "
                                 "shown."));
}

QMenu *addFirstDayOfWeekMenu(QMenu *menu, int firstDayOfWeek)
{
    // In the order of Qt::DayOfWeek.
    const QString texts[] = {
        ZvCalendarWidget::tr("Mon"), ZvCalendarWidget::tr("Tue"), ZvCalendarWidget::tr("Wed"),
        ZvCalendarWidget::tr("Thu"), ZvCalendarWidget::tr("Fri"), ZvCalendarWidget::tr("Sat"),
        ZvCalendarWidget::tr("Sun"),
    };
    QMenu *days = menu->addMenu(ZvCalendarWidget::tr("&First Day of Week"));
    days->setObjectName(QLatin1String(NavigationName::FirstDayOfWeekMenu));
    setHelp(days->menuAction(), ZvCalendarWidget::tr("Chooses the day with which the weeks begin"),
            ZvCalendarWidget::tr("Chooses the day that stands first in the rows of the calendar."));
    int day = Qt::Monday;
    for (const QString &text : texts) {
        QAction *action = days->addAction(text);
        action->setObjectName(QLatin1String(NavigationName::FirstDayOfWeekActionPrefix) +
                              QString::number(day));
        action->setCheckable(true);
        action->setChecked(day == firstDayOfWeek);
        setHelp(action, ZvCalendarWidget::tr("Begins the weeks of the calendar with this day"),
                ZvCalendarWidget::tr("Begins the weeks of the calendar with this day, until the "
                                     "editor is closed."));
        ++day;
    }
    return days;
}

void updateFirstDayOfWeekMenu(const QMenu *menu, int firstDayOfWeek)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        const QLatin1String prefix(NavigationName::FirstDayOfWeekActionPrefix);
        if (action->objectName().startsWith(prefix))
            action->setChecked(dayOfWeekOfAction(action) == firstDayOfWeek);
    }
}

} // namespace

QMenu *createCalendarMenu(ZvCalendarWidget *calendar)
{
    auto *menu = new QMenu(ZvCalendarWidget::tr("C&alendar"), calendar);
    menu->setObjectName(QLatin1String(MenuName::Calendar));

    addSelectionActions(menu, calendar);
    menu->addSeparator();

    QObject::connect(addFirstDayOfWeekMenu(menu, calendar->firstDayOfWeek()),
                     SIGNAL(triggered(QAction*)), calendar,
                            SLOT(onActionFirstDayOfWeekTriggerd(QAction*)));

    QAction *weekNumber = menu->addAction(ZvCalendarWidget::tr("Show Week &Number"));
    weekNumber->setObjectName(QLatin1String(NavigationName::ShowWeekNumberAction));
    weekNumber->setCheckable(true);
    weekNumber->setChecked(calendar->verticalHeaderFormat() == QCalendarWidget::ISOWeekNumbers);
    setHelp(weekNumber, ZvCalendarWidget::tr("Shows or hides the numbers of the weeks"),
            ZvCalendarWidget::tr("Shows or hides the numbers of the weeks beside the calendar."));
    QObject::connect(weekNumber, SIGNAL(triggered(bool)), calendar,
                                        SLOT(onActionShowWeekNumberTriggerd(bool)));

    QObject::connect(menu, SIGNAL(aboutToShow()), calendar, SLOT(onMenuAboutToShow()));
    return menu;
}

void updateCalendarMenu(const QMenu *menu, const CalendarMenuState &state)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (action->objectName() == QLatin1String(NavigationName::ClearSelectionsAction))
            action->setEnabled(state.severalSelected);
        else if (action->objectName() == QLatin1String(NavigationName::ShowWeekNumberAction))
            action->setChecked(state.weekNumbersShown);
        const QMenu *submenu = action->menu();
        const QLatin1String daysName(NavigationName::FirstDayOfWeekMenu);
        if (submenu && submenu->objectName() == daysName)
            updateFirstDayOfWeekMenu(submenu, state.firstDayOfWeek);
    }
}

int dayOfWeekOfAction(const QAction *action)
{
    const int day = action->objectName().rightRef(1).toInt();
    return day <= Qt::Sunday ? day : 0;
}

void exchangeEditActions(QMenu *menu, const QMenu *oldEditMenu, const QMenu *newEditMenu)
{
    if (oldEditMenu) {
        const QList<QAction *> old = oldEditMenu->actions();
        for (QAction *action : old)
            menu->removeAction(action);
    }
    QAction *first = menu->actions().value(0);
    if (first && first->isSeparator()) {
        delete first;
        first = menu->actions().value(0);
    }
    if (!newEditMenu)
        return;
    if (first)
        first = menu->insertSeparator(first);
    menu->insertActions(first, newEditMenu->actions());
}

} // namespace Zavo
