#include "domain/ActionLookup.h"

#include <QAction>

#include <algorithm>

namespace Zavo {

QAction *findActionByName(const QList<QAction *> &actions, const QString &name)
{
    const auto found =
        std::find_if(actions.cbegin(), actions.cend(),
                     [&name](const QAction *action) { return action->objectName() == name; });
    return found == actions.cend() ? nullptr : *found;
}

QList<QAction *> findActionsByName(const QList<QAction *> &actions, const QStringList &names)
{
    QList<QAction *> found;
    for (const QString &name : names) {
        if (QAction *action = findActionByName(actions, name))
            found.append(action);
    }
    return found;
}

} // namespace Zavo
