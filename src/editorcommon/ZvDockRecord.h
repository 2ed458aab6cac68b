#pragma once

#include <QRect>
#include <QString>
#include <Qt>

#include <optional>

class QDockWidget;
class QMainWindow;

namespace Zavo {

/// Where one dock is, as it is kept in the user's settings.
struct ZvDockRecord
{
    Qt::DockWidgetArea area = Qt::NoDockWidgetArea;
    bool floating = false;
    bool visible = true;
    /// On the screen if the dock floats; otherwise only the size counts, null if it is unknown.
    QRect geometry;
    /// Place among all docks of the window.
    int order = 0;
    /// Geometry of the screen and DPI ratio that all this was seen on.
    QRect screen;
    double dpiRatio = 1.0;

    static ZvDockRecord of(QDockWidget *dock, QMainWindow *window);

    /// What is stored for @p dock, if it can be shown in @p window today: nothing if it is damaged,
    /// or comes from screens other than those at hand.
    static std::optional<ZvDockRecord> load(QDockWidget *dock, QMainWindow *window);

    void save(const QString &dockName) const;

private:
    static std::optional<ZvDockRecord> read(const QString &dockName);
    bool isUsableIn(const QMainWindow &window) const;
    bool isOfTheseScreens(QMainWindow *window) const;
    bool canBeReached() const;
};

} // namespace Zavo
