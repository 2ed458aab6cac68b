#pragma once

/// Object names of the workspace's widgets.
namespace Zavo::WorkspaceName {

inline constexpr char ToolBar[] = "ScheduleToolBar";
inline constexpr char TabWidget[] = "ScheduleTabWidget";

} // namespace Zavo::WorkspaceName
