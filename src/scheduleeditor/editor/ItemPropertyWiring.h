#pragma once

class QDockWidget;

namespace Zavo {

class ZvScheduleMainWidget;

/// Makes an item property panel the content of @p dock, which owns it, shows in it what is selected
/// in @p mainWidget and takes its changes there.
void fillItemPropertyDock(QDockWidget *dock, ZvScheduleMainWidget *mainWidget);

} // namespace Zavo
