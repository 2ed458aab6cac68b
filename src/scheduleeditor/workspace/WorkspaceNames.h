#pragma once

namespace Zavo {

/// Object names of the workspace's widgets.
namespace WorkspaceName {

inline constexpr char ToolBar[] = "ScheduleToolBar";
inline constexpr char TabWidget[] = "ScheduleTabWidget";

} // namespace WorkspaceName

} // namespace Zavo
