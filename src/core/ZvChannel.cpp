#include "ZvChannel.h"

#include "storage/BoundedFile.h"
#include "storage/ChannelFile.h"
#include "storage/DurableFile.h"
#include "storage/ScheduleOrder.h"

#include <algorithm>

namespace Zavo {

namespace {
/// Index of the first schedule that does not stand before the given one.
int placeOf(const ZvSchedule &schedule, const QList<ZvSchedule> &list)
{
    const auto place =
        std::lower_bound(list.cbegin(), list.cend(), schedule, ScheduleOrder::isBefore);
    return static_cast<int>(std::distance(list.cbegin(), place));
}
} // namespace

ZvChannel::ZvChannel(const QString &filePath)
    : m_filePath(filePath)
{
}

ZvSchedule ZvChannel::getSchedule(const QDate &date) const
{
    ZvSchedule wanted;
    wanted.setType(ZvSchedule::Date);
    wanted.setDate(date);
    const QList<ZvSchedule> &list = m_scheduleList;
    const int place = placeOf(wanted, list);
    if (place < list.size() && list.at(place).hasSameKey(wanted))
        return list.at(place);
    return {};
}

bool ZvChannel::isMatch(const ZvChannel &other, bool ignoreIndex, bool ignoreName) const
{
    return m_id == other.m_id && (ignoreIndex || m_index == other.m_index) &&
           (ignoreName || m_name == other.m_name) && m_scheduleList == other.m_scheduleList;
}

int ZvChannel::insertSchedule(const ZvSchedule &schedule)
{
    if (!ScheduleOrder::isPlaceable(schedule))
        return -1;
    ZvSchedule placed = ScheduleOrder::withoutForeignKeys(schedule);
    placed.setTimeList(ScheduleOrder::inOrder(schedule.timeList()));
    const int place = placeOf(placed, m_scheduleList);
    if (place == m_scheduleList.size() || !m_scheduleList.at(place).hasSameKey(placed)) {
        m_scheduleList.insert(place, placed);
        return place;
    }
    const ZvSchedule &stored = m_scheduleList.at(place);
    const QList<ZvTime> &storedBands = stored.timeList();
    placed.setTimeList(ScheduleOrder::storedAgain(placed.timeList(), storedBands));
    // An unchanged schedule must not part the list from the snapshots that share it.
    const QList<ZvTime> &placedBands = placed.timeList();
    if (!placedBands.isSharedWith(storedBands) || placed.defaultStage() != stored.defaultStage())
        m_scheduleList.replace(place, placed);
    return place;
}

int ZvChannel::removeSchedule(const ZvSchedule &schedule)
{
    const int place = placeOf(schedule, m_scheduleList);
    if (!ScheduleOrder::isPlaceable(schedule) || place == m_scheduleList.size() ||
        !m_scheduleList.at(place).hasSameKey(schedule))
        return -1;
    m_scheduleList.removeAt(place);
    return place;
}

bool ZvChannel::readFile()
{
    QByteArray bytes;
    ChannelRecord record;
    if (!BoundedFile::read(m_filePath, ChannelFile::MaximumBytes, &bytes) ||
        !ChannelFile::parse(bytes, &record))
        return false;
    m_id = record.id;
    m_index = record.index;
    m_name = record.name;
    m_scheduleList = record.schedules;
    return true;
}

bool ZvChannel::writeToFile() const
{
    QByteArray bytes;
    return ChannelFile::serialize({m_id, m_index, m_name, m_scheduleList}, &bytes) &&
           DurableFile::write(m_filePath, bytes);
}

} // namespace Zavo
