#include "check/ChannelInspection.h"

#include "ScheduleNames.h"
#include "check/BandInspection.h"
#include "storage/BoundedFile.h"
#include "storage/ChannelFile.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace Zavo {

namespace {

/// How many examples a sentence names before it only counts.
constexpr int namedExamples = 3;
constexpr int daysOfWeek = 7;

/// One key for the days that a schedule stands for.
qint64 dayKey(const ZvSchedule &schedule)
{
    switch (schedule.type()) {
    case ZvSchedule::Date:
        return schedule.date().toJulianDay();
    case ZvSchedule::DayOfWeek:
        return -static_cast<qint64>(schedule.dayOfWeek());
    default:
        return 0;
    }
}

} // namespace

ChannelInspection::ChannelInspection(const QString &filePath, const QDate &oldDateLimit)
    : m_filePath(filePath)
    , m_oldDateLimit(oldDateLimit)
{
}

InspectedChannel ChannelInspection::run()
{
    QByteArray bytes;
    ChannelRecord record;
    if (!BoundedFile::read(m_filePath, ChannelFile::MaximumBytes, &bytes))
        add(CheckFinding::Kind::PassedOver, {},
            tr("The file cannot be read; the editor passes over it in silence."));
    else if (!ChannelFile::parseAsItStands(bytes, &record))
        add(CheckFinding::Kind::PassedOver, {},
            tr("The content is that of no channel; the editor passes over the file in silence."));
    else
        inspect(record);
    return m_result;
}

void ChannelInspection::inspect(const ChannelRecord &record)
{
    m_result.id = record.id;
    m_result.index = record.index;
    m_result.name = record.name;
    m_result.isOpened = !findTwins(record);
    inspectDefault(record);
    for (const ZvSchedule &schedule : record.schedules) {
        if (schedule.type() != ZvSchedule::Default)
            inspectSchedule(schedule, true);
    }
    inspectOldDates(record);
}

bool ChannelInspection::findTwins(const ChannelRecord &record)
{
    QSet<qint64> keys;
    keys.reserve(record.schedules.size());
    for (const ZvSchedule &schedule : record.schedules) {
        const qint64 key = dayKey(schedule);
        if (keys.contains(key)) {
            add(CheckFinding::Kind::PassedOver, ScheduleNames::of(schedule),
                tr("There are two schedules for the same days; the editor passes over the file in "
                   "silence."));
            return true;
        }
        keys.insert(key);
    }
    return false;
}

void ChannelInspection::inspectDefault(const ChannelRecord &record)
{
    int days = 0;
    const ZvSchedule *defaultSchedule = nullptr;
    for (const ZvSchedule &schedule : record.schedules) {
        if (schedule.type() == ZvSchedule::DayOfWeek)
            ++days;
        else if (schedule.type() == ZvSchedule::Default)
            defaultSchedule = &schedule;
    }
    // It stands for the days of the week that have no schedule of their own.
    const bool isUsed = days < daysOfWeek;
    if (defaultSchedule) {
        inspectSchedule(*defaultSchedule, isUsed);
    } else if (isUsed) {
        add(CheckFinding::Kind::UncoveredTime, {},
            tr("There is no default schedule: nothing is shown on days that have no schedule of "
               "their own."));
    }
}

void ChannelInspection::inspectSchedule(const ZvSchedule &schedule, bool isUsed)
{
    const BandInspection bands = BandInspection::of(schedule);
    if (!bands.overlaps.isEmpty())
        add(CheckFinding::Kind::Overlap, ScheduleNames::of(schedule),
            tr("Bands overlap: %1.").arg(listed(bands.overlaps)));
    if (!bands.emptyBands.isEmpty())
        add(CheckFinding::Kind::EmptyBand, ScheduleNames::of(schedule),
            tr("Bands without a stage or without duration: %1.").arg(listed(bands.emptyBands)));
    if (isUsed && !bands.gaps.isEmpty())
        add(CheckFinding::Kind::UncoveredTime, ScheduleNames::of(schedule),
            tr("No stage is shown: %1.").arg(listed(bands.gaps)));
    countStages(schedule);
}

void ChannelInspection::inspectOldDates(const ChannelRecord &record)
{
    QVector<QDate> dates;
    for (const ZvSchedule &schedule : record.schedules) {
        if (schedule.type() == ZvSchedule::Date && schedule.date() < m_oldDateLimit)
            dates.append(schedule.date());
    }
    if (dates.isEmpty())
        return;
    std::sort(dates.begin(), dates.end());
    QStringList names;
    for (int i = 0; i < qMin(dates.size(), namedExamples); ++i)
        names.append(dates.at(i).toString(Qt::ISODate));
    if (dates.size() > namedExamples)
        names.append(tr("%n more, the last %1", nullptr, dates.size() - namedExamples)
                         .arg(dates.constLast().toString(Qt::ISODate)));
    add(CheckFinding::Kind::OldDates, {},
        tr("The clean-up drops the schedules of old dates: %1.")
            .arg(names.join(QStringLiteral(", "))));
}

// Done for every band of every channel: nothing is made that is not needed.
void ChannelInspection::countStages(const ZvSchedule &schedule)
{
    ++m_scheduleNumber;
    const auto count = [this, &schedule](const QString &stage) {
        if (stage.isEmpty())
            return;
        StageUse &use = m_result.stages[stage];
        if (use.lastSchedule == m_scheduleNumber)
            return;
        use.lastSchedule = m_scheduleNumber;
        if (use.schedules++ == 0)
            use.firstSchedule = ScheduleNames::of(schedule);
    };
    count(schedule.defaultStage());
    QString last;
    const QList<ZvTime> &bands = schedule.timeList();
    for (const ZvTime &band : bands) {
        const QString stage = band.stageName();
        // Equal names of a file share their memory, so that comparing neighbours is quick.
        if (stage != last)
            count(stage);
        last = stage;
    }
}

void ChannelInspection::add(CheckFinding::Kind kind, const QString &schedule, const QString &text)
{
    m_result.findings.append(
        {kind, QFileInfo(m_filePath).fileName(), m_result.name, schedule, text});
}

QString ChannelInspection::listed(const QVector<TimeSpan> &spans)
{
    QStringList texts;
    for (int i = 0; i < qMin(spans.size(), namedExamples); ++i)
        texts.append(tr("%1 to %2")
                         .arg(ScheduleNames::timeText(spans.at(i).fromMs),
                              ScheduleNames::timeText(spans.at(i).toMs)));
    if (spans.size() > namedExamples)
        texts.append(tr("%n more", nullptr, spans.size() - namedExamples));
    return texts.join(QStringLiteral(", "));
}

} // namespace Zavo
