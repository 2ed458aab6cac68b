#include "ZvDockSizes.h"

#include "ZvDockArrangement.h"

#include <QDockWidget>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>

#include <algorithm>
#include <utility>

namespace Zavo {

namespace {
int extent(const QSize &size, Qt::Orientation orientation)
{
    return orientation == Qt::Horizontal ? size.width() : size.height();
}

/// The direction in which the docks of an area follow each other.
Qt::Orientation directionOf(Qt::DockWidgetArea area)
{
    const bool isAtTheSide = area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
    return isAtTheSide ? Qt::Vertical : Qt::Horizontal;
}
} // namespace

ZvDockSizes *ZvDockSizes::of(QMainWindow *window)
{
    auto *sizes = window->findChild<ZvDockSizes *>(QString(), Qt::FindDirectChildrenOnly);
    return sizes ? sizes : new ZvDockSizes(window);
}

ZvDockSizes::ZvDockSizes(QMainWindow *window)
    : QObject(window)
    , m_window(window)
{
    m_applyTimer.setSingleShot(true);
    m_applyTimer.setInterval(0);
    connect(&m_applyTimer, SIGNAL(timeout()), this, SLOT(apply()));
}

QRect ZvDockSizes::shownGeometry(QDockWidget *dock, QMainWindow *window)
{
    if (dock->isFloating())
        return dock->geometry();
    const auto *sizes = window->findChild<ZvDockSizes *>(QString(), Qt::FindDirectChildrenOnly);
    if (sizes) {
        for (const Wish &wish : sizes->m_wishes) {
            if (wish.dock == dock)
                return {QPoint(), wish.size};
        }
    }
    const ZvDockArrangement::Cell cell = ZvDockArrangement::of(*window).cellOf(dock);
    const QDockWidget *front = ZvDockArrangement::frontOf(*window, cell);
    const QDockWidget *shown = front ? front : dock;
    return shown->testAttribute(Qt::WA_Resized) ? shown->geometry() : QRect();
}

void ZvDockSizes::want(QDockWidget *dock, const QSize &size)
{
    forget(dock);
    m_wishes.append({dock, size});
    dock->installEventFilter(this);
    connect(dock, SIGNAL(dockLocationChanged(Qt::DockWidgetArea)), this, SLOT(forgetSender()));
    connect(dock, SIGNAL(topLevelChanged(bool)), this, SLOT(forgetSender()));
}

void ZvDockSizes::apply()
{
    // Docks that were just moved or shown get their places, by which the tabs in front are known.
    m_window->layout()->activate();
    const Wishes shown = takeShown();
    if (shown.isEmpty())
        return;
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical})
        resize(along(orientation, shown), orientation);
}

bool ZvDockSizes::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show)
        m_applyTimer.start();
    return QObject::eventFilter(watched, event);
}

void ZvDockSizes::forgetSender()
{
    forget(qobject_cast<QDockWidget *>(sender()));
}

void ZvDockSizes::forget(QDockWidget *dock)
{
    if (!dock)
        return;
    dock->removeEventFilter(this);
    dock->disconnect(this);
    m_wishes.erase(std::remove_if(m_wishes.begin(), m_wishes.end(),
                                  [dock](const Wish &wish) { return wish.dock == dock; }),
                   m_wishes.end());
}

/// The wishes that can be met now, which are thereby done with.
ZvDockSizes::Wishes ZvDockSizes::takeShown()
{
    Wishes shown;
    const Wishes all = m_wishes;
    for (const Wish &wish : all) {
        if (!wish.dock || !wish.dock->isVisible() || wish.dock->isFloating())
            continue;
        shown.append(wish);
        forget(wish.dock);
    }
    return shown;
}

/// Those of the wishes that may change sizes in this direction: a dock that comes to others which
/// are there already takes only its share of the area, and the place of a tab group as it is.
ZvDockSizes::Wishes ZvDockSizes::along(Qt::Orientation orientation, const Wishes &shown) const
{
    const auto isOther = [&shown](const QDockWidget *dock) {
        return dock->isVisible() && !dock->isFloating() &&
               std::none_of(shown.cbegin(), shown.cend(),
                            [dock](const Wish &wish) { return wish.dock == dock; });
    };
    const ZvDockArrangement arrangement = ZvDockArrangement::of(*m_window);
    const ZvDockArrangement::Cell docks = arrangement.docks();
    Wishes result;
    for (const Wish &wish : shown) {
        const Qt::DockWidgetArea area = m_window->dockWidgetArea(wish.dock);
        const bool isShare = directionOf(area) == orientation;
        const ZvDockArrangement::Cell cell = arrangement.cellOf(wish.dock);
        const bool fits = isShare
                              ? std::none_of(cell.cbegin(), cell.cend(), isOther)
                              : std::none_of(docks.cbegin(), docks.cend(), [&](QDockWidget *dock) {
                                    return isOther(dock) && m_window->dockWidgetArea(dock) == area;
                                });
        if (fits && ZvDockArrangement::frontOf(*m_window, cell) == wish.dock)
            result.append(wish);
    }
    return result;
}

void ZvDockSizes::resize(const Wishes &wishes, Qt::Orientation orientation)
{
    if (wishes.isEmpty())
        return;
    QList<QDockWidget *> docks;
    QList<int> wanted;
    for (const Wish &wish : wishes) {
        docks.append(wish.dock);
        wanted.append(extent(wish.size, orientation));
    }
    m_window->resizeDocks(docks, wanted, orientation);
    m_window->layout()->activate();
    // The window reckons with the tab bar beside the dock, which the dock's own size leaves out.
    QList<int> corrected;
    for (int i = 0; i < docks.size(); ++i)
        corrected.append(2 * wanted[i] - extent(docks[i]->size(), orientation));
    const bool isPossible =
        std::all_of(corrected.cbegin(), corrected.cend(), [](int size) { return size > 0; });
    if (corrected == wanted || !isPossible)
        return;
    m_window->resizeDocks(docks, corrected, orientation);
    m_window->layout()->activate();
}

} // namespace Zavo
