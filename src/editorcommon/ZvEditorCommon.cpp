#include "ZvEditorCommon.h"

#include "ZvDockArrangement.h"
#include "ZvDockRecord.h"
#include "ZvDockSizes.h"
#include "ZvDockTabs.h"

#include <QDockWidget>
#include <QHash>
#include <QMainWindow>
#include <QSet>

namespace Zavo {

namespace {
bool isUsable(const QDockWidget *dock, const QMainWindow *window)
{
    return dock && window && !dock->objectName().isEmpty();
}

/// Puts the docks as they stand in @p arrangement, with their stored sizes, else the present ones.
void rearrange(QMainWindow *window, const ZvDockArrangement &arrangement)
{
    QHash<QDockWidget *, QSize> sizes;
    const ZvDockArrangement::Cell docks = arrangement.docks();
    for (QDockWidget *dock : docks) {
        const auto record = ZvDockRecord::load(dock, window);
        const bool hasSize = record && !record->floating && !record->geometry.isNull();
        sizes[dock] =
            hasSize ? record->geometry.size() : ZvDockSizes::shownGeometry(dock, window).size();
    }
    arrangement.applyTo(window);
    for (QDockWidget *dock : docks) {
        if (!dock->isFloating() && !sizes.value(dock).isEmpty())
            ZvDockSizes::of(window)->want(dock, sizes.value(dock));
    }
    ZvDockSizes::of(window)->apply();
}
} // namespace

const QString ZvEditorCommon::MIME_TYPE_SCHEDULE_DATA =
    QStringLiteral("application/x-zavo-schedule-data");
const QString ZvEditorCommon::MIME_TYPE_TIME_DATA = QStringLiteral("application/x-zavo-time-data");
const QString ZvEditorCommon::MIME_TYPE_STAGE_NAME =
    QStringLiteral("application/x-zavo-stage-name");

void ZvEditorCommon::storeDockWidgetGeometry(QDockWidget *dock, QMainWindow *window)
{
    if (isUsable(dock, window))
        ZvDockRecord::of(dock, window).save(dock->objectName());
}

void ZvEditorCommon::restoreDockWidgetGeometry(QDockWidget *dock, QMainWindow *window)
{
    const auto record = isUsable(dock, window) ? ZvDockRecord::load(dock, window) : std::nullopt;
    if (!record)
        return;
    const bool isElsewhere = window->dockWidgetArea(dock) != record->area;
    if (record->area != Qt::NoDockWidgetArea && isElsewhere)
        window->addDockWidget(record->area, dock);
    dock->setFloating(record->floating);
    if (record->floating)
        dock->setGeometry(record->geometry);
    dock->setVisible(record->visible);
}

void ZvEditorCommon::storeTabifiedSettings(const QString &name, QMainWindow *window)
{
    if (window && !name.isEmpty())
        ZvDockTabs::of(name, *window).save(name);
}

void ZvEditorCommon::restoreTabifiedSettings(const QString &name, QMainWindow *window)
{
    const auto tabs = window && !name.isEmpty() ? ZvDockTabs::load(name, *window) : std::nullopt;
    if (!tabs)
        return;
    ZvDockArrangement arrangement = ZvDockArrangement::of(*window);
    QHash<QDockWidget *, int> orders;
    QSet<QDockWidget *> known;
    const ZvDockArrangement::Cell docks = arrangement.docks();
    for (QDockWidget *dock : docks) {
        const auto record = ZvDockRecord::load(dock, window);
        if (!record)
            continue;
        orders.insert(dock, record->order);
        if (record->visible || tabs->holds(dock))
            known.insert(dock);
    }
    if (orders.isEmpty())
        return;
    arrangement.regroup(tabs->groups(), known);
    arrangement.reorder(orders);
    rearrange(window, arrangement);
    const ZvDockArrangement::Cell fronts = tabs->fronts();
    for (QDockWidget *front : fronts) {
        if (known.contains(front))
            ZvDockArrangement::raise(*window, front);
    }
}

void ZvEditorCommon::reorderDockWidgets(QList<QDockWidget *> docks, QMainWindow *window)
{
    QHash<QDockWidget *, int> orders;
    for (QDockWidget *dock : qAsConst(docks)) {
        const auto record =
            isUsable(dock, window) ? ZvDockRecord::load(dock, window) : std::nullopt;
        if (record)
            orders.insert(dock, record->order);
    }
    if (orders.isEmpty())
        return;
    ZvDockArrangement arrangement = ZvDockArrangement::of(*window);
    arrangement.reorder(orders);
    rearrange(window, arrangement);
}

} // namespace Zavo
