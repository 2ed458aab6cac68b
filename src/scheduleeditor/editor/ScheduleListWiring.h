#pragma once

class QDockWidget;

namespace Zavo {

class EditStateWatch;
class ZvScheduleEditor;
class ZvScheduleMainWidget;
class ZvScheduleSwitcherWidget;

/// Makes the schedule list, gives it to @p dock, and connects it with @p editor, with @p mainWidget
/// for its commands and with @p switcher, which tells it about channel and schedules. @p editState
/// follows its check marks.
void fillScheduleListDock(QDockWidget *dock, ZvScheduleEditor *editor,
                          ZvScheduleMainWidget *mainWidget, ZvScheduleSwitcherWidget *switcher,
                          EditStateWatch *editState);

} // namespace Zavo
