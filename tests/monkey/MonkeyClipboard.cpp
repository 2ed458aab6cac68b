#include "MonkeyClipboard.h"

#include "ZvEditorCommon.h"
#include "ZvSchedule.h"
#include "services/ZvScheduleClipboard.h"

#include <QUrl>

using namespace Zavo;

namespace ZavoTest {

namespace {

constexpr int DayMs = 24 * 60 * 60 * 1000;

QList<ZvTime> someTimes(MonkeyChoice *choice)
{
    QList<ZvTime> list;
    const int count = choice->between(0, 6);
    for (int i = 0; i < count; ++i) {
        const QTime start = QTime::fromMSecsSinceStartOfDay(choice->below(DayMs));
        const QTime end = QTime::fromMSecsSinceStartOfDay(choice->below(DayMs));
        list.append({start, end, QStringLiteral("stage %1.xml").arg(i)});
    }
    return list;
}

ZvSchedule someSchedule(MonkeyChoice *choice)
{
    ZvSchedule schedule;
    schedule.setType(choice->from(QList<ZvSchedule::ScheduleTypes>{
        ZvSchedule::Default, ZvSchedule::DayOfWeek, ZvSchedule::Date}));
    schedule.setDayOfWeek(static_cast<Weekday::Days>(choice->between(1, 8)));
    schedule.setDefaultStage(choice->chance(50) ? QStringLiteral("welcome.xml") : QString());
    schedule.setDate(QDate::currentDate().addDays(choice->between(-400, 400)));
    schedule.setTimeList(someTimes(choice));
    return schedule;
}

} // namespace

QByteArray MonkeyClipboard::damaged(QByteArray bytes)
{
    const int changes = m_choice->between(0, 4);
    for (int i = 0; i < changes && !bytes.isEmpty(); ++i) {
        const int place = m_choice->below(bytes.size());
        if (m_choice->chance(20))
            bytes.truncate(place);
        else
            bytes[place] = static_cast<char>(m_choice->below(256));
    }
    return bytes;
}

QByteArray MonkeyClipboard::times()
{
    return ZvScheduleClipboard::timesToXml(someTimes(m_choice));
}

QByteArray MonkeyClipboard::schedules()
{
    QList<ZvSchedule> list;
    const int count = m_choice->between(0, 9);
    for (int i = 0; i < count; ++i)
        list.append(someSchedule(m_choice));
    return ZvScheduleClipboard::schedulesToXml(list);
}

std::unique_ptr<QMimeData> MonkeyClipboard::payload(const QStringList &stageFiles)
{
    auto data = std::make_unique<QMimeData>();
    const bool broken = m_choice->chance(40);
    switch (m_choice->below(6)) {
    case 0:
        data = files(stageFiles);
        break;
    case 1:
        data->setText(text());
        break;
    case 2:
        data->setData(ZvEditorCommon::MIME_TYPE_STAGE_NAME,
                      damaged(m_choice->chance(50) ? text().toUtf8() : times()));
        break;
    case 3:
    case 4:
        data->setData(ZvEditorCommon::MIME_TYPE_TIME_DATA, broken ? damaged(times()) : times());
        break;
    default:
        data->setData(ZvEditorCommon::MIME_TYPE_SCHEDULE_DATA,
                      broken ? damaged(schedules()) : schedules());
    }
    return data;
}

std::unique_ptr<QMimeData> MonkeyClipboard::files(const QStringList &stageFiles)
{
    QList<QUrl> urls;
    const int count = m_choice->between(0, 5);
    for (int i = 0; i < count; ++i) {
        if (!stageFiles.isEmpty() && m_choice->chance(85))
            urls.append(QUrl::fromLocalFile(m_choice->from(stageFiles)));
        else
            urls.append(QUrl(QStringLiteral("file:///../%1").arg(text())));
    }
    auto data = std::make_unique<QMimeData>();
    data->setUrls(urls);
    if (m_choice->chance(10))
        data->setData(QStringLiteral("text/uri-list"),
                      damaged(data->data(QStringLiteral("text/uri-list"))));
    return data;
}

QString MonkeyClipboard::text()
{
    static const QString characters = QStringLiteral("aZ 09.:/\\<>&%'\"-_?*|\t") + QChar(0xe4) +
                                      QChar(0x3042) + QChar(0x645) + QChar(0x202e) + QChar(0xd83d) +
                                      QChar(0xde00) + QChar(0xfffe) + QChar(0x7f);
    QString text;
    const int length = m_choice->chance(3) ? 2000 : m_choice->between(0, 12);
    for (int i = 0; i < length; ++i)
        text.append(m_choice->from(characters));
    return text;
}

} // namespace ZavoTest
