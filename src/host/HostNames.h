#pragma once

/// Names by which the program finds what is the editor's, and the editor what is the program's.
namespace Zavo::HostNames {

constexpr char helpMenu[] = "Menu_Help";
constexpr char tabWidget[] = "ScheduleTabWidget";

/// The actions behind which lies something that this program does not offer.
constexpr const char *actionsNotOffered[] = {
    "Action_Output_Channel_Data",
    "Action_Channel_Configuration",
};

} // namespace Zavo::HostNames
