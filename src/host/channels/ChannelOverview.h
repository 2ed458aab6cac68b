#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QThread>

#include <atomic>

namespace Zavo {

/// One line about a channel, as it is saved.
struct ChannelLine
{
    QString fileName;
    bool isReadable = false; ///< what follows but for the time is known only then
    int id = 0;
    int index = 0;
    QString name;
    int scheduleCount = 0;
    QDateTime lastSaved;
};

/// Reads the channels of the channel folder in a thread of its own, since there can be many. The
/// file of the basic channel without a number, a copy, is not among them.
class ChannelOverview final : public QThread
{
    Q_OBJECT

public:
    explicit ChannelOverview(const QString &dataDir, QObject *parent = nullptr);

    /// Waits for the thread, which ends behind the file that it is reading.
    ~ChannelOverview() override;

    /// Files that have been read, and those there are; 0 until that is known.
    int done() const { return m_done; }
    int total() const { return m_total; }

    /// In the order of the tabs, those that cannot be read last. To be called once the thread has
    /// finished.
    const QList<ChannelLine> &lines() const { return m_lines; }

protected:
    void run() override;

private:
    const QString m_dataDir;
    QList<ChannelLine> m_lines;
    std::atomic<int> m_done{0};
    std::atomic<int> m_total{0};
};

} // namespace Zavo
