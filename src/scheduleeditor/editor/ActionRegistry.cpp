#include "editor/ActionRegistry.h"

#include "domain/ActionLookup.h"
#include "domain/ActionNames.h"

namespace Zavo {

namespace {

template<typename T>
QList<T *> alive(const QList<QPointer<T>> &list)
{
    QList<T *> result;
    for (const QPointer<T> &object : list) {
        if (object)
            result.append(object);
    }
    return result;
}

} // namespace

ActionRegistry::~ActionRegistry()
{
    takeMenu(QLatin1String(MenuName::Help));
    for (const QPointer<QMenu> &menu : qAsConst(m_menus))
        deleteMenuAndAction(menu);
}

QList<QMenu *> ActionRegistry::menus() const
{
    return alive(m_menus);
}

QList<QAction *> ActionRegistry::actions() const
{
    return alive(m_actions);
}

int ActionRegistry::indexOf(const QString &name) const
{
    for (int i = 0; i < m_menus.size(); ++i) {
        if (m_menus.at(i) && m_menus.at(i)->objectName() == name)
            return i;
    }
    return -1;
}

QMenu *ActionRegistry::menu(const QString &name) const
{
    return m_menus.value(indexOf(name));
}

QAction *ActionRegistry::action(const QString &name) const
{
    return findActionByName(actions(), name);
}

void ActionRegistry::addMenu(QMenu *menu)
{
    m_menus.append(menu);
}

void ActionRegistry::addAction(QAction *action)
{
    m_actions.append(action);
}

void ActionRegistry::setCalendarMenu(QMenu *menu)
{
    if (!menu || m_menus.contains(menu))
        return;
    const int channelMenu = indexOf(QLatin1String(MenuName::Channel));
    const int beforeLast = qMax(0, m_menus.size() - 1);
    m_menus.insert(channelMenu < 0 ? beforeLast : channelMenu, menu);
}

void ActionRegistry::setHelpMenu(QMenu *menu)
{
    if (menu && !m_menus.contains(menu))
        m_menus.append(menu);
}

QMenu *ActionRegistry::takeMenu(const QString &name)
{
    const int index = indexOf(name);
    return index < 0 ? nullptr : m_menus.takeAt(index).data();
}

void ActionRegistry::deleteMenuAndAction(QMenu *menu)
{
    if (!menu)
        return;
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (action->menu())
            deleteMenuAndAction(action->menu());
        else
            delete action;
    }
    delete menu;
}

} // namespace Zavo
