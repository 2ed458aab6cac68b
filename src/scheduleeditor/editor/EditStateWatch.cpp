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
        SIGNAL(scheduleStageCountChanged(ZvScheduleBasicInfo,int)),
        SIGNAL(timeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*)),
        SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)),
    };
    // clang-format on
    for (const char *cause : causes)
        connect(widget, cause, &m_rest, SLOT(start()));
    connect(widget->undoGroup(), SIGNAL(canUndoChanged(bool)), &m_rest, SLOT(start()));
    connect(widget->undoGroup(), SIGNAL(canRedoChanged(bool)), &m_rest, SLOT(start()));
    connect(QGuiApplication::clipboard(), SIGNAL(dataChanged()), &m_rest, SLOT(start()));
}

} // namespace Zavo
