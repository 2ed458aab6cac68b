#include "editor/EditActionState.h"

#include "domain/ActionNames.h"
#include "domain/ZvScheduleCommonInterface.h"
#include "editor/ActionRegistry.h"

#include <QUndoStack>

namespace Zavo {

void updateEditActions(const ActionRegistry &registry, const ZvScheduleCommonInterface *activated,
                       const QUndoStack *stack)
{
    using Selected = ZvScheduleCommonInterface;
    const Selected::SelectedType selected =
        activated ? activated->hasSelectedItems() : Selected::SelectedType();
    const bool pasting = activated && activated->isPastingPossible();
    const struct
    {
        const char *name;
        bool enabled;
    } states[] = {
        {ActionName::Undo, stack && stack->canUndo()},
        {ActionName::Redo, stack && stack->canRedo()},
        {ActionName::Copy, selected.testFlag(Selected::SelectedCopy)},
        {ActionName::Cut, selected.testFlag(Selected::SelectedCut)},
        {ActionName::Paste, pasting},
        {ActionName::Delete, selected.testFlag(Selected::SelectedDelete)},
        {ActionName::SelectAll, selected.testFlag(Selected::SelectedSelectAll)},
        {ActionName::DeselectAll, selected.testFlag(Selected::SelectedDeselectAll)},
    };
    for (const auto &state : states) {
        if (QAction *action = registry.action(QLatin1String(state.name)))
            action->setEnabled(state.enabled);
    }
}

} // namespace Zavo
