#include "editor/ZvScheduleEditor.h"

#include "editor/ChannelReset.h"
#include "editor/ShownUploadLog.h"
#include "workspace/ZvScheduleMainWidget.h"

#include <QMainWindow>

// The commands on channels: saving them, and what the channel menu offers.
namespace Zavo {

void ZvScheduleEditor::action_save_channel()
{
    if (m_mainWidget)
        m_mainWidget->saveCurrentChannel();
}

void ZvScheduleEditor::action_save_all_channel()
{
    if (m_mainWidget)
        m_mainWidget->saveAllChannel();
}

void ZvScheduleEditor::action_upload()
{
    showUploadManager();
}

void ZvScheduleEditor::action_output_channel_data()
{
    showChannelExporter();
}

void ZvScheduleEditor::action_create_schedule()
{
    if (m_mainWidget)
        m_mainWidget->createScheduleByCurrentInfoWithUndo();
}

void ZvScheduleEditor::action_delete_schedule()
{
    if (m_mainWidget)
        m_mainWidget->removeScheduleByCurrentInfoWithUndo();
}

void ZvScheduleEditor::action_rename_channel()
{
    if (m_mainWidget)
        m_mainWidget->toEditTabName();
}

void ZvScheduleEditor::action_create_channel()
{
    if (m_mainWidget)
        m_mainWidget->addNewChannel();
}

void ZvScheduleEditor::action_delete_channel()
{
    if (m_mainWidget)
        m_mainWidget->removeCurrentChannel();
}

void ZvScheduleEditor::action_channel_configuration()
{
    showChannelConfiguration();
}

// What opens a window of its own

QDir ZvScheduleEditor::getUploadLogDir()
{
    return ShownUploadLog::folder();
}

void ZvScheduleEditor::openUploadLogDir()
{
    ShownUploadLog(m_mainWindow).openFolder();
}

void ZvScheduleEditor::showUploadLogFile()
{
    ShownUploadLog(m_mainWindow).showFile();
}

// The questions run an event loop, in which the host may go.
void ZvScheduleEditor::removeAllChannelsAndSettings()
{
    const QPointer<ZvScheduleEditor> self(this);
    const bool isDone = ChannelReset(m_mainWindow).run();
    if (!self || !isDone)
        return;
    m_saveOnClose = false;
    close();
}

void ZvScheduleEditor::action_show_log_file()
{
    showUploadLogFile();
}

void ZvScheduleEditor::action_open_log_folder()
{
    openUploadLogDir();
}

void ZvScheduleEditor::action_delete_channels_settings()
{
    removeAllChannelsAndSettings();
}

void ZvScheduleEditor::action_change_channel_order()
{
    if (m_mainWidget)
        m_mainWidget->showChangeChannelOrderDialog();
}

void ZvScheduleEditor::action_show_channel_information()
{
    if (m_mainWidget)
        m_mainWidget->showCurrentChannelInformation();
}

} // namespace Zavo
