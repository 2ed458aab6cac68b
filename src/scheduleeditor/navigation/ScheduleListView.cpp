#include "navigation/ScheduleListView.h"

#include <QKeyEvent>

namespace Zavo {

ScheduleListView::ScheduleListView(QWidget *parent)
    : QTreeView(parent)
{
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setRootIsDecorated(false);
    setAllColumnsShowFocus(true);
    setUniformRowHeights(true);
}

// A tree looks for the place of a changed row among all rows. Here no row changes its height or has
// children, so that the rows on show are painted again and that is all: the tree's own way is
// passed over.
void ScheduleListView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                   const QVector<int> &roles)
{
    const int lastColumn = model()->columnCount() - 1;
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractItemView::dataChanged(topLeft.siblingAtColumn(0),
                                   bottomRight.siblingAtColumn(lastColumn), roles);
}

void ScheduleListView::keyPressEvent(QKeyEvent *event)
{
    // A view copies the text under the cursor, over the schedules that the clipboard may hold.
    if (event->matches(QKeySequence::Copy)) {
        event->ignore();
        return;
    }
    // The mark stands in the first column, the cursor where the mouse has put it.
    if (event->key() == Qt::Key_Space && currentIndex().column() > 0)
        selectionModel()->setCurrentIndex(currentIndex().siblingAtColumn(0),
                                          QItemSelectionModel::NoUpdate);
    QTreeView::keyPressEvent(event);
}

} // namespace Zavo
