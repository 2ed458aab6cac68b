#pragma once

/// Object names of the workspace's widgets.
namespace Zavo::WorkspaceName {

inline constexpr char ToolBar[] = "ScheduleToolBar";
/// The button that opens what a narrow tool bar has no room for.
inline constexpr char ToolBarExtension[] = "qt_toolbar_ext_button";
inline constexpr char TabWidget[] = "ScheduleTabWidget";

} // namespace Zavo::WorkspaceName
