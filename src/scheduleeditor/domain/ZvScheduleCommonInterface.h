#pragma once

#include <QFlags>

namespace Zavo {

/// What a widget offers that can hold a selection of its own: the edit commands of the menu act on
/// whichever such widget was activated last. A mixin beside a QWidget base, reached by a run-time
/// cast and never owned through this type.
class ZvScheduleCommonInterface
{
public:
    /// One flag for each edit command that the present selection allows.
    enum SelectedTypeFlag {
        SelectedCopy = 1,
        SelectedCut = 2,
        SelectedDelete = 4,
        SelectedSelectAll = 8,
        SelectedDeselectAll = 16
    };
    /// Any of these flags together.
    Q_DECLARE_FLAGS(SelectedType, SelectedTypeFlag)

    /// The commands that are possible now; no flag if there is nothing to act on.
    virtual SelectedType hasSelectedItems() const = 0;
    /// Can be undone.
    virtual void deleteSelectedItems() = 0;
    /// Whether something was put on the clipboard; if not, the clipboard is as it was.
    virtual bool copySelectedItems() = 0;
    /// Whether something was cut.
    virtual bool cutSelectedItems() = 0;
    /// Whether the clipboard holds something that fits here.
    virtual bool isPastingPossible() const = 0;
    /// Whether something was pasted.
    virtual bool pasteItems() = 0;
    /// @{
    /// Selects all that can be selected, or nothing.
    virtual void selectAllItems() = 0;
    virtual void deselectAllItems() = 0;
    /// @}

protected:
    ZvScheduleCommonInterface() = default;
    ~ZvScheduleCommonInterface() = default;
    Q_DISABLE_COPY(ZvScheduleCommonInterface)
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ZvScheduleCommonInterface::SelectedType)

} // namespace Zavo
