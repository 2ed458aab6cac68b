#include "editor/ItemPropertyWiring.h"

#include "timetable/ZvScheduleItemPropertyWidget.h"
#include "workspace/ZvScheduleMainWidget.h"

#include <QDockWidget>

namespace Zavo {

void fillItemPropertyDock(QDockWidget *dock, ZvScheduleMainWidget *mainWidget)
{
    auto *panel = new ZvScheduleItemPropertyWidget(dock);
    dock->setWidget(panel);
    // clang-format off
    QObject::connect(mainWidget, SIGNAL(timeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*)),
                     panel, SLOT(onTimeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*)));
    QObject::connect(mainWidget, SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)),
                     panel, SLOT(onTimeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)));
    QObject::connect(panel, SIGNAL(itemPropertyChangedByUser()),
                     mainWidget, SLOT(onItemPropertyChangedByPropertyWidget()));
    // clang-format on
}

} // namespace Zavo
