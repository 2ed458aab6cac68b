#pragma once

class QKeySequence;
class QMenuBar;
class QString;

namespace Zavo::ReservedKeys {

/// Why @p keys cannot be the shortcut of the command @p commandId, as a sentence: they move what is
/// selected in the time table, go through the window, write, or open a menu of @p menuBar. Empty if
/// they are free.
QString reason(const QKeySequence &keys, const QString &commandId, const QMenuBar *menuBar);

} // namespace Zavo::ReservedKeys
