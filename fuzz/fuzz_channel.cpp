// The bytes of channel files, and channels of every kind that are to become such bytes.
#include "Disk.h"
#include "FuzzInput.h"
#include "RecordWriter.h"

#include "ZvChannel.h"
#include "storage/ChannelFile.h"

using namespace Zavo;
using namespace ZavoFuzz;

namespace {

bool isSameToTheLetter(const ZvTime &a, const ZvTime &b)
{
    return a.startTime() == b.startTime() && a.endTime() == b.endTime() &&
           a.stageName() == b.stageName();
}

bool isSameToTheLetter(const ZvSchedule &a, const ZvSchedule &b)
{
    const QList<ZvTime> &bandsOfA = a.timeList();
    const QList<ZvTime> &bandsOfB = b.timeList();
    return a.hasSameKey(b) && a.defaultStage() == b.defaultStage() &&
           std::equal(bandsOfA.cbegin(), bandsOfA.cend(), bandsOfB.cbegin(), bandsOfB.cend(),
                      [](const ZvTime &x, const ZvTime &y) { return isSameToTheLetter(x, y); });
}

bool isSameToTheLetter(const ChannelRecord &a, const ChannelRecord &b)
{
    const auto same = [](const ZvSchedule &x, const ZvSchedule &y) {
        return isSameToTheLetter(x, y);
    };
    return a.id == b.id && a.index == b.index && a.name == b.name &&
           std::equal(a.schedules.cbegin(), a.schedules.cend(), b.schedules.cbegin(),
                      b.schedules.cend(), same);
}

/// Through a file and back.
void checkFile(const ChannelRecord &record)
{
    static const Disk disk;
    const QString path = disk.path(QStringLiteral("channel1.xml"));
    ZvChannel channel(path);
    channel.setId(record.id);
    channel.setIndex(record.index);
    channel.setName(record.name);
    for (const ZvSchedule &schedule : record.schedules)
        channel.insertSchedule(schedule);
    const bool isWritten = channel.writeToFile();
    ZvChannel back(path);
    if (!isWritten)
        return;
    require(back.readFile(), QStringLiteral("a written file cannot be read"));
    require(back.isMatch(channel, false, false),
            QStringLiteral("a file holds something else than was written"));
}

void checkBytes(const QByteArray &bytes)
{
    ChannelRecord record;
    const bool isRead = ChannelFile::parse(bytes, &record);
    ChannelRecord asItStands;
    const bool stands = ChannelFile::parseAsItStands(bytes, &asItStands);
    require(stands || !isRead, QStringLiteral("a file that is read does not stand"));
    if (!isRead)
        return;
    QByteArray written;
    require(ChannelFile::serialize(record, &written),
            QStringLiteral("what was read cannot be written"));
    ChannelRecord again;
    require(ChannelFile::parse(written, &again), QStringLiteral("what was written is refused"));
    require(isSameToTheLetter(record, again), QStringLiteral("what was written reads differently"));
    QByteArray twice;
    require(ChannelFile::serialize(again, &twice) && twice == written,
            QStringLiteral("the same channel gives other bytes"));
    checkFile(record);
}

void checkRecord(FuzzInput *input)
{
    RecordWriter writer(input);
    ChannelRecord record;
    record.id = input->word();
    record.index = input->byte() - 4;
    record.name = writer.name();
    record.schedules = writer.schedules();
    QByteArray bytes;
    if (ChannelFile::serialize(record, &bytes))
        checkBytes(bytes);
    checkFile(record);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzInput input(bytes, size);
    if (input.byte() == 'R')
        checkRecord(&input);
    else
        checkBytes(QByteArray(reinterpret_cast<const char *>(bytes), static_cast<int>(size)));
    return 0;
}
