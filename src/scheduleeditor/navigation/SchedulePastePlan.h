#pragma once

#include "ZvSchedule.h"
#include "domain/ZvScheduleBasicInfo.h"

#include <QDate>
#include <QList>

namespace Zavo {

/// What a paste of schedules would do to a channel: the schedules that give way, and those that
/// come in.
struct SchedulePastePlan
{
    QList<ZvScheduleBasicInfo> removed;
    QList<ZvSchedule> inserted;
    /// An empty schedule was on the clipboard, which takes the schedule of its place away.
    bool hasEmpty = false;

    bool isEmpty() const { return removed.isEmpty() && inserted.isEmpty(); }

    /// Lets @p schedule in as that of @p place, whose own gives way if it @p exists.
    void replace(const ZvScheduleBasicInfo &place, const ZvSchedule &schedule, bool exists);
};

/// The schedules of @p list that are not empty.
QList<ZvSchedule> schedulesWithContent(const QList<ZvSchedule> &list);

} // namespace Zavo
