#pragma once

#include "check/ChannelInspection.h"
#include "check/CheckFinding.h"

#include <QCoreApplication>
#include <QDate>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

#include <atomic>

namespace Zavo {

struct ChannelListing;

/// The check of a data folder before it is uploaded: it reads every channel file and every stage
/// that one of them uses, each once, and changes nothing.
///
/// run() may be called on any thread; cancel(), done() and total() meanwhile on any other.
class DataCheck final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::DataCheck)
    Q_DISABLE_COPY(DataCheck)

public:
    /// Schedules of dates more than @p removingDurationDays before @p today are dropped by the
    /// editor.
    DataCheck(const QString &dataDir, const QDate &today, int removingDurationDays);

    /// Looks at everything; to be called once.
    CheckReport run();

    /// Ends run() after the files that are being read.
    void cancel() { m_cancelled = true; }
    bool isCancelled() const { return m_cancelled; }

    /// Files that have been looked at.
    int done() const { return m_done; }

    /// Files to look at as far as is known yet: the stages are known when the channels are read.
    int total() const { return m_total; }

private:
    void inspectChannels(const ChannelListing &listing);
    void inspectStages();
    void judgeListing(const ChannelListing &listing);
    void judgeBasicFile(const ChannelListing &listing);
    void judgeIds();
    void addStageFindings();
    QString channelPath(const QString &fileName) const;
    void addFile(const QString &fileName, const QString &text);

    const QString m_channelFolder;
    const QString m_stageFolder;
    const QDate m_oldDateLimit;
    std::atomic<bool> m_cancelled{false};
    std::atomic<int> m_done{0};
    std::atomic<int> m_total{0};

    QStringList m_fileNames; // of m_channels, place by place
    QVector<InspectedChannel> m_channels;
    QMap<QString, QString> m_stageProblems; // by stage name; empty for a sound stage
    CheckReport m_report;
};

} // namespace Zavo
