#pragma once

/// Object names of what is shown for safety's sake.
namespace Zavo::SafetyNames {

constexpr char copiesAction[] = "Action_Safety_Copies";
constexpr char noticeBar[] = "Safety_Notice_Bar";
/// The button that opens what the bar has no room for.
constexpr char noticeExtension[] = "qt_toolbar_ext_button";
constexpr char noticeLabel[] = "Safety_Notice_Label";
constexpr char noticeCloseAction[] = "Action_Close_Safety_Notice";
constexpr char channelList[] = "Safety_Channel_List";
constexpr char stateTree[] = "Safety_State_Tree";
constexpr char restoreButton[] = "Safety_Restore_Button";

} // namespace Zavo::SafetyNames
