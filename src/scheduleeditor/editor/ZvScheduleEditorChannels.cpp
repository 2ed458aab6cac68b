#include "editor/ZvScheduleEditor.h"

#include "editor/ChannelReset.h"
#include "editor/UploadLog.h"
#include "workspace/ZvScheduleMainWidget.h"

#include <QMainWindow>

// The commands of the channel menu that open a window of their own.
namespace Zavo {

QDir ZvScheduleEditor::getUploadLogDir()
{
    return UploadLog::folder();
}

void ZvScheduleEditor::openUploadLogDir()
{
    UploadLog(m_mainWindow).openFolder();
}

void ZvScheduleEditor::showUploadLogFile()
{
    UploadLog(m_mainWindow).showFile();
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
