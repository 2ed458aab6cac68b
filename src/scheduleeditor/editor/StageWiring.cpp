#include "editor/StageWiring.h"

#include "stages/ZvScheduleStageChooserWidget.h"
#include "workspace/ZvScheduleMainWidget.h"

#include <QDockWidget>

namespace Zavo {

ZvScheduleStageChooserWidget *fillStageDock(QDockWidget *dock, ZvScheduleMainWidget *mainWidget)
{
    auto *chooser = new ZvScheduleStageChooserWidget(dock);
    dock->setWidget(chooser);
    // clang-format off
    QObject::connect(chooser, SIGNAL(requestSetToDefaultStage(QString)),
                     mainWidget, SLOT(setDefaultStageToCurrentSchedule(QString)));
    QObject::connect(chooser, SIGNAL(requestRestTimeTable(QString,QList<ZvTime>)),
                     mainWidget, SLOT(onResetTimeTable(QString,QList<ZvTime>)));
    QObject::connect(chooser, SIGNAL(requestIsCurrentScheduleEnabled(bool*)),
                     mainWidget, SLOT(isCurrentScheduleEnabled(bool*)), Qt::DirectConnection);
    // clang-format on
    return chooser;
}

} // namespace Zavo
