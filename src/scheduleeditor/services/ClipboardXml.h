#pragma once

#include "ZvSchedule.h"
#include "ZvTime.h"

#include <QByteArray>
#include <QList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace Zavo {

/// Writes the clipboard's elements. A stage whose name XML cannot hold, which file systems allow,
/// is written with escapes, and its element says so.
class ClipboardXmlWriter
{
public:
    explicit ClipboardXmlWriter(QByteArray *xml);

    void writeSchedules(const QList<ZvSchedule> &schedules);
    void writeTimes(const QList<ZvTime> &times);

private:
    void writeSchedule(const ZvSchedule &schedule);
    void writeTimeData(const QList<ZvTime> &times);
    void writeStageName(const char *attribute, const QString &name);
    void writeEscapedMark(const QString &name);

    QXmlStreamWriter m_writer;
};

/// Reads the clipboard's elements, forgiving what it does not know. Stops at broken XML and keeps
/// what it has by then; beyond a limit it keeps nothing.
class ClipboardXmlReader
{
public:
    ClipboardXmlReader(const QByteArray &xml, int maximumScheduleCount, int maximumTimeCount);

    QList<ZvSchedule> readSchedules();
    QList<ZvTime> readTimes();

private:
    bool isStart(const char *name) const;
    bool isEnd(const char *name) const;
    void readNext();
    bool findScheduleList();
    ZvSchedule readSchedule();
    QList<ZvTime> readTimesOfSchedule();
    void appendTime(QList<ZvTime> *times);

    QXmlStreamReader m_reader;
    int m_maximumScheduleCount;
    int m_maximumTimeCount;
    int m_depth = 0;
    bool m_isBeyondLimit = false;
};

} // namespace Zavo
