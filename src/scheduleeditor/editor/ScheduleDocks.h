#pragma once

#include <QList>
#include <QPointer>
#include <QString>

#include <array>

class QDockWidget;
class QMainWindow;
class QObject;

namespace Zavo {

/// The four docks of the editor: their frames, their places and sizes in the window, and what the
/// next start is to know of these. What the docks hold is not its concern; a dock without content
/// has its place all the same.
///
/// It owns the docks until attach() gives them to the window, and deletes at its end those that are
/// left. Placing and sizing run the event loop, in which anything may be deleted.
class ScheduleDocks final
{
    Q_DISABLE_COPY(ScheduleDocks)

public:
    /// In the order in which the docks are placed, kept and given up.
    enum Which { SwitchSchedule, ScheduleList, ChooseStage, ItemProperty };

    /// @p window may be null: then the docks are made, but never placed.
    explicit ScheduleDocks(QMainWindow *window);
    ~ScheduleDocks();

    /// The dock, or null before create() and after giveUp().
    QDockWidget *dock(Which which) const;

    /// True from the first attach() to giveUp().
    bool isAttached() const { return m_attached; }

    /// True if people see the dock: not if it is hidden, nor behind another tab of its group.
    bool isInFront(Which which) const;

    /// Makes the frame of a dock, whose events @p filter sees from then on.
    QDockWidget *create(Which which, QObject *filter);

    /// Puts all docks where they belong by default. The schedule list is hidden behind the tab of
    /// the switcher.
    void attach();

    /// Gives all docks the sizes that go with the window's height and the ratio of its screen.
    void setDefaultSizes();

    /// Forces a size on @p dock, in pixels; 0 or less leaves it as it is in that direction. The
    /// limits of the dock are afterwards what they were. Nothing happens for null.
    static void changeDockWidgetSize(QDockWidget *dock, int width, int height);

    /// Brings the docks back to where store() found them; @p name is the key of their tab groups.
    void restore(const QString &name);
    void store(const QString &name) const;

    /// Takes the docks out of the window and deletes them from the event loop.
    void giveUp();

    /// Fits the title buttons of @p dock to the ratio of its screen.
    static void scaleButtons(QDockWidget *dock);

private:
    static constexpr int Count = 4;

    QList<QDockWidget *> docks() const;
    void takeHome(QDockWidget *dock) const;
    void place();
    void showPlaced();

    QPointer<QMainWindow> m_window;
    std::array<QPointer<QDockWidget>, Count> m_docks;
    bool m_attached = false;
};

} // namespace Zavo
