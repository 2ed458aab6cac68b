#include "services/ClipboardXml.h"

#include "storage/XmlText.h"

#include <QDate>
#include <QLocale>
#include <QTime>

namespace Zavo {

namespace {

constexpr char scheduleListElement[] = "ScheduleList";
constexpr char scheduleElement[] = "Schedule";
constexpr char timeDataElement[] = "TimeData";
constexpr char timeElement[] = "Time";
constexpr char enabledAttribute[] = "Enabled";
constexpr char typeAttribute[] = "Type";
constexpr char defaultStageAttribute[] = "DefaultStage";
constexpr char stageAttribute[] = "Stage";
constexpr char startAttribute[] = "Start";
constexpr char endAttribute[] = "End";
constexpr char escapedAttribute[] = "Escaped"; // only where XML cannot hold the name of the stage
constexpr char defaultType[] = "default";

constexpr int maximumDepth = 16;          // ours are four deep
constexpr int maximumAttributeCount = 16; // ours have three
constexpr int maximumTagSize = 64 * 1024; // bytes, with the text up to the next tag

QString latin(const char *text)
{
    return QString::fromLatin1(text);
}

QString stageNameOf(const QXmlStreamAttributes &attributes, const char *attribute)
{
    QString name = attributes.value(QLatin1String(attribute)).toString();
    if (attributes.value(QLatin1String(escapedAttribute)) == QLatin1String("true"))
        XmlText::unescape(&name);
    return name;
}

QString dateFormat()
{
    return QStringLiteral("yyyy-MM-dd");
}

QString typeText(const ZvSchedule &schedule)
{
    switch (schedule.type()) {
    case ZvSchedule::Date:
        return QLocale::c().toString(schedule.date(), dateFormat());
    case ZvSchedule::DayOfWeek:
        return QString::number(schedule.dayOfWeek());
    default:
        return latin(defaultType);
    }
}

void applyType(const QString &type, ZvSchedule *schedule)
{
    if (type == QLatin1String(defaultType))
        return;
    const QDate date = QLocale::c().toDate(type, dateFormat());
    if (date.isValid()) {
        schedule->setDate(date);
        return;
    }
    bool isNumber = false;
    const int day = type.toInt(&isNumber, 10);
    if (isNumber)
        schedule->setDayOfWeek(static_cast<Weekday::Days>(day));
}

int attributeCount(const char *tag, const char *end)
{
    int count = 0;
    char quote = '\0';
    for (; tag != end && (quote != '\0' || *tag != '>'); ++tag) {
        if (*tag == quote) {
            quote = '\0';
        } else if (quote == '\0' && (*tag == '"' || *tag == '\'')) {
            quote = *tag;
            ++count;
        }
    }
    return count;
}

/// Whether a tag could be ours. @p end is where the next one begins.
bool isReasonableTag(const char *tag, const char *end)
{
    if (end - tag > maximumTagSize)
        return false;
    const bool isElement = end - tag > 1 && tag[1] != '!' && tag[1] != '?';
    return !isElement || attributeCount(tag, end) <= maximumAttributeCount;
}

/// @p xml up to a tag that is none of ours: the stream reader compares all attributes of a tag with
/// each other, so that its time would grow with the square of their number.
QByteArray upToUnreasonableTag(const QByteArray &xml)
{
    int tag = xml.indexOf('<');
    while (tag >= 0) {
        const int next = xml.indexOf('<', tag + 1);
        const int end = next < 0 ? xml.size() : next;
        if (!isReasonableTag(xml.constData() + tag, xml.constData() + end))
            return xml.left(tag);
        tag = next;
    }
    return xml;
}

} // namespace

ClipboardXmlWriter::ClipboardXmlWriter(QByteArray *xml)
    : m_writer(xml)
{
    m_writer.writeStartDocument();
}

void ClipboardXmlWriter::writeSchedules(const QList<ZvSchedule> &schedules)
{
    m_writer.writeStartElement(latin(scheduleListElement));
    for (const ZvSchedule &schedule : schedules)
        writeSchedule(schedule);
    m_writer.writeEndElement();
    m_writer.writeEndDocument();
}

void ClipboardXmlWriter::writeTimes(const QList<ZvTime> &times)
{
    writeTimeData(times);
    m_writer.writeEndDocument();
}

void ClipboardXmlWriter::writeSchedule(const ZvSchedule &schedule)
{
    const bool enabled = !schedule.isEmpty();
    m_writer.writeStartElement(latin(scheduleElement));
    m_writer.writeAttribute(latin(enabledAttribute), latin(enabled ? "true" : "false"));
    if (enabled) {
        m_writer.writeAttribute(latin(typeAttribute), typeText(schedule));
        writeStageName(defaultStageAttribute, schedule.defaultStage());
        writeEscapedMark(schedule.defaultStage());
        writeTimeData(schedule.timeList());
    }
    m_writer.writeEndElement();
}

void ClipboardXmlWriter::writeTimeData(const QList<ZvTime> &times)
{
    const QString format = QStringLiteral("hh:mm:ss");
    // A time by itself would write the digits of the system's language.
    const QLocale plain = QLocale::c();
    m_writer.writeStartElement(latin(timeDataElement));
    for (const ZvTime &time : times) {
        m_writer.writeStartElement(latin(timeElement));
        writeStageName(stageAttribute, time.stageName());
        m_writer.writeAttribute(latin(startAttribute), plain.toString(time.startTime(), format));
        m_writer.writeAttribute(latin(endAttribute), plain.toString(time.endTime(), format));
        writeEscapedMark(time.stageName());
        m_writer.writeEndElement();
    }
    m_writer.writeEndElement();
}

// The stream writer would leave a character out, or spoil all that follows.
void ClipboardXmlWriter::writeStageName(const char *attribute, const QString &name)
{
    m_writer.writeAttribute(latin(attribute),
                            XmlText::canHold(name) ? name : XmlText::escaped(name));
}

void ClipboardXmlWriter::writeEscapedMark(const QString &name)
{
    if (!XmlText::canHold(name))
        m_writer.writeAttribute(latin(escapedAttribute), latin("true"));
}

ClipboardXmlReader::ClipboardXmlReader(const QByteArray &xml, int maximumScheduleCount,
                                       int maximumTimeCount)
    : m_reader(upToUnreasonableTag(xml))
    , m_maximumScheduleCount(maximumScheduleCount)
    , m_maximumTimeCount(maximumTimeCount)
{
}

bool ClipboardXmlReader::isStart(const char *name) const
{
    return m_reader.isStartElement() && m_reader.name() == QLatin1String(name);
}

bool ClipboardXmlReader::isEnd(const char *name) const
{
    return m_reader.isEndElement() && m_reader.name() == QLatin1String(name);
}

void ClipboardXmlReader::readNext()
{
    m_reader.readNext();
    if (m_reader.isStartElement())
        ++m_depth;
    else if (m_reader.isEndElement())
        --m_depth;
    // The reader keeps every open element, so memory would grow with the depth.
    if (m_depth > maximumDepth || m_reader.isDTD())
        m_reader.raiseError(QStringLiteral("This is no payload of ours"));
}

bool ClipboardXmlReader::findScheduleList()
{
    while (!m_reader.atEnd()) {
        readNext();
        if (isStart(scheduleListElement))
            return true;
    }
    return false;
}

QList<ZvSchedule> ClipboardXmlReader::readSchedules()
{
    QList<ZvSchedule> schedules;
    if (!findScheduleList())
        return schedules;
    while (!m_reader.atEnd() && !isEnd(scheduleListElement)) {
        readNext();
        if (!isStart(scheduleElement))
            continue;
        schedules.append(readSchedule());
        if (m_isBeyondLimit || schedules.size() > m_maximumScheduleCount)
            return {};
    }
    return schedules;
}

ZvSchedule ClipboardXmlReader::readSchedule()
{
    const QXmlStreamAttributes attributes = m_reader.attributes();
    if (attributes.value(QLatin1String(enabledAttribute)) != QLatin1String("true"))
        return {};
    ZvSchedule schedule;
    schedule.setType(ZvSchedule::Default);
    schedule.setDayOfWeek(Weekday::Monday);
    schedule.setDefaultStage(stageNameOf(attributes, defaultStageAttribute));
    applyType(attributes.value(QLatin1String(typeAttribute)).toString(), &schedule);

    while (!m_reader.atEnd() && !isEnd(scheduleElement)) {
        readNext();
        if (!isStart(timeElement))
            continue;
        QList<ZvTime> times = readTimesOfSchedule();
        if (!times.isEmpty())
            schedule.setTimeList(times);
        break;
    }
    return schedule;
}

QList<ZvTime> ClipboardXmlReader::readTimesOfSchedule()
{
    QList<ZvTime> times;
    while (!m_reader.atEnd() && !m_isBeyondLimit) {
        if (isStart(timeElement))
            appendTime(&times);
        else if (m_reader.isEndElement() && !isEnd(timeElement))
            break;
        readNext();
    }
    return times;
}

QList<ZvTime> ClipboardXmlReader::readTimes()
{
    QList<ZvTime> times;
    while (!m_reader.atEnd() && !m_isBeyondLimit) {
        readNext();
        if (isStart(timeElement))
            appendTime(&times);
    }
    return m_isBeyondLimit ? QList<ZvTime>() : times;
}

void ClipboardXmlReader::appendTime(QList<ZvTime> *times)
{
    const QXmlStreamAttributes attributes = m_reader.attributes();
    const auto timeOf = [&attributes](const char *name) {
        return QTime::fromString(attributes.value(QLatin1String(name)).toString(), Qt::TextDate);
    };
    ZvTime time(timeOf(startAttribute), timeOf(endAttribute),
                stageNameOf(attributes, stageAttribute));
    if (!time.isEmpty())
        times->append(time);
    m_isBeyondLimit = times->size() > m_maximumTimeCount;
}

} // namespace Zavo
