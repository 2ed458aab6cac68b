#include "workspace/ChannelSaver.h"

#include "domain/MessageBox.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "workspace/ChannelFolder.h"
#include "workspace/SavePrompt.h"

#include "ZvChannel.h"

namespace Zavo {

namespace {

QList<QPointer<ZvScheduleWorkingArea>> guardedAreas(const QList<ZvScheduleWorkingArea *> &areas)
{
    QList<QPointer<ZvScheduleWorkingArea>> guarded;
    for (ZvScheduleWorkingArea *area : areas)
        guarded.append(area);
    return guarded;
}

} // namespace

ChannelSaver::ChannelSaver(QWidget *messageParent)
    : m_messageParent(messageParent)
{
}

void ChannelSaver::storeTable(ZvScheduleWorkingArea *area)
{
    if (area->isCurrentScheduleEnabled())
        area->storeCurrentSchedule();
}

bool ChannelSaver::saveChannel(const ZvChannel *channel, bool showError) const
{
    if (!channel)
        return false;
    if (channel->writeToFile())
        return true;
    if (showError) {
        showMessageBox(m_messageParent, QMessageBox::Critical, tr("Save Channel"),
                       tr("The channel \"%1\" can not be saved.\nPlease check whether it is "
                          "possible to write the file.")
                           .arg(channel->name()));
    }
    return false;
}

// While a message is open the event loop runs, and a page can go with its window.
void ChannelSaver::saveArea(const QPointer<ZvScheduleWorkingArea> &area) const
{
    storeTable(area);
    saveChannel(area->channel(), true);
    if (area)
        area->renewSavedChannel();
}

void ChannelSaver::saveAreas(const QList<ZvScheduleWorkingArea *> &areas) const
{
    const auto guarded = guardedAreas(areas);
    for (const QPointer<ZvScheduleWorkingArea> &area : guarded) {
        if (area)
            saveArea(area);
    }
}

void ChannelSaver::renewBasicFile(const ZvChannel *channel)
{
    if (channel && channel->id() == ChannelFolder::BasicChannelId)
        ChannelFolder::copyToBasicFile(*channel);
}

bool ChannelSaver::confirmSave(const QList<ZvScheduleWorkingArea *> &areas, int reason) const
{
    SavePrompt prompt(reason, m_messageParent);
    const auto guarded = guardedAreas(areas);
    for (const QPointer<ZvScheduleWorkingArea> &area : guarded) {
        if (!area)
            continue;
        storeTable(area);
        if (!area->isChannelChanged())
            continue;
        const SavePrompt::Answer answer = prompt.ask(area->channelName());
        if (answer == SavePrompt::Answer::Cancel)
            return false;
        if (answer == SavePrompt::Answer::Skip || !area)
            continue;
        saveChannel(area->channel(), true);
        if (area)
            renewBasicFile(area->channel());
    }
    return true;
}

} // namespace Zavo
