#pragma once

class QDockWidget;

namespace Zavo {

class EditStateWatch;
class ZvScheduleEditor;
class ZvScheduleMainWidget;
class ZvScheduleSwitcherWidget;

/// Makes the switcher, gives it to @p dock, and connects it with @p editor and @p mainWidget. The
/// calendar menu becomes one of the editor's menus, and
/// @p editState follows the switcher's selection.
ZvScheduleSwitcherWidget *fillSwitchDock(QDockWidget *dock, ZvScheduleEditor *editor,
                                         ZvScheduleMainWidget *mainWidget,
                                         EditStateWatch *editState);

} // namespace Zavo
