#include "navigation/ScheduleListView.h"

#include <QKeyEvent>

namespace Zavo {

ScheduleListView::ScheduleListView(QWidget *parent)
    : QTreeView(parent)
{
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setRootIsDecorated(false);
    setAllColumnsShowFocus(true);
    // Without this, a change of one row measures all rows above it.
    setUniformRowHeights(true);
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
