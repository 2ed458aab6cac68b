#include "RecordWriter.h"

using namespace Zavo;

namespace ZavoFuzz {

QString RecordWriter::name()
{
    const int length = m_input->below(12);
    QString name;
    for (int i = 0; i < length; ++i) {
        const int unit = m_input->byte();
        name += unit == 0xff ? QChar(m_input->word()) : QChar(unit);
    }
    return name;
}

QTime RecordWriter::time()
{
    constexpr int msPerDay = 86400000;
    const int high = m_input->byte();
    const int ms = high * 65536 * 8 + m_input->word() * 8 + m_input->below(8);
    return high == 0xff ? QTime() : QTime::fromMSecsSinceStartOfDay(ms % msPerDay);
}

ZvTime RecordWriter::band()
{
    const QTime start = time();
    const QTime end = m_input->flag() ? time() : start.addSecs(m_input->byte());
    return {start, end, name()};
}

ZvSchedule RecordWriter::schedule()
{
    ZvSchedule schedule;
    const int kind = m_input->below(8);
    schedule.setType(static_cast<ZvSchedule::ScheduleTypes>(kind < 6 ? 1 + kind / 2 : kind - 3));
    schedule.setDayOfWeek(static_cast<Weekday::Days>(m_input->below(10)));
    const int year = m_input->word() - 5000;
    schedule.setDate(QDate(year, m_input->below(14), m_input->below(33)));
    schedule.setDefaultStage(name());
    QList<ZvTime> bands;
    for (int i = m_input->below(6); i > 0; --i)
        bands.append(band());
    schedule.setTimeList(bands);
    return schedule;
}

QList<ZvSchedule> RecordWriter::schedules()
{
    QList<ZvSchedule> list;
    while (!m_input->isEmpty() && list.size() < 64)
        list.append(schedule());
    return list;
}

} // namespace ZavoFuzz
