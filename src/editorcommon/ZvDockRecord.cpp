#include "ZvDockRecord.h"

#include "ZvDockArrangement.h"
#include "ZvDockKeys.h"
#include "ZvDockSizes.h"
#include "ZvEditorUserConfig.h"
#include "ZvSystemInfo.h"

#include <QDockWidget>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace Zavo {

namespace {
constexpr int c_largestCoordinate = 32767;
constexpr double c_sameRatio = 0.01;
constexpr QSize c_reachableHandle(32, 8); ///< of the title bar, in pixels
constexpr int c_titleHeight = 24;         ///< pixels, at the least

/// Whether each coordinate is small enough to reckon with.
bool isSane(const QRect &rect)
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    rect.getCoords(&left, &top, &right, &bottom);
    const auto isSmall = [](int coordinate) {
        return coordinate >= -c_largestCoordinate && coordinate <= c_largestCoordinate;
    };
    return isSmall(left) && isSmall(top) && isSmall(right) && isSmall(bottom);
}

QVariant stored(const QString &dockName, const char *key)
{
    return ZvEditorUserConfig::value(DockKeys::ofDock(dockName, key));
}

std::optional<int> storedInt(const QString &dockName, const char *key)
{
    bool isInt = false;
    const int value = stored(dockName, key).toString().toInt(&isInt);
    return isInt ? std::optional<int>(value) : std::nullopt;
}

std::optional<Qt::DockWidgetArea> storedArea(const QString &dockName)
{
    const std::optional<int> value = storedInt(dockName, DockKeys::Area);
    for (const Qt::DockWidgetArea area :
         {Qt::NoDockWidgetArea, Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea,
          Qt::TopDockWidgetArea, Qt::BottomDockWidgetArea}) {
        if (value == static_cast<int>(area))
            return area;
    }
    return std::nullopt;
}

std::optional<bool> storedBool(const QString &dockName, const char *key)
{
    const QString value = stored(dockName, key).toString();
    if (value == QLatin1String("true"))
        return true;
    if (value == QLatin1String("false"))
        return false;
    return std::nullopt;
}

std::optional<QRect> storedRect(const QString &dockName, const char *key)
{
    const QVariant value = stored(dockName, key);
    if (value.type() != QVariant::Rect || !isSane(value.toRect()))
        return std::nullopt;
    return value.toRect();
}

std::optional<double> storedDouble(const QString &dockName, const char *key)
{
    bool isDouble = false;
    const double value = stored(dockName, key).toString().toDouble(&isDouble);
    return isDouble && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}
} // namespace

ZvDockRecord ZvDockRecord::of(QDockWidget *dock, QMainWindow *window)
{
    const ZvDockArrangement arrangement = ZvDockArrangement::of(*window);
    ZvDockRecord record;
    record.area = window->dockWidgetArea(dock);
    record.floating = dock->isFloating();
    record.visible = !dock->isHidden();
    record.order = qMax(0, arrangement.docks().indexOf(dock));
    record.geometry = ZvDockSizes::shownGeometry(dock, window);
    if (const QScreen *screen = window->screen())
        record.screen = screen->geometry();
    record.dpiRatio = ZvSystemInfo::getDpiRatio(window);
    return record;
}

std::optional<ZvDockRecord> ZvDockRecord::load(QDockWidget *dock, QMainWindow *window)
{
    const std::optional<ZvDockRecord> record = read(dock->objectName());
    if (!record || !record->isUsableIn(*window) || !record->isOfTheseScreens(window))
        return std::nullopt;
    const bool isAllowed =
        record->area == Qt::NoDockWidgetArea || dock->isAreaAllowed(record->area);
    const bool isInReach = !record->floating || record->canBeReached();
    return isAllowed && isInReach ? record : std::nullopt;
}

void ZvDockRecord::save(const QString &dockName) const
{
    const auto store = [&dockName](const char *key, const QVariant &value) {
        ZvEditorUserConfig::setValue(DockKeys::ofDock(dockName, key), value);
    };
    store(DockKeys::Area, static_cast<int>(area));
    store(DockKeys::Floating, floating);
    store(DockKeys::Visible, visible);
    store(DockKeys::Geometry, geometry);
    store(DockKeys::Order, order);
    store(DockKeys::Screen, screen);
    store(DockKeys::DpiRatio, dpiRatio);
}

std::optional<ZvDockRecord> ZvDockRecord::read(const QString &dockName)
{
    const auto area = storedArea(dockName);
    const auto floating = storedBool(dockName, DockKeys::Floating);
    const auto visible = storedBool(dockName, DockKeys::Visible);
    const auto geometry = storedRect(dockName, DockKeys::Geometry);
    const auto order = storedInt(dockName, DockKeys::Order);
    const auto screen = storedRect(dockName, DockKeys::Screen);
    const auto dpiRatio = storedDouble(dockName, DockKeys::DpiRatio);
    if (!area || !floating || !visible || !geometry || !order || !screen || !dpiRatio)
        return std::nullopt;
    return ZvDockRecord{*area, *floating, *visible, *geometry, *order, *screen, *dpiRatio};
}

bool ZvDockRecord::isUsableIn(const QMainWindow &window) const
{
    // A window may be larger than its screens, and may have been larger than it is now.
    QSize largest = window.size() * 2;
    if (const QScreen *shown = QGuiApplication::primaryScreen())
        largest = largest.expandedTo(shown->virtualSize());
    const bool hasSize = geometry.width() > 0 && geometry.height() > 0 &&
                         geometry.width() <= largest.width() &&
                         geometry.height() <= largest.height();
    if (floating)
        return hasSize;
    return area != Qt::NoDockWidgetArea && (hasSize || geometry.isNull());
}

bool ZvDockRecord::isOfTheseScreens(QMainWindow *window) const
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    const bool isKnown =
        std::any_of(screens.cbegin(), screens.cend(),
                    [this](const QScreen *known) { return known->geometry() == screen; });
    return isKnown && std::abs(dpiRatio - ZvSystemInfo::getDpiRatio(window)) < c_sameRatio;
}

/// Whether enough of the title bar lies on a screen to take hold of it.
bool ZvDockRecord::canBeReached() const
{
    const QRect title(geometry.topLeft(), QSize(geometry.width(), c_titleHeight));
    const QList<QScreen *> screens = QGuiApplication::screens();
    return std::any_of(screens.cbegin(), screens.cend(), [&title](const QScreen *known) {
        const QRect shown = known->availableGeometry().intersected(title);
        return shown.width() >= c_reachableHandle.width() &&
               shown.height() >= c_reachableHandle.height();
    });
}

} // namespace Zavo
