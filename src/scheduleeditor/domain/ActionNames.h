#pragma once

namespace Zavo {

/// Object names of the menus and actions. They are the keys by which all widgets reach the shared
/// QAction objects, so they never change.
namespace ActionName {

inline constexpr char SaveChannel[] = "Action_Save_Channel";
inline constexpr char SaveAllChannel[] = "Action_Save_All_Channel";

inline constexpr char Undo[] = "Action_Undo";
inline constexpr char Redo[] = "Action_Redo";
inline constexpr char Cut[] = "Action_Cut";
inline constexpr char Copy[] = "Action_Copy";
inline constexpr char Paste[] = "Action_Paste";
inline constexpr char Delete[] = "Action_Delete";
inline constexpr char SelectAll[] = "Action_Select_All";
inline constexpr char DeselectAll[] = "Action_Deselect_All";

inline constexpr char Upload[] = "Action_Upload";
inline constexpr char OutputChannelData[] = "Action_Output_Channel_Data";
inline constexpr char ShowLogFile[] = "Action_Show_Log_File";
inline constexpr char OpenLogFolder[] = "Action_OPen_Log_Folder";
inline constexpr char CreateSchedule[] = "Action_Create_Schedule";
inline constexpr char DeleteSchedule[] = "Action_Delete_Schedule";
inline constexpr char RenameChannel[] = "Action_Rename_Channel";
inline constexpr char ChangeChannelOrder[] = "Action_Change_Channel_Order";
inline constexpr char CreateChannel[] = "Action_Create_Channel";
inline constexpr char DeleteChannel[] = "Action_Delete_Channel";
inline constexpr char DeleteChannelsSettings[] = "Action_Delete_Channels_Settings";
inline constexpr char ShowChannelInformation[] = "Action_Show_Channel_Information";
inline constexpr char ChannelConfiguration[] = "Action_Channel_Configuration";

inline constexpr char SetVisibleSwitchSchedule[] = "Action_Set_Visible_Switch_Schedule";
inline constexpr char SetVisibleScheduleList[] = "Action_Set_Visible_Schedule_List";
inline constexpr char SetVisibleChooseStage[] = "Action_Set_Visible_Choose_Stage";
inline constexpr char SetVisibleItemProperty[] = "Action_Set_Visible_Item_Property";
inline constexpr char WindowToDefaultPosition[] = "Action_Window_To_Default_Position";

inline constexpr char ChangeChannelName[] = "Action_Change_Channel_Name";
inline constexpr char CloseStage[] = "Action_Close_Stage";

} // namespace ActionName

namespace MenuName {

inline constexpr char Edit[] = "Menu_Edit";
inline constexpr char Calendar[] = "Menu_Calendar";
inline constexpr char Channel[] = "Menu_Channel";
inline constexpr char Window[] = "Menu_Window";
inline constexpr char Help[] = "Menu_Help";

} // namespace MenuName

} // namespace Zavo
