#pragma once

#include "ZvCoreExport.h"

#include <QMetaType>
#include <QString>
#include <QTime>

namespace Zavo {

/// One band of a time table: from when to when which stage is shown. A plain value.
///
/// 24 o'clock, which QTime does not have, is 23:59:59.999.
class ZVCORE_EXPORT ZvTime
{
public:
    /// Times that differ by no more than this are the same time: a band on the time table gives
    /// its times back truncated, often a millisecond short.
    static constexpr int ToleranceMs = 5;

    /// A band without times and stage.
    ZvTime() = default;
    ZvTime(QTime start, QTime end, const QString &stageName); ///< checks nothing

    /// The times are returned as they were set, unrounded.
    QTime startTime() const { return m_startTime; }
    QTime endTime() const { return m_endTime; } ///< unrounded

    /// Path of the stage file below the stage folder.
    QString stageName() const { return m_stageName; }

    /// True without a stage, without a valid start or end, or if the end is before the start.
    bool isEmpty() const;

    void setStartTime(QTime time) { m_startTime = time; }          ///< also an invalid one
    void setEndTime(QTime time) { m_endTime = time; }              ///< 23:59:59.999 for 24 o'clock
    void setStageName(const QString &name) { m_stageName = name; } ///< empty for none
    /// @{
    /// Same stage, and start and end within ToleranceMs of each other.
    ZVCORE_EXPORT friend bool operator==(const ZvTime &a, const ZvTime &b);
    friend bool operator!=(const ZvTime &a, const ZvTime &b) { return !(a == b); }
    /// @}
private:
    QTime m_startTime;
    QTime m_endTime;
    QString m_stageName;
};

} // namespace Zavo

Q_DECLARE_TYPEINFO(Zavo::ZvTime, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(Zavo::ZvTime)
