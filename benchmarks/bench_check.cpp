#include "Bench.h"
#include "Path.h"
#include "ZvChannel.h"
#include "ZvStage.h"
#include "check/DataCheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Zavo;

namespace {
constexpr int Channels = 1000;
constexpr int SchedulesPerChannel = 100;
constexpr int BandsPerSchedule = 24;
constexpr int Stages = 100;
constexpr int RemovingDays = 365;
constexpr int Pairs = 5;
constexpr double CheckGoal = 1.5;
const QDate FirstDate(2027, 1, 1);

void requireDone(bool ok)
{
    if (!ok)
        qFatal("an operation failed that should not");
}

QString stageName(int number)
{
    return QStringLiteral("stage%1.xml").arg(number % Stages);
}

QString channelPath(const QString &folder, int number)
{
    return folder + QStringLiteral("/channel/channel%1.xml").arg(number);
}

void writeStages(const QString &folder)
{
    requireDone(QDir(folder).mkpath(QStringLiteral("stage")));
    for (int number = 0; number < Stages; ++number) {
        QFile file(folder + QStringLiteral("/stage/") + stageName(number));
        requireDone(file.open(QIODevice::WriteOnly));
        file.write("<Stage version=\"1\" width=\"1920\" height=\"1080\"><Rectangle x=\"0\" "
                   "y=\"0\" width=\"90\" height=\"90\" color=\"#c8413c\"/></Stage>");
    }
}

ZvSchedule scheduleOf(int number)
{
    ZvSchedule schedule;
    schedule.setType(ZvSchedule::Date);
    schedule.setDate(FirstDate.addDays(number));
    QList<ZvTime> bands;
    for (int hour = 0; hour < BandsPerSchedule; ++hour) {
        const bool isLast = hour == BandsPerSchedule - 1;
        bands.append(ZvTime(QTime(hour, 0), isLast ? QTime(23, 59, 59, 999) : QTime(hour + 1, 0),
                            stageName(number + hour)));
    }
    schedule.setTimeList(bands);
    return schedule;
}

void writeChannels(const QString &folder)
{
    requireDone(QDir(folder).mkpath(QStringLiteral("channel")));
    ZvChannel channel(channelPath(folder, 0));
    channel.setName(QStringLiteral("Concourse"));
    ZvSchedule standard;
    standard.setType(ZvSchedule::Default);
    standard.setDefaultStage(stageName(0));
    channel.insertSchedule(standard);
    for (int i = 1; i < SchedulesPerChannel; ++i)
        channel.insertSchedule(scheduleOf(i));
    requireDone(channel.writeToFile());
    QFile first(channel.filePath());
    requireDone(first.open(QIODevice::ReadOnly));
    const QByteArray bytes = first.readAll();
    for (int number = 1; number < Channels; ++number) {
        QFile file(channelPath(folder, number));
        QByteArray own = bytes;
        own.replace("id=\"0\"", "id=\"" + QByteArray::number(number) + '"');
        requireDone(file.open(QIODevice::WriteOnly) && file.write(own) == own.size());
    }
}

/// What any look at the data costs: each channel and each stage read once.
void readAll(const QString &folder)
{
    for (int number = 0; number < Channels; ++number) {
        ZvChannel channel(channelPath(folder, number));
        requireDone(channel.readFile());
    }
    for (int number = 0; number < Stages; ++number) {
        ZvStage stage(folder + QStringLiteral("/stage/") + stageName(number));
        requireDone(stage.readFile());
    }
}

void checkAll(const QString &folder)
{
    const CheckReport report = DataCheck(folder, FirstDate, RemovingDays).run();
    requireDone(report.isComplete && report.findings.isEmpty() && report.channelCount == Channels &&
                report.stageCount == Stages);
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    writeStages(folder.path());
    writeChannels(folder.path());
    Bench::Table table(QCoreApplication::arguments());
    table.add(
        {QStringLiteral("check / reading the files, time"), Channels, CheckGoal},
        [&] { readAll(folder.path()); }, [&] { checkAll(folder.path()); }, Pairs);
    // On one processor nothing is won by threads: the work itself must be little more than reading.
    table.addFigures(
        {QStringLiteral("check / reading the files, processor"), Channels, CheckGoal},
        [&] { return Bench::measureProcessor([&] { readAll(folder.path()); }); },
        [&] { return Bench::measureProcessor([&] { checkAll(folder.path()); }); }, Pairs);
    return table.finish();
}
