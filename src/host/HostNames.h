#pragma once

/// Names by which the program finds what is the editor's, and the editor what is the program's.
namespace Zavo::HostNames {

constexpr char helpMenu[] = "Menu_Help";
constexpr char toolsMenu[] = "Menu_Tools";
constexpr char configurationAction[] = "Action_Configuration";
constexpr char checkAction[] = "Action_Check_Data";
constexpr char tabWidget[] = "ScheduleTabWidget";
constexpr char saveAction[] = "Action_Save_Channel";
constexpr char saveAllAction[] = "Action_Save_All_Channel";
constexpr char aboutAction[] = "Action_About";
constexpr char aboutQtAction[] = "Action_About_Qt";
constexpr char shortcutsAction[] = "Action_Keyboard_Shortcuts";
constexpr char newScheduleAction[] = "Action_New_Schedule";
constexpr char scheduleListDock[] = "ScheduleListDock";
constexpr char guideAction[] = "Action_Users_Guide";
constexpr char whatsThisAction[] = "Action_Whats_This";

/// Keys of the user settings.
constexpr char dataFolderKey[] = "data_folder";
constexpr char languageKey[] = "language";

constexpr char configurationDialog[] = "ConfigurationDialog";
constexpr char languageBox[] = "ConfigurationLanguage";
constexpr char dataFolderField[] = "ConfigurationDataFolder";
constexpr char allInOneBox[] = "ConfigurationAllInOne";
constexpr char defaultFirstBox[] = "ConfigurationDefaultScheduleUsedFirst";
constexpr char removingDurationBox[] = "ConfigurationRemovingDuration";

constexpr char channelConfigurationDialog[] = "ChannelConfigurationDialog";
constexpr char channelTree[] = "ChannelConfigurationTree";

} // namespace Zavo::HostNames
