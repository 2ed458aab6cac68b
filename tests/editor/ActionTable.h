#pragma once

#include "ActionHost.h"

namespace ZavoTest {

/// The widget that the edit commands act on.
enum class Activated { Nobody, MainWidget, Switcher, List };

using Effects = QMap<Target, const char *>;

/// One action, by its name, and what it does where it is enabled: the same to every target, or to
/// each its own. An edit command does what the activated widget makes of it.
struct ActionRow
{
    const char *name;
    const char *effect;
    Effects effects = {};
};

/// All actions in the order of the menus, and the one that only the tool bar has.
const QList<ActionRow> &actionTable();

/// Cut, copy, paste, delete, and those that select.
bool isEditCommand(const ActionRow &row);

/// What ActionHost::changesSince() is to tell; empty where the action is disabled.
QString expectedEffect(const ActionRow &row, Activated activated, Target target);

/// What @p changes hold of interest: which bands are selected and which schedules are marked is of
/// none where the command does not act on them.
QString relevantPart(const QString &changes, const ActionRow &row, Activated activated);

bool isExpectedEnabled(const QString &name, Activated activated, Target target);

/// Whether the entry of an open menu has a mark before it.
bool isExpectedChecked(const QString &name);

} // namespace ZavoTest
