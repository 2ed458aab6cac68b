#pragma once

class QDockWidget;

namespace Zavo {

class ZvScheduleMainWidget;
class ZvScheduleStageChooserWidget;

/// Makes a stage chooser the content of @p dock, which owns it, and takes what it asks for to
/// @p mainWidget.
ZvScheduleStageChooserWidget *fillStageDock(QDockWidget *dock, ZvScheduleMainWidget *mainWidget);

} // namespace Zavo
