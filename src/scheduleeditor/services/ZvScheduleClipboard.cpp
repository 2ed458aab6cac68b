#include "services/ZvScheduleClipboard.h"

#include "ZvEditorCommon.h"
#include "services/ClipboardXml.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace Zavo {

namespace {

const QMimeData *clipboardData()
{
    const QClipboard *clipboard = QGuiApplication::clipboard();
    return clipboard ? clipboard->mimeData(QClipboard::Clipboard) : nullptr;
}

bool hasFormat(const QString &mimeType)
{
    const QMimeData *data = clipboardData();
    return data && data->hasFormat(mimeType);
}

QByteArray payload(const QString &mimeType)
{
    const QMimeData *data = clipboardData();
    return data ? data->data(mimeType) : QByteArray();
}

void setPayload(const QString &mimeType, const QByteArray &xml)
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (!clipboard)
        return;
    auto *data = new QMimeData;
    data->setData(mimeType, xml);
    clipboard->setMimeData(data, QClipboard::Clipboard);
}

} // namespace

void ZvScheduleClipboard::writeSchedulesToClipboard(const QList<ZvSchedule> &schedules)
{
    if (!schedules.isEmpty())
        setPayload(ZvEditorCommon::MIME_TYPE_SCHEDULE_DATA, schedulesToXml(schedules));
}

void ZvScheduleClipboard::writeTimesToClipboard(const QList<ZvTime> &times)
{
    if (!times.isEmpty())
        setPayload(ZvEditorCommon::MIME_TYPE_TIME_DATA, timesToXml(times));
}

QList<ZvSchedule> ZvScheduleClipboard::readSchedulesFromClipboard()
{
    return xmlToSchedules(payload(ZvEditorCommon::MIME_TYPE_SCHEDULE_DATA));
}

QList<ZvTime> ZvScheduleClipboard::readTimesFromClipboard()
{
    return xmlToTimes(payload(ZvEditorCommon::MIME_TYPE_TIME_DATA));
}

bool ZvScheduleClipboard::hasScheduleData()
{
    return hasFormat(ZvEditorCommon::MIME_TYPE_SCHEDULE_DATA);
}

bool ZvScheduleClipboard::hasTimeData()
{
    return hasFormat(ZvEditorCommon::MIME_TYPE_TIME_DATA);
}

QByteArray ZvScheduleClipboard::schedulesToXml(const QList<ZvSchedule> &schedules)
{
    QByteArray xml;
    ClipboardXmlWriter(&xml).writeSchedules(schedules);
    return xml;
}

QByteArray ZvScheduleClipboard::timesToXml(const QList<ZvTime> &times)
{
    QByteArray xml;
    ClipboardXmlWriter(&xml).writeTimes(times);
    return xml;
}

QList<ZvSchedule> ZvScheduleClipboard::xmlToSchedules(const QByteArray &xml)
{
    if (xml.size() > MaximumPayloadSize)
        return {};
    return ClipboardXmlReader(xml, MaximumScheduleCount, MaximumTimeCount).readSchedules();
}

QList<ZvTime> ZvScheduleClipboard::xmlToTimes(const QByteArray &xml)
{
    if (xml.size() > MaximumPayloadSize)
        return {};
    return ClipboardXmlReader(xml, MaximumScheduleCount, MaximumTimeCount).readTimes();
}

} // namespace Zavo
