#include "editor/ChannelReset.h"

#include "domain/MessageBox.h"
#include "workspace/ChannelFolder.h"

#include "ZvEditorConfig.h"

namespace Zavo {

ChannelReset::ChannelReset(QWidget *window)
    : m_window(window)
{
}

bool ChannelReset::confirm(const QString &title) const
{
    return showMessageBox(m_window, QMessageBox::Warning, title,
                          tr("All channels and channel settings will be deleted.\nThis operation "
                             "can not be undone.\n\nAre you sure you want to delete all?"),
                          QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

bool ChannelReset::run() const
{
    const ChannelFolder folder(ZvEditorConfig::dataDir());
    const QString title = tr("Delete All Channels and Settings");
    if (!folder.exists()) {
        showMessageBox(m_window, QMessageBox::Critical, title,
                       tr("The channel folder does not exist."));
        return false;
    }
    if (!confirm(title))
        return false;
    const QString remainder =
        folder.removeAllFiles() ? QString() : QStringLiteral("(Some file has not be deleted.)");
    showMessageBox(m_window, QMessageBox::Information, title,
                   tr("Delete Completed.%1\n\nSchedule Editor will be closed.").arg(remainder));
    return true;
}

} // namespace Zavo
