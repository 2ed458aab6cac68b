#include "storage/ChannelFile.h"

#include "storage/ScheduleOrder.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace Zavo::ChannelFile {

namespace {
const QString TimePattern = QStringLiteral("hh:mm:ss.zzz");

QString typeWord(ZvSchedule::ScheduleTypes type)
{
    if (type == ZvSchedule::Default)
        return QStringLiteral("default");
    return type == ZvSchedule::Date ? QStringLiteral("date") : QStringLiteral("day");
}

ZvSchedule::ScheduleTypes typeOf(const QStringRef &word)
{
    for (const auto type : {ZvSchedule::Default, ZvSchedule::Date, ZvSchedule::DayOfWeek}) {
        if (word == typeWord(type))
            return type;
    }
    return ZvSchedule::NoType;
}

bool readSchedule(QXmlStreamReader &xml, ZvSchedule *schedule)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    schedule->setType(typeOf(attributes.value(QStringLiteral("type"))));
    schedule->setDayOfWeek(
        static_cast<Weekday::Days>(attributes.value(QStringLiteral("day")).toInt()));
    schedule->setDate(
        QDate::fromString(attributes.value(QStringLiteral("date")).toString(), Qt::ISODate));
    schedule->setDefaultStage(attributes.value(QStringLiteral("defaultStage")).toString());
    while (xml.readNextStartElement()) {
        const QXmlStreamAttributes band = xml.attributes();
        const auto time = [&band](const QString &name) {
            return QTime::fromString(band.value(name).toString(), TimePattern);
        };
        const ZvTime read(time(QStringLiteral("start")), time(QStringLiteral("end")),
                          band.value(QStringLiteral("stage")).toString());
        if (!read.startTime().isValid() || !read.endTime().isValid() ||
            read.endTime() < read.startTime())
            return false;
        schedule->timeList().append(read);
        xml.skipCurrentElement();
    }
    return ScheduleOrder::isPlaceable(*schedule);
}
} // namespace

bool parse(const QByteArray &bytes, ChannelRecord *record)
{
    QXmlStreamReader xml(bytes);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("Channel") ||
        xml.attributes().value(QStringLiteral("version")) != QLatin1String("1"))
        return false;
    ChannelRecord read;
    read.id = xml.attributes().value(QStringLiteral("id")).toInt();
    read.index = xml.attributes().value(QStringLiteral("index")).toInt();
    read.name = xml.attributes().value(QStringLiteral("name")).toString();
    while (xml.readNextStartElement()) {
        ZvSchedule schedule;
        if (!readSchedule(xml, &schedule))
            return false;
        read.schedules.append(ScheduleOrder::withoutForeignKeys(schedule));
    }
    if (xml.hasError())
        return false;
    std::stable_sort(read.schedules.begin(), read.schedules.end(), ScheduleOrder::isBefore);
    *record = read;
    return true;
}

bool serialize(const ChannelRecord &record, QByteArray *bytes)
{
    QXmlStreamWriter xml(bytes);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("Channel"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1"));
    xml.writeAttribute(QStringLiteral("id"), QString::number(record.id));
    xml.writeAttribute(QStringLiteral("index"), QString::number(record.index));
    xml.writeAttribute(QStringLiteral("name"), record.name);
    for (const ZvSchedule &schedule : record.schedules) {
        xml.writeStartElement(QStringLiteral("Schedule"));
        xml.writeAttribute(QStringLiteral("type"), typeWord(schedule.type()));
        if (schedule.type() == ZvSchedule::DayOfWeek)
            xml.writeAttribute(QStringLiteral("day"), QString::number(schedule.dayOfWeek()));
        if (schedule.type() == ZvSchedule::Date)
            xml.writeAttribute(QStringLiteral("date"), schedule.date().toString(Qt::ISODate));
        xml.writeAttribute(QStringLiteral("defaultStage"), schedule.defaultStage());
        const QList<ZvTime> &bands = schedule.timeList();
        for (const ZvTime &band : bands) {
            xml.writeStartElement(QStringLiteral("Time"));
            xml.writeAttribute(QStringLiteral("stage"), band.stageName());
            xml.writeAttribute(QStringLiteral("start"), band.startTime().toString(TimePattern));
            xml.writeAttribute(QStringLiteral("end"), band.endTime().toString(TimePattern));
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return !xml.hasError();
}

} // namespace Zavo::ChannelFile
