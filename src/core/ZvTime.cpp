#include "ZvTime.h"

namespace Zavo {

namespace {
bool isSameTime(QTime a, QTime b)
{
    if (a.isValid() != b.isValid())
        return false;
    return qAbs(a.msecsSinceStartOfDay() - b.msecsSinceStartOfDay()) <= ZvTime::ToleranceMs;
}
} // namespace

ZvTime::ZvTime(QTime start, QTime end, const QString &stageName)
    : m_startTime(start)
    , m_endTime(end)
    , m_stageName(stageName)
{
}

bool ZvTime::isEmpty() const
{
    return m_stageName.isEmpty() || !m_startTime.isValid() || !m_endTime.isValid() ||
           m_endTime < m_startTime;
}

bool operator==(const ZvTime &a, const ZvTime &b)
{
    return isSameTime(a.m_startTime, b.m_startTime) && isSameTime(a.m_endTime, b.m_endTime) &&
           a.m_stageName == b.m_stageName;
}

} // namespace Zavo
