#include "editor/EditStateWatch.h"

#include "workspace/ZvScheduleMainWidget.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QUndoGroup>

namespace Zavo {

namespace {

constexpr int RestInterval = 20; // ms

} // namespace

EditStateWatch::EditStateWatch(ZvScheduleMainWidget *widget, QObject *parent)
    : QObject(parent)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(RestInterval);
    connect(&m_rest, SIGNAL(timeout()), this, SIGNAL(changed()));
    // clang-format off
    const char *const causes[] = {
        SIGNAL(currentChannelChanged(const ZvChannel*)),
        SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)),
        SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)),
        SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)),
        SIGNAL(scheduleStageCountChanged(ZvScheduleBasicInfo,int)),
        SIGNAL(timeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*)),
        SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)),
    };
    // clang-format on
    for (const char *cause : causes)
        watch(widget, cause);
    watch(widget->undoGroup(), SIGNAL(canUndoChanged(bool)));
    watch(widget->undoGroup(), SIGNAL(canRedoChanged(bool)));
    watch(QGuiApplication::clipboard(), SIGNAL(dataChanged()));
}

void EditStateWatch::watch(const QObject *sender, const char *signal)
{
    connect(sender, signal, &m_rest, SLOT(start()));
}

} // namespace Zavo
