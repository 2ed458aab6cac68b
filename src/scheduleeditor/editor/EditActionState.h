#pragma once

class QUndoStack;

namespace Zavo {

class ActionRegistry;
class ZvScheduleCommonInterface;

/// Enables each edit action whose command is possible now. @p activated is what the commands act on
/// and @p stack what undo and redo act on; null stands for none.
void updateEditActions(const ActionRegistry &registry, const ZvScheduleCommonInterface *activated,
                       const QUndoStack *stack);

} // namespace Zavo
