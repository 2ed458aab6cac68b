#pragma once

#include "ZvSchedule.h"
#include "ZvTime.h"

#include <QByteArray>
#include <QList>

namespace Zavo {

/// Schedules and bands on the system clipboard, as XML in formats of our own, so that they can be
/// pasted between tabs and between running programs. GUI thread only.
///
/// What is read may come from anywhere: a payload beyond 64 MiB, 50,000 schedules or 20,000 bands
/// in a row counts as empty, and reading stops where the XML is broken or nested beyond reason.
class ZvScheduleClipboard
{
public:
    ZvScheduleClipboard() = delete;

    static constexpr int MaximumPayloadSize = 64 * 1024 * 1024; ///< bytes
    static constexpr int MaximumScheduleCount = 50000;
    static constexpr int MaximumTimeCount = 20000;

    /// An empty list leaves the clipboard as it is.
    static void writeSchedulesToClipboard(const QList<ZvSchedule> &schedules);
    static void writeTimesToClipboard(const QList<ZvTime> &times);

    /// What the clipboard holds; empty if it holds nothing of the kind. Schedules come back as
    /// default schedules whose day and date are what is left of their place; an empty one keeps the
    /// place of a day without a schedule.
    static QList<ZvSchedule> readSchedulesFromClipboard();
    static QList<ZvTime> readTimesFromClipboard();

    /// Whether the clipboard offers the format, whatever it holds.
    static bool hasScheduleData();
    static bool hasTimeData();

    static QByteArray schedulesToXml(const QList<ZvSchedule> &schedules);
    static QByteArray timesToXml(const QList<ZvTime> &times);
    static QList<ZvSchedule> xmlToSchedules(const QByteArray &xml);
    static QList<ZvTime> xmlToTimes(const QByteArray &xml);
};

} // namespace Zavo
