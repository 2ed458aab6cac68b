#include "workspace/ZvScheduleMainWidget.h"

#include "timetable/ZvScheduleWorkingArea.h"
#include "workspace/ZvChannelInformationWidget.h"
#include "workspace/ZvScheduleChangeChannelOrderDialog.h"
#include "workspace/ZvScheduleTabWidget.h"

#include "ZvChannel.h"

// The two small windows about the current channel.
namespace Zavo {

void ZvScheduleMainWidget::showChangeChannelOrderDialog()
{
    if (!m_tabWidget || !endRename())
        return;
    const QPointer<ZvScheduleWorkingArea> area = currentWorkingArea();
    if (!area)
        return;
    const QList<ZvChannel *> targets = channelsToChangePlacesWith();
    // Not on the stack: the dialog runs an event loop, in which this may be deleted, and it too.
    const QPointer<ZvScheduleChangeChannelOrderDialog> dialog =
        new ZvScheduleChangeChannelOrderDialog(area->channel(), targets, this);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    const int target = dialog ? dialog->selectedIndex() : -1;
    delete dialog;
    if (!isAccepted || !area || target <= 0)
        return;
    const int from = m_tabWidget->indexOf(area);
    const int to = placeOfIndex(target, from);
    // The basic channel keeps its place.
    if (from > 0 && to > 0)
        moveTabTo(from, to);
}

QList<ZvChannel *> ZvScheduleMainWidget::channelsToChangePlacesWith() const
{
    QList<ZvChannel *> channels;
    for (int i = 1; i < m_tabWidget->count(); ++i) {
        const auto *area = qobject_cast<ZvScheduleWorkingArea *>(m_tabWidget->widget(i));
        if (area && i != m_tabWidget->currentIndex())
            channels.append(area->channel());
    }
    return channels;
}

// A channel that was deleted has left a hole in the indices, so the places are those of the tabs.
int ZvScheduleMainWidget::placeOfIndex(int channelIndex, int placeLeftOut) const
{
    for (int i = 1; i < m_tabWidget->count(); ++i) {
        const auto *area = qobject_cast<ZvScheduleWorkingArea *>(m_tabWidget->widget(i));
        if (area && i != placeLeftOut && area->channel()->index() == channelIndex)
            return i;
    }
    return -1;
}

void ZvScheduleMainWidget::moveTabTo(int from, int to)
{
    m_tabWidget->moveTab(from, to);
    m_tabWidget->onTabMoved(from, to);
    // The moved tab has stayed current; by the way round another tab everybody hears of its place.
    m_tabWidget->setCurrentIndex(from);
    m_tabWidget->setCurrentIndex(to);
}

void ZvScheduleMainWidget::showCurrentChannelInformation()
{
    if (!endRename())
        return;
    if (const ZvScheduleWorkingArea *area = currentWorkingArea())
        ZvChannelInformationWidget::showDialog(area->channel(), this);
}

} // namespace Zavo
