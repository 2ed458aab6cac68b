#include "ZvDockArrangement.h"

#include <QDockWidget>
#include <QLayout>
#include <QMainWindow>

#include <algorithm>
#include <iterator>
#include <limits>
#include <numeric>
#include <utility>

namespace Zavo {

namespace {
/// The place at which each cell goes into the order.
QVector<int> keysOf(const QVector<ZvDockArrangement::Cell> &cells,
                    const QHash<QDockWidget *, int> &orders)
{
    QVector<int> keys;
    int previous = std::numeric_limits<int>::min();
    for (const ZvDockArrangement::Cell &cell : cells) {
        int key = std::numeric_limits<int>::max();
        bool isKnown = false;
        for (QDockWidget *dock : cell) {
            isKnown = isKnown || orders.contains(dock);
            key = qMin(key, orders.value(dock, key));
        }
        previous = isKnown ? key : previous;
        keys.append(previous);
    }
    return keys;
}

ZvDockArrangement::Cell docksIn(const QVector<ZvDockArrangement::Cell> &cells)
{
    ZvDockArrangement::Cell docks;
    for (const ZvDockArrangement::Cell &cell : cells)
        docks += cell;
    return docks;
}

template<typename Keep>
ZvDockArrangement::Cell filtered(const ZvDockArrangement::Cell &cell, Keep keep)
{
    ZvDockArrangement::Cell kept;
    std::copy_if(cell.cbegin(), cell.cend(), std::back_inserter(kept), keep);
    return kept;
}

/// The first of @p cells that holds @p dock; one of its own if there is none.
ZvDockArrangement::Cell cellIn(const QVector<ZvDockArrangement::Cell> &cells, QDockWidget *dock)
{
    const auto it =
        std::find_if(cells.cbegin(), cells.cend(),
                     [dock](const ZvDockArrangement::Cell &cell) { return cell.contains(dock); });
    return it != cells.cend() ? *it : ZvDockArrangement::Cell{dock};
}

/// Whether @p dock is a tab beside @p cell. Asked from both sides, since a hidden dock knows no
/// tabs beside it; of docks that are all hidden it cannot be told.
bool isTabbedWith(const QMainWindow &window, const ZvDockArrangement::Cell &cell, QDockWidget *dock)
{
    return std::any_of(cell.cbegin(), cell.cend(), [&window, dock](QDockWidget *member) {
        return window.tabifiedDockWidgets(member).contains(dock) ||
               window.tabifiedDockWidgets(dock).contains(member);
    });
}
} // namespace

ZvDockArrangement ZvDockArrangement::of(const QMainWindow &window)
{
    ZvDockArrangement arrangement;
    const QLayout *layout = window.layout();
    // The layout of a main window does not know its count.
    for (int i = 0; QLayoutItem *item = layout->itemAt(i); ++i) {
        auto *dock = qobject_cast<QDockWidget *>(item->widget());
        const Qt::DockWidgetArea area = dock ? window.dockWidgetArea(dock) : Qt::NoDockWidgetArea;
        if (area == Qt::NoDockWidgetArea)
            continue;
        QVector<Cell> &cells = arrangement.m_cells[area];
        if (!cells.isEmpty() && isTabbedWith(window, cells.last(), dock))
            cells.last().append(dock);
        else
            cells.append({dock});
    }
    return arrangement;
}

ZvDockArrangement::Cell ZvDockArrangement::docks() const
{
    Cell docks;
    for (const QVector<Cell> &cells : m_cells)
        docks += docksIn(cells);
    return docks;
}

QVector<ZvDockArrangement::Cell> ZvDockArrangement::tabGroups() const
{
    QVector<Cell> groups;
    for (const QVector<Cell> &cells : m_cells)
        std::copy_if(cells.cbegin(), cells.cend(), std::back_inserter(groups),
                     [](const Cell &cell) { return cell.size() > 1; });
    return groups;
}

ZvDockArrangement::Cell ZvDockArrangement::cellOf(QDockWidget *dock) const
{
    for (const QVector<Cell> &cells : m_cells) {
        if (docksIn(cells).contains(dock))
            return cellIn(cells, dock);
    }
    return {};
}

QDockWidget *ZvDockArrangement::frontOf(const QMainWindow &window, const Cell &cell)
{
    const Cell shown = filtered(
        cell, [](const QDockWidget *dock) { return !dock->isHidden() && !dock->isFloating(); });
    // The docks behind the front one are moved out of the window.
    const auto front = std::find_if(shown.cbegin(), shown.cend(), [&](const QDockWidget *dock) {
        return window.rect().intersects(dock->geometry());
    });
    if (front != shown.cend())
        return *front;
    return shown.isEmpty() ? nullptr : shown.first();
}

void ZvDockArrangement::reorder(const QHash<QDockWidget *, int> &orders)
{
    for (QVector<Cell> &cells : m_cells) {
        const QVector<int> keys = keysOf(cells, orders);
        QVector<int> places(cells.size());
        std::iota(places.begin(), places.end(), 0);
        std::stable_sort(places.begin(), places.end(),
                         [&keys](int left, int right) { return keys[left] < keys[right]; });
        QVector<Cell> sorted;
        for (const int place : std::as_const(places))
            sorted.append(cells[place]);
        cells = sorted;
    }
}

void ZvDockArrangement::regroup(const QVector<Cell> &groups, const QSet<QDockWidget *> &regrouped)
{
    for (QVector<Cell> &cells : m_cells) {
        const Cell here = docksIn(cells);
        QSet<QDockWidget *> placed;
        QVector<Cell> result;
        for (QDockWidget *dock : here) {
            if (placed.contains(dock))
                continue;
            const bool isRegrouped = regrouped.contains(dock);
            const Cell cell =
                filtered(cellIn(isRegrouped ? groups : cells, dock), [&](QDockWidget *member) {
                    return here.contains(member) && !placed.contains(member) &&
                           regrouped.contains(member) == isRegrouped;
                });
            for (QDockWidget *member : cell)
                placed.insert(member);
            result.append(cell);
        }
        cells = result;
    }
}

void ZvDockArrangement::applyTo(QMainWindow *window) const
{
    const ZvDockArrangement present = of(*window);
    Cell fronts;
    const QVector<Cell> groups = present.tabGroups();
    for (const Cell &group : groups)
        fronts.append(frontOf(*window, group));
    for (auto it = m_cells.cbegin(); it != m_cells.cend(); ++it) {
        if (it.value() != present.m_cells.value(it.key()))
            place(window, static_cast<Qt::DockWidgetArea>(it.key()), it.value());
    }
    for (QDockWidget *front : std::as_const(fronts)) {
        if (front)
            raise(*window, front);
    }
}

void ZvDockArrangement::raise(const QMainWindow &window, QDockWidget *dock)
{
    // A dock that is already the topmost child is not brought forward by raising it.
    const QList<QDockWidget *> others = window.tabifiedDockWidgets(dock);
    for (QDockWidget *other : others) {
        if (!other->isHidden() && !other->isFloating())
            other->raise();
    }
    dock->raise();
}

void ZvDockArrangement::place(QMainWindow *window, Qt::DockWidgetArea area,
                              const QVector<Cell> &cells)
{
    for (const Cell &cell : cells) {
        for (QDockWidget *dock : cell) {
            window->addDockWidget(area, dock);
            if (dock != cell.first())
                window->tabifyDockWidget(cell.first(), dock);
        }
    }
}

} // namespace Zavo
