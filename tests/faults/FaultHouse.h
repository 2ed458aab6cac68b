#pragma once

#include "TemporaryDataFolder.h"

#include "ZvChannel.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>

namespace Zavo {
class HostWindow;
class SafetyDesk;
class SafetyNet;
class ZvScheduleMainWidget;
class ZvScheduleStageListView;
} // namespace Zavo

namespace ZavoTest {

using Files = QMap<QString, QByteArray>;
using ChannelsById = QMap<int, Zavo::ZvChannel>;

/// A small data folder and the program's window on it. The same folder can be laid out again and
/// again while the window stands, for processes that were forked from it to work on.
class FaultHouse final : public QObject
{
    Q_OBJECT

public:
    static constexpr int ChannelCount = 4;

    FaultHouse();
    ~FaultHouse() override;
    Q_DISABLE_COPY(FaultHouse)

    QByteArray dataDir() const;
    TemporaryDataFolder &folder() { return m_folder; }

    /// Makes the folder hold these files and no others, owned by @p user.
    void layOut(const Files &files, uid_t user);

    /// The files of a folder with channels and stages, and the channels.
    const Files &sample() const { return m_sample; }
    const ChannelsById &sampleChannels() const { return m_sampleChannels; }

    /// What lies in the folder now.
    Files present() const;

    /// What an editor that starts now reads, after the sweep of what killed programs left. Writes
    /// the first channels into an empty folder, as it does.
    std::optional<ChannelsById> freshStart() const;

    /// Hidden files of saves that are still there after the sweep.
    QStringList leftovers() const;

    /// Starts the window; false if it ends at once. Runs the event loop until the tabs are there.
    bool open();
    bool isOpen() const { return m_window != nullptr && !m_isFinished; }
    void close();

    /// Watches over the folder as the program does. Starts a thread, so not before a fork.
    void startSafety();
    void endSafety();

    /// What the bar at the top of the window tells, or what is told at the end.
    QString notice() const;

    Zavo::HostWindow *window() const { return m_window.get(); }
    Zavo::ZvScheduleMainWidget *main() const;
    Zavo::ZvScheduleStageListView *stages() const;

    /// Triggers the action of that name.
    void trigger(const char *actionName) const;

    /// Gives the channel at that tab another name.
    void rename(int tab, const QString &name) const;

    /// Gives every channel another name, another default stage and other bands, without saving.
    void editEverything() const;

    /// Does what is still to be done by the event loop, and has the window drawn no more: each
    /// process that is forked would do all that again, which takes half of its time.
    void settle() const;

    /// The channels as they are in the window, what is on show included.
    ChannelsById channels() const;

private Q_SLOTS:
    void onFinished() { m_isFinished = true; }
    void onTabsCreated() { m_hasTabs = true; }

private:
    void makeSample();

    TemporaryDataFolder m_folder;
    Files m_sample;
    ChannelsById m_sampleChannels;
    std::unique_ptr<Zavo::HostWindow> m_window;
    std::unique_ptr<Zavo::SafetyNet> m_net;
    std::unique_ptr<Zavo::SafetyDesk> m_desk;
    bool m_isFinished = false;
    bool m_hasTabs = false; // perhaps none, if no channel can be read
};

} // namespace ZavoTest
