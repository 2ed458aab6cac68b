#include "navigation/DateSelection.h"

#include <algorithm>

namespace Zavo {

DateSelection::DateSelection(const QDate &lastDate)
    : m_lastDate(lastDate)
{
}

QList<QDate> DateSelection::dates() const
{
    return m_dates.keys();
}

int DateSelection::count() const
{
    return m_dates.size();
}

bool DateSelection::isEmpty() const
{
    return m_dates.isEmpty();
}

bool DateSelection::contains(const QDate &date) const
{
    return m_dates.contains(date);
}

bool DateSelection::intersects(const QMap<QDate, bool> &dates) const
{
    const bool fewer = dates.size() < m_dates.size();
    const QMap<QDate, bool> &few = fewer ? dates : m_dates;
    const QMap<QDate, bool> &many = fewer ? m_dates : dates;
    return std::any_of(few.keyBegin(), few.keyEnd(),
                       [&many](const QDate &date) { return many.contains(date); });
}

QDate DateSelection::successorOf(const QDate &date) const
{
    if (m_dates.size() < 2)
        return {};
    const auto place = m_dates.constFind(date);
    if (place != m_dates.constBegin() && date < m_lastDate)
        return std::prev(place).key();
    const auto next = std::next(place);
    return next != m_dates.constEnd() ? next.key() : std::prev(place).key();
}

void DateSelection::clear()
{
    m_dates.clear();
}

void DateSelection::setRange(const QDate &first, const QDate &last)
{
    QMap<QDate, bool> dates;
    for (QDate date = first; date <= last; date = date.addDays(1))
        dates.insert(dates.cend(), date, true);
    m_dates = dates;
}

void DateSelection::selectOnly(const QDate &date)
{
    setRange(date, date);
    m_lastDate = date;
}

void DateSelection::add(const QDate &date)
{
    m_dates.insert(date, true);
    m_lastDate = date;
}

void DateSelection::takeOut(const QDate &date, const QDate &successor)
{
    m_dates.remove(date);
    m_lastDate = successor.isValid() ? successor : date;
}

void DateSelection::extendTo(const QDate &date)
{
    if (m_dates.isEmpty()) {
        add(date);
        return;
    }
    const QDate first = m_dates.firstKey();
    if (date < first)
        setRange(date, m_dates.lastKey());
    else
        setRange(first, date);
    m_lastDate = date;
}

} // namespace Zavo
