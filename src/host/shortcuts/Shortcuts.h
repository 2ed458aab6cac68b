#pragma once

#include "shortcuts/ShortcutCommand.h"

#include <QStringList>

class QMainWindow;
class QMenuBar;

namespace Zavo {

/// The commands of a window's menus and the keys that a person gave them. Knows the window only by
/// its menu bar and its actions. To be made before any of their shortcuts is changed, and to die
/// before the window.
class Shortcuts final
{
    Q_DISABLE_COPY(Shortcuts)

public:
    /// Who stands in the way of a key sequence.
    struct Conflict
    {
        int command = -1; ///< the other command, or -1 if none can be helped out of the way
        QString reason;   ///< a sentence; empty if nothing stands in the way
        bool isNone() const { return reason.isEmpty(); }
    };

    explicit Shortcuts(const QMainWindow *window);

    /// True if the user settings hold keys that a person gave.
    static bool areStored();

    /// In the order of the menus.
    const QVector<ShortcutCommand> &commands() const { return m_commands; }

    ShortcutKeys keys() const;
    ShortcutKeys defaultKeys() const;

    /// What stands in the way of giving @p sequence to @p command while the keys are @p keys. Two
    /// sequences are in each other's way if one begins with the other. The empty one is free.
    Conflict conflict(const QKeySequence &sequence, int command, const ShortcutKeys &keys) const;

    /// @p sequences but for those that are in the way of one of @p wanted.
    static QList<QKeySequence> without(const QList<QKeySequence> &sequences,
                                       const QList<QKeySequence> &wanted);

    /// Gives the actions the keys of the user settings. What makes no sense there, or would leave
    /// two commands with one key, is passed over.
    void load();

    /// Gives the actions @p keys, one list for each command, and writes to the user settings what
    /// differs from the defaults.
    void store(const ShortcutKeys &keys);

private:
    void collect(const QList<QAction *> &entries, const QString &menuId, const QString &category);
    void apply(const ShortcutKeys &keys);
    QString reservedReason(const QKeySequence &sequence, int command) const;
    QList<QKeySequence> storedKeys(int command) const;
    void dropConflicts(ShortcutKeys *keys) const;

    const QMenuBar *m_menuBar = nullptr;
    QVector<ShortcutCommand> m_commands;
};

} // namespace Zavo
