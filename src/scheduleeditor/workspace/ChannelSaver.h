#pragma once

#include <QCoreApplication>
#include <QList>
#include <QPointer>
#include <QWidget>

namespace Zavo {

class ZvChannel;
class ZvScheduleWorkingArea;

/// Brings the channels of pages up to date with their tables, writes them, and tells the user over
/// its parent widget when that failed. It knows no tabs.
class ChannelSaver final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::ChannelSaver)

public:
    explicit ChannelSaver(QWidget *messageParent);

    /// Puts the table on show into the channel of @p area, if its schedule exists.
    static void storeTable(ZvScheduleWorkingArea *area);

    /// False, after a message if @p showError, if the file could not be written; false for null.
    bool saveChannel(const ZvChannel *channel, bool showError) const;

    /// Stores, writes and takes a new snapshot. The snapshot is renewed even if the file could not
    /// be written; the message has told the user. Not null, but it may die behind the message.
    void saveArea(const QPointer<ZvScheduleWorkingArea> &area) const;

    /// The same for all of @p areas that are still there when it is their turn.
    void saveAreas(const QList<ZvScheduleWorkingArea *> &areas) const;

    /// Asks about each of @p areas whose channel is modified and saves those that are to be,
    /// without renewing their snapshots. False if the user cancelled. @p reason is a
    /// SavePrompt::Reason.
    bool confirmSave(const QList<ZvScheduleWorkingArea *> &areas, int reason) const;

    /// Renews the basic file from the file of @p channel if it is the basic channel.
    static void renewBasicFile(const ZvChannel *channel);

private:
    QPointer<QWidget> m_messageParent;
};

} // namespace Zavo
