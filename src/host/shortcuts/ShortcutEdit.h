#pragma once

#include <QKeySequenceEdit>

namespace Zavo {

/// A field that takes keys and tells of each at once, without the pause in which another could
/// follow.
class ShortcutEdit final : public QKeySequenceEdit
{
    Q_OBJECT

public:
    using QKeySequenceEdit::QKeySequenceEdit;

Q_SIGNALS:
    /// A key was pressed; @p sequence is what was pressed so far, never empty.
    void typed(const QKeySequence &sequence);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace Zavo
