#pragma once

#include "check/CheckFinding.h"

#include <QCoreApplication>
#include <QDate>
#include <QHash>

namespace Zavo {

struct BandInspection;
struct ChannelRecord;
class ZvSchedule;
struct TimeSpan;

/// Where a channel uses a stage.
struct StageUse
{
    QString firstSchedule;
    int schedules = 0;
    int lastSchedule = 0; ///< number of the one that was counted last, from 1
};

/// What one channel file holds, and what is to be said of it apart from its stages.
struct InspectedChannel
{
    bool isOpened = false; ///< false if the editor cannot open the file; only the findings count
    int id = 0;
    int index = 0;
    QString name;
    QHash<QString, StageUse> stages; ///< by name
    QVector<CheckFinding> findings;
};

/// Looks at one channel file. It reads the file once and keeps nothing of it but the result.
class ChannelInspection final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::ChannelInspection)

public:
    /// Schedules of dates before @p oldDateLimit are those that the editor drops.
    ChannelInspection(const QString &filePath, const QDate &oldDateLimit);

    InspectedChannel run();

private:
    void inspect(const ChannelRecord &record);
    bool findTwins(const ChannelRecord &record);
    void inspectDefault(const ChannelRecord &record);
    void inspectSchedule(const ZvSchedule &schedule, bool isUsed);
    void inspectOldDates(const ChannelRecord &record);
    void countStages(const ZvSchedule &schedule);
    void add(CheckFinding::Kind kind, const QString &schedule, const QString &text);
    static QString listed(const QVector<TimeSpan> &spans);

    QString m_filePath;
    QDate m_oldDateLimit;
    InspectedChannel m_result;
    int m_scheduleNumber = 0;
};

} // namespace Zavo
