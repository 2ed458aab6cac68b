#pragma once

class QObject;

namespace Zavo {

class ActionRegistry;

/// Creates the menus of the component with all their actions, enters both in @p registry and
/// connects each action to the slot of @p receiver that its row names.
void createMainMenu(ActionRegistry *registry, QObject *receiver);

} // namespace Zavo
