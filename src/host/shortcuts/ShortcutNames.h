#pragma once

/// Object names and the settings group of the keyboard shortcuts.
namespace Zavo::ShortcutNames {

/// The group in the user settings; a key of it is the id of a command, a value its keys.
constexpr char settingsGroup[] = "shortcuts";

constexpr char dialog[] = "ShortcutDialog";
constexpr char filterField[] = "ShortcutFilter";
constexpr char tree[] = "ShortcutTree";
constexpr char keyField[] = "ShortcutKeys";
constexpr char clearButton[] = "ShortcutClear";
constexpr char resetButton[] = "ShortcutReset";
constexpr char resetAllButton[] = "ShortcutResetAll";
constexpr char problemLabel[] = "ShortcutProblem";
constexpr char reassignButton[] = "ShortcutReassign";

} // namespace Zavo::ShortcutNames
