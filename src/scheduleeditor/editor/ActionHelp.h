#pragma once

class QAction;

namespace Zavo {

/// Gives @p action of the main menu its status tip and its What's This text. @p key is its object
/// name or, for an entry that has none, the slot that it is connected to. Nothing happens for a key
/// that no entry has.
void setActionHelp(QAction *action, const char *key);

} // namespace Zavo
