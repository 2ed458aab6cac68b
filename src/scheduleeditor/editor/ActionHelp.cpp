#include "editor/ActionHelp.h"

#include "domain/ActionNames.h"

#include <QAction>
#include <QCoreApplication>

#include <algorithm>
#include <cstring>

namespace Zavo {

namespace {

constexpr char HelpContext[] = "Zavo::ActionHelp";

struct HelpRow
{
    const char *key;
    const char *statusTip;
    const char *whatsThis;
};

constexpr HelpRow HelpRows[] = {
    {ActionName::SaveChannel,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Saves the channel of the current tab"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Writes the channel of the current tab to its file. The file is replaced in "
                       "one step, so that it is never half-written.")},
    {ActionName::SaveAllChannel,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Saves the channels of all tabs"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Writes the channel of each tab to its file.")},
    {"close()",
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Closes the schedule editor and asks about unsaved channels"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Closes the schedule editor. You are asked about each "
                                           "channel with changes that are not saved.")},
    {"quit()",
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Ends the program and asks about unsaved channels"),
     QT_TRANSLATE_NOOP(
         "Zavo::ActionHelp",
         "Ends the program. You are asked about each channel with changes that are not saved.")},
    {ActionName::Undo,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Takes back the last change of this channel"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Takes back the last change of the channel of the current tab, and shows "
                       "the schedule that it was made in. Each channel has a history of its own.")},
    {ActionName::Redo,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Makes the change again that was undone last"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Makes the change of this channel again that was undone "
                                           "last, and shows the schedule that it belongs to.")},
    {ActionName::Cut, QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Moves the selection to the clipboard"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Moves what is selected to the clipboard: stages in the time table, dates "
                       "or a day of the week in Switch Schedule, or the checked rows of the "
                       "Schedule List. What you used last counts.")},
    {ActionName::Copy,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Copies the selection to the clipboard"),
     QT_TRANSLATE_NOOP(
         "Zavo::ActionHelp",
         "Copies what is selected to the clipboard: stages in the time table, whole schedules in "
         "Switch Schedule, or the checked rows of the Schedule List. What you used last counts.")},
    {ActionName::Paste, QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Inserts what is on the clipboard"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Inserts stages into the time table, or schedules at the selected date or "
                       "day. You are asked before a schedule is replaced.")},
    {ActionName::Delete, QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Deletes the selection"),
     QT_TRANSLATE_NOOP(
         "Zavo::ActionHelp",
         "Deletes what is selected: stages in the time table, schedules in Switch Schedule, or the "
         "checked rows of the Schedule List. The default schedule cannot be deleted.")},
    {ActionName::SelectAll,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Selects everything in the time table or the Schedule List"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Selects all stages of the time table, or checks all "
                                           "rows of the Schedule List, whichever you used last.")},
    {ActionName::DeselectAll,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Selects nothing in the time table or the Schedule List"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Takes the selection off all stages of the time table, or the check marks "
                       "off all rows of the Schedule List, whichever you used last.")},
    {ActionName::Upload,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Sends the channels and their stages to the displays"),
     QT_TRANSLATE_NOOP(
         "Zavo::ActionHelp",
         "Opens the upload manager, which sends the saved channels and the stages they use to the "
         "upload targets. You are asked about unsaved channels first.")},
    {ActionName::OutputChannelData,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Exports the channel of the current tab to a file"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Exports the channel of the current tab, as it was "
                                           "saved last, to a file that other programs can read.")},
    {ActionName::ShowLogFile,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Opens the log of the last upload"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Opens the log that tells how the last upload went.")},
    {ActionName::OpenLogFolder,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Opens the folder with the logs of the uploads"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Opens the folder with the logs of the last upload and of those before.")},
    {ActionName::CreateSchedule,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Creates the schedule that is chosen in Switch Schedule"),
     QT_TRANSLATE_NOOP(
         "Zavo::ActionHelp",
         "Creates a schedule for the date or the day of the week that is chosen in Switch "
         "Schedule, if it has none. Stages can be dropped only on a schedule that exists.")},
    {ActionName::DeleteSchedule,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Deletes the schedule that is shown"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Deletes the schedule in the time table with all its stages, after a "
                       "question. The default schedule cannot be deleted.")},
    {ActionName::RenameChannel,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Changes the name of the channel in its tab"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Opens the name in the current tab for editing. Enter takes the new name "
                       "over. Two channels cannot have the same name.")},
    {ActionName::ChangeChannelOrder,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Moves the tab of the channel to another place"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Moves the current tab to the place of another one. The first channel keeps "
                       "its place. This cannot be undone.")},
    {ActionName::CreateChannel,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Adds a channel with an empty default schedule"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Adds a channel with an empty default schedule behind "
                                           "the last tab. Its file is written at once.")},
    {ActionName::DeleteChannel,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Deletes the channel of the current tab with its file"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Deletes the channel of the current tab with its file, after a question. "
                       "The first channel cannot be deleted. This cannot be undone.")},
    {ActionName::DeleteChannelsSettings,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Deletes all channels and closes the editor"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Deletes every channel file and the settings of the channels, after a "
                       "question, and closes the editor. The next start begins with ten empty "
                       "channels. This cannot be undone.")},
    {ActionName::ShowChannelInformation,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Shows the id, place and number of schedules of the channel"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Shows the id, the name and the place of the current "
                                           "channel, and how many schedules of each kind it has.")},
    {ActionName::ChannelConfiguration,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Chooses which channels are uploaded"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Lists the saved channels and chooses which of them are uploaded.")},
    {ActionName::SetVisibleSwitchSchedule,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Shows or hides the panel for choosing a schedule"),
     QT_TRANSLATE_NOOP(
         "Zavo::ActionHelp",
         "Shows or hides Switch Schedule, the panel where you choose which schedule is in the time "
         "table: that of a date, of a day of the week, or the default one.")},
    {ActionName::SetVisibleScheduleList,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Shows or hides the list of all schedules"),
     QT_TRANSLATE_NOOP(
         "Zavo::ActionHelp",
         "Shows or hides the Schedule List, with a row for each schedule of the channel.")},
    {ActionName::SetVisibleChooseStage,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Shows or hides the panel with the stages"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Shows or hides Choose Stage, the panel from which "
                                           "stages are dragged to the time table.")},
    {ActionName::SetVisibleItemProperty,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp",
                       "Shows or hides the panel with the times of the selected stage"),
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Shows or hides the panel in which the start and the "
                                           "end of the selected stage are typed to the second.")},
    {ActionName::WindowToDefaultPosition,
     QT_TRANSLATE_NOOP("Zavo::ActionHelp", "Puts all panels back to their places"),
     QT_TRANSLATE_NOOP(
         "Zavo::ActionHelp",
         "Shows all panels at the places and in the sizes that they had at the first start.")},
};

QString helpText(const char *text)
{
    return QCoreApplication::translate(HelpContext, text);
}

} // namespace

void setActionHelp(QAction *action, const char *key)
{
    const auto *const row =
        std::find_if(std::begin(HelpRows), std::end(HelpRows),
                     [key](const HelpRow &candidate) { return !std::strcmp(candidate.key, key); });
    if (row == std::end(HelpRows))
        return;
    action->setStatusTip(helpText(row->statusTip));
    action->setWhatsThis(helpText(row->whatsThis));
}

} // namespace Zavo
