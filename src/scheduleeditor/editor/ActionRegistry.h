#pragma once

#include <QAction>
#include <QList>
#include <QMenu>
#include <QPointer>

namespace Zavo {

/// Every menu and every action of the component, in the order in which they are shown or were made,
/// found again by their object names. It owns the menus, which own their actions. A menu or an
/// action that someone else deleted is no longer there.
class ActionRegistry final
{
    Q_DISABLE_COPY(ActionRegistry)

public:
    ActionRegistry() = default;

    /// Deletes all menus but the help menu, which is the host's.
    ~ActionRegistry();

    /// All menus, in the order in which the host shows them.
    QList<QMenu *> menus() const;

    /// All actions, in the order of their creation.
    QList<QAction *> actions() const;

    /// The first menu of this object name, or null.
    QMenu *menu(const QString &name) const;

    /// The first action of this object name, or null.
    QAction *action(const QString &name) const;

    void addMenu(QMenu *menu);
    void addAction(QAction *action);

    /// Puts @p menu before the channel menu; without one before the last menu. Nothing happens for
    /// null or a menu that is there already.
    void setCalendarMenu(QMenu *menu);

    /// Puts @p menu last. Nothing happens for null or a menu that is there already.
    void setHelpMenu(QMenu *menu);

    /// Takes the first menu of this object name out and gives it to the caller; null if there is
    /// none.
    QMenu *takeMenu(const QString &name);

    /// Deletes @p menu with its actions and, in the same way, its submenus.
    static void deleteMenuAndAction(QMenu *menu);

private:
    int indexOf(const QString &name) const;

    QList<QPointer<QMenu>> m_menus;
    QList<QPointer<QAction>> m_actions;
};

} // namespace Zavo
