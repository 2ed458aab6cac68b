#include "shortcuts/ShortcutEdit.h"

namespace Zavo {

// A modifier alone leaves the field empty.
void ShortcutEdit::keyPressEvent(QKeyEvent *event)
{
    QKeySequenceEdit::keyPressEvent(event);
    const QKeySequence sequence = keySequence();
    if (!sequence.isEmpty())
        Q_EMIT typed(sequence);
}

} // namespace Zavo
