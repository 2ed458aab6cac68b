#pragma once

#include <QAction>
#include <QKeySequence>
#include <QList>
#include <QPointer>
#include <QString>
#include <QVector>

namespace Zavo {

/// A command of the window's menus.
struct ShortcutCommand
{
    QPointer<QAction> action;
    QString id; ///< the same in every language and at every start
    QString category;
    QString name;
    QList<QKeySequence> defaults; ///< what the action had before any change
};

/// The keys of each command, in the order of the commands.
using ShortcutKeys = QVector<QList<QKeySequence>>;

} // namespace Zavo
