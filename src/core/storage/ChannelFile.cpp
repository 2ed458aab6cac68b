#include "storage/ChannelFile.h"

#include "storage/ChannelFileParser.h"
#include "storage/ChannelFileWords.h"
#include "storage/ScheduleOrder.h"
#include "storage/XmlScanner.h"
#include "storage/XmlText.h"

#include <algorithm>

namespace Zavo::ChannelFile {

namespace {
bool isIdentical(const ZvTime &a, const ZvTime &b)
{
    return a.startTime() == b.startTime() && a.endTime() == b.endTime() &&
           a.stageName() == b.stageName();
}

bool isIdentical(const ZvSchedule &a, const ZvSchedule &b)
{
    const QList<ZvTime> &bandsA = a.timeList();
    const QList<ZvTime> &bandsB = b.timeList();
    return a.hasSameKey(b) && a.defaultStage() == b.defaultStage() &&
           std::equal(bandsA.cbegin(), bandsA.cend(), bandsB.cbegin(), bandsB.cend(),
                      [](const ZvTime &x, const ZvTime &y) { return isIdentical(x, y); });
}

bool isIdentical(const ChannelRecord &a, const ChannelRecord &b)
{
    return a.id == b.id && a.index == b.index && a.name == b.name &&
           std::equal(a.schedules.cbegin(), a.schedules.cend(), b.schedules.cbegin(),
                      b.schedules.cend(),
                      [](const ZvSchedule &x, const ZvSchedule &y) { return isIdentical(x, y); });
}

class Writer
{
public:
    bool run(const ChannelRecord &record)
    {
        m_bytes.reserve(estimate(record));
        m_bytes.append("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Channel version=\"");
        m_bytes.append(Words::Version.data());
        appendNumber("\" id=\"", record.id);
        appendNumber("\" index=\"", record.index);
        m_bytes.append('"');
        if (!appendString(" name=\"", record.name))
            return false;
        m_bytes.append(record.schedules.isEmpty() ? "/>\n" : ">\n");
        for (const ZvSchedule &schedule : record.schedules) {
            if (!appendSchedule(schedule))
                return false;
        }
        if (!record.schedules.isEmpty())
            m_bytes.append("</Channel>\n");
        return true;
    }

    QByteArray bytes() const { return m_bytes; }

private:
    static int estimate(const ChannelRecord &record)
    {
        constexpr qint64 BytesPerRecord = 100;
        qint64 records = 2;
        for (const ZvSchedule &schedule : record.schedules)
            records += 1 + schedule.timeList().size();
        return static_cast<int>(qMin<qint64>(records * BytesPerRecord, MaximumBytes));
    }

    bool appendSchedule(const ZvSchedule &schedule)
    {
        const std::string_view type = Words::ofType(schedule.type());
        if (type.empty())
            return false;
        m_bytes.append(" <Schedule type=\"").append(type.data()).append('"');
        if (schedule.type() == ZvSchedule::DayOfWeek)
            appendNumber(" day=\"", schedule.dayOfWeek()).append('"');
        if (schedule.type() == ZvSchedule::Date && !appendDate(schedule.date()))
            return false;
        if (!appendString(" defaultStage=\"", schedule.defaultStage()))
            return false;
        const QList<ZvTime> &bands = schedule.timeList();
        m_bytes.append(bands.isEmpty() ? "/>\n" : ">\n");
        for (const ZvTime &band : bands) {
            if (!appendBand(band))
                return false;
        }
        if (!bands.isEmpty())
            m_bytes.append(" </Schedule>\n");
        return m_bytes.size() <= MaximumBytes;
    }

    bool appendBand(const ZvTime &band)
    {
        if (!appendString("  <Time stage=\"", band.stageName()))
            return false;
        m_bytes.append(" start=\"");
        const bool hasStart = appendTime(band.startTime());
        m_bytes.append("\" end=\"");
        const bool hasEnd = appendTime(band.endTime());
        m_bytes.append("\"/>\n");
        // Looked at band by band, before they are too much for any memory.
        return hasStart && hasEnd && m_bytes.size() <= MaximumBytes;
    }

    QByteArray &appendNumber(const char *before, int number)
    {
        return m_bytes.append(before).append(QByteArray::number(number));
    }

    bool appendString(const char *before, const QString &string)
    {
        // No reader would take the tag.
        if (string.size() > XmlScanner::MaximumTagBytes)
            return false;
        m_bytes.append(before);
        XmlText::appendEscaped(string, &m_bytes);
        m_bytes.append('"');
        return true;
    }

    bool appendTime(QTime time)
    {
        if (!time.isValid())
            return false;
        char text[] = "00:00:00.000";
        Words::putDigits(text + Words::HourAt, 2, time.hour());
        Words::putDigits(text + Words::MinuteAt, 2, time.minute());
        Words::putDigits(text + Words::SecondAt, 2, time.second());
        Words::putDigits(text + Words::MsAt, 3, time.msec());
        m_bytes.append(text, Words::TimeLength);
        return true;
    }

    bool appendDate(const QDate &date)
    {
        constexpr int LastYear = 9999;
        if (!date.isValid() || date.year() < 1 || date.year() > LastYear)
            return false;
        char text[] = " date=\"0000-00-00\"";
        char *const digits = text + sizeof(" date=\"") - 1;
        Words::putDigits(digits + Words::YearAt, 4, date.year());
        Words::putDigits(digits + Words::MonthAt, 2, date.month());
        Words::putDigits(digits + Words::DayAt, 2, date.day());
        m_bytes.append(text);
        return true;
    }

    QByteArray m_bytes;
};
} // namespace

bool parse(const QByteArray &bytes, ChannelRecord *record)
{
    ChannelRecord read;
    if (!parseAsItStands(bytes, &read) || !ScheduleOrder::putInOrder(&read.schedules))
        return false;
    *record = read;
    return true;
}

bool parseAsItStands(const QByteArray &bytes, ChannelRecord *record)
{
    if (bytes.size() > MaximumBytes)
        return false;
    ChannelFileParser parser({bytes.constData(), static_cast<size_t>(bytes.size())});
    ChannelRecord read;
    if (!parser.run(&read))
        return false;
    *record = read;
    return true;
}

bool serialize(const ChannelRecord &record, QByteArray *bytes)
{
    ChannelRecord ordered = record;
    Writer writer;
    ChannelRecord readBack;
    if (!ScheduleOrder::putInOrder(&ordered.schedules) || !writer.run(ordered) ||
        !parse(writer.bytes(), &readBack) || !isIdentical(ordered, readBack))
        return false;
    *bytes = writer.bytes();
    return true;
}

} // namespace Zavo::ChannelFile
