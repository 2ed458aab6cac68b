#pragma once

#include <QList>
#include <QStringList>

class QAction;

namespace Zavo {

/// For each of @p names, in their order, the first of @p actions whose object name equals it,
/// case-sensitively. A name without an action adds nothing; a name given twice yields its action
/// twice.
QList<QAction *> findActionsByName(const QList<QAction *> &actions, const QStringList &names);

/// The first of @p actions with the object name @p name, or null.
QAction *findActionByName(const QList<QAction *> &actions, const QString &name);

} // namespace Zavo
