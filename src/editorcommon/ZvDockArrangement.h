#pragma once

#include <QHash>
#include <QMap>
#include <QSet>
#include <QVector>
#include <Qt>

class QDockWidget;
class QMainWindow;

namespace Zavo {

/// How the docks of a window stand in its areas: in each area cells one behind the other, in each
/// cell one dock, or several as tabs. A value that can be taken, changed and put back.
class ZvDockArrangement final
{
public:
    /// The docks of one cell in the order of their tabs, hidden and floating ones included.
    using Cell = QVector<QDockWidget *>;

    static ZvDockArrangement of(const QMainWindow &window);

    /// All docks, area by area, in their order.
    Cell docks() const;
    /// The cells that hold more than one dock.
    QVector<Cell> tabGroups() const;
    /// The cell in which @p dock stands; empty if the window does not hold it.
    Cell cellOf(QDockWidget *dock) const;

    /// The dock of @p cell whose tab is in front; null if all are hidden or floating.
    static QDockWidget *frontOf(const QMainWindow &window, const Cell &cell);

    /// Brings the tab of @p dock to the front of its group.
    static void raise(const QMainWindow &window, QDockWidget *dock);

    /// Sorts the cells of each area by the lowest number that one of their docks has. A cell
    /// without number goes with the one before it.
    void reorder(const QHash<QDockWidget *, int> &orders);

    /// Makes each of @p groups one cell as far as its docks stand in one area, and gives every
    /// other dock of @p regrouped a cell of its own. The cells keep the place of their first dock.
    void regroup(const QVector<Cell> &groups, const QSet<QDockWidget *> &regrouped);

    /// Moves the docks of @p window as they stand here, area by area and only where that differs.
    /// Hidden docks stay hidden, and the tabs in front stay there as far as they are tabs still.
    void applyTo(QMainWindow *window) const;

private:
    static void place(QMainWindow *window, Qt::DockWidgetArea area, const QVector<Cell> &cells);

    QMap<int, QVector<Cell>> m_cells; ///< by area
};

} // namespace Zavo
