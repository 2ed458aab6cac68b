#include "ZvSchedule.h"

namespace Zavo {

bool ZvSchedule::isEmpty() const
{
    return m_defaultStage.isEmpty() && m_timeList.isEmpty() && !m_date.isValid() &&
           !Weekday::isDay(m_dayOfWeek);
}

bool ZvSchedule::hasSameKey(const ZvSchedule &other) const
{
    if (m_type != other.m_type)
        return false;
    switch (m_type) {
    case Default:
        return true;
    case Date:
        return m_date == other.m_date;
    case DayOfWeek:
        return m_dayOfWeek == other.m_dayOfWeek;
    case NoType:
        break;
    }
    return m_date == other.m_date && m_dayOfWeek == other.m_dayOfWeek;
}

bool operator==(const ZvSchedule &a, const ZvSchedule &b)
{
    return a.hasSameKey(b) && a.m_defaultStage == b.m_defaultStage && a.m_timeList == b.m_timeList;
}

} // namespace Zavo
