#include "timetable/UnseenWidgets.h"

#include <QEvent>
#include <QWidget>

namespace Zavo {

UnseenWidgets::UnseenWidgets(QWidget *page)
{
    // A page that is styled styles its children, too.
    page->installEventFilter(this);
    const QList<QWidget *> children = page->findChildren<QWidget *>();
    for (QWidget *child : children)
        child->installEventFilter(this);
}

bool UnseenWidgets::eventFilter(QObject *watched, QEvent *event)
{
    return event->type() == QEvent::PolishRequest || QObject::eventFilter(watched, event);
}

} // namespace Zavo
