#pragma once

/// Object names and settings keys of the stage dock. People's settings and style sheets hold them,
/// so they never change.
namespace Zavo::StagesName {

inline constexpr char SetAsDefaultStage[] = "Action_Set_As_Default_Stage";
inline constexpr char SetSwitchingInterval[] = "Action_Set_Switching_Interval_Default_Stage";

/// Object name of the settings page, and the group of its settings.
inline constexpr char SwitchSettings[] = "ZvSchedulerAutoStageSwichSettingWidget";
inline constexpr char Interval[] = "Interval";
inline constexpr char FromTime[] = "FromTime";
inline constexpr char ToTime[] = "ToTime";

} // namespace Zavo::StagesName
