#pragma once

#include <QString>
#include <QVector>

namespace Zavo {

/// One thing that a person should look at before the data are uploaded.
struct CheckFinding
{
    enum class Kind {
        PassedOver,    ///< a channel file that the editor does not open, and does not mention
        NoChannel,     ///< there is no channel at all
        SharedId,      ///< channels that have one id
        Stage,         ///< a stage that is missing or cannot be shown as it was made
        UncoveredTime, ///< time for which there is no stage
        Overlap,       ///< bands that stand for the same time
        EmptyBand,     ///< bands without a stage or without duration
        OldDates,      ///< dates whose schedules are dropped when the editor opens the channel
    };

    Kind kind = Kind::PassedOver;
    QString file;     ///< name in the channel folder; empty if it is about the folder
    QString channel;  ///< name of the channel; empty if it is not known
    QString schedule; ///< as ScheduleNames has it; empty if it is about the whole channel
    QString text;     ///< a sentence

    friend bool operator==(const CheckFinding &left, const CheckFinding &right)
    {
        return left.kind == right.kind && left.file == right.file &&
               left.channel == right.channel && left.schedule == right.schedule &&
               left.text == right.text;
    }
};

/// What a check gave.
struct CheckReport
{
    bool isComplete = false; ///< false if it was cancelled or could not be done
    QString problem;         ///< why it could not be done; empty otherwise
    QVector<CheckFinding> findings;
    int channelCount = 0; ///< channel files that were looked at
    int stageCount = 0;   ///< stages that were looked at
};

} // namespace Zavo
