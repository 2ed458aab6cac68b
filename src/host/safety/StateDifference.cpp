#include "safety/StateDifference.h"

#include "ZvChannel.h"
#include "ZvSchedule.h"

#include <QHash>
#include <QStringList>

namespace Zavo {

namespace {

/// Two schedules of a channel never have the same.
qint64 keyOf(const ZvSchedule &schedule)
{
    switch (schedule.type()) {
    case ZvSchedule::Date:
        return schedule.date().toJulianDay();
    case ZvSchedule::DayOfWeek:
        return -1 - int(schedule.dayOfWeek());
    default:
        return 0;
    }
}

} // namespace

StateDifference::StateDifference(const ZvChannel &present, const ZvChannel &state)
    : m_isMoved(present.index() != state.index())
{
    if (present.name() != state.name())
        m_newName = state.name();
    const QList<ZvSchedule> &presentList = present.scheduleList();
    const QList<ZvSchedule> &stateList = state.scheduleList();
    QHash<qint64, const ZvSchedule *> presentByKey;
    for (const ZvSchedule &schedule : presentList)
        presentByKey.insert(keyOf(schedule), &schedule);
    for (const ZvSchedule &schedule : stateList) {
        const ZvSchedule *const other = presentByKey.take(keyOf(schedule));
        if (!other)
            ++m_added;
        else if (*other != schedule)
            ++m_changed;
    }
    m_removed = presentByKey.size();
}

bool StateDifference::isNone() const
{
    return m_added + m_removed + m_changed == 0 && !m_isMoved && m_newName.isNull();
}

QString StateDifference::text() const
{
    if (isNone())
        return tr("as it is now");
    QStringList schedules;
    if (m_added > 0)
        schedules.append(tr("%1 added").arg(m_added));
    if (m_removed > 0)
        schedules.append(tr("%1 removed").arg(m_removed));
    if (m_changed > 0)
        schedules.append(tr("%1 changed").arg(m_changed));
    QStringList parts;
    if (!schedules.isEmpty())
        parts.append(tr("schedules: %1").arg(schedules.join(QStringLiteral(", "))));
    if (!m_newName.isNull())
        parts.append(tr("name: \"%1\"").arg(m_newName));
    if (m_isMoved)
        parts.append(tr("another place among the tabs"));
    return parts.join(QStringLiteral("; "));
}

} // namespace Zavo
