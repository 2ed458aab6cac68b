#pragma once

#include "ZvSchedule.h"
#include "domain/ZvScheduleBasicInfo.h"
#include "domain/ZvScheduleCommonInterface.h"

#include <QList>

namespace Zavo {

class ScheduleListModel;
class ZvChannel;

/// What the edit commands of the schedule list act on: the rows with a check mark.
namespace CheckedSchedules {

/// The commands that are possible with the marks as they are. The default schedule can be copied,
/// and neither cut nor deleted.
ZvScheduleCommonInterface::SelectedType possibleCommands(const ScheduleListModel &model);

/// Copies of the checked schedules in the order of the channel, each once; empty without a channel.
QList<ZvSchedule> copies(const ScheduleListModel &model, const ZvChannel *channel);

} // namespace CheckedSchedules
} // namespace Zavo
