#pragma once

#include "ZvSchedule.h"

#include <QList>

namespace Zavo {

class ZvChannel;
class ZvScheduleBasicInfo;

/// The schedules of a channel by their names. A null channel holds none.
namespace ChannelSchedules {

bool contains(const ZvChannel *channel, const ZvScheduleBasicInfo &info);

/// The schedule of that name, or a default-constructed one.
ZvSchedule find(const ZvChannel *channel, const ZvScheduleBasicInfo &info);

/// The schedules of those names in the order of @p infos; names without a schedule are left out.
QList<ZvSchedule> findAll(const ZvChannel *channel, const QList<ZvScheduleBasicInfo> &infos);

/// How many stages a schedule assigns: its bands, and its default stage if it has one.
int stageCount(const ZvSchedule &schedule);

/// Removes the date schedules of all days before @p limit.
void removeBefore(ZvChannel *channel, const QDate &limit);

} // namespace ChannelSchedules
} // namespace Zavo
