#pragma once

#include "ZvSchedule.h"

#include <QVector>

namespace Zavo {

/// A stage and when it is shown on a day, in milliseconds from midnight; the end of the day is its
/// full length.
struct ProgrammeSlot
{
    int fromMs = 0;
    int toMs = 0;
    QString stage;
    bool isDefaultStage = false; ///< it fills a gap between bands
};

/// What a channel shows on a date.
struct DayProgramme
{
    static constexpr int DayMs = 86400 * 1000;

    QDate date;
    ZvSchedule schedule;             ///< the one that is executed; empty if there is none
    QVector<ProgrammeSlot> slotList; ///< ascending, without overlaps and without time that is dark

    /// The schedule of the date goes before that of its day of the week, and that before the
    /// default schedule. @p schedules are those of a channel.
    static DayProgramme of(const QList<ZvSchedule> &schedules, const QDate &date);
};

} // namespace Zavo
