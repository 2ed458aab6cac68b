#pragma once

namespace Zavo {

/// Object names of the docks. Their geometry is stored under them, so they never change.
namespace DockName {

inline constexpr char SwitchSchedule[] = "SwitchScheuleDock";
inline constexpr char ScheduleList[] = "ScheduleListDock";
inline constexpr char ChooseStage[] = "ChooseStageDock";
inline constexpr char ItemProperty[] = "ScheduleItemPropertyDock";

} // namespace DockName

/// Keys of the user's settings that the docks' contents leave for the next start.
namespace DockSettingsKey {

/// bool: whether the stage chooser shows its preview.
inline constexpr char StagePreviewVisible[] = "schedule_chooser_stage_preview_visible";

/// int: which kind of schedule was switched to last, as ZvSchedule::ScheduleTypes.
inline constexpr char LastSelectedType[] = "schedule_last_selected_type";

} // namespace DockSettingsKey

} // namespace Zavo
