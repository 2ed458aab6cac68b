#pragma once

#include <QDate>
#include <QString>

namespace Zavo {

/// Qt makes its calendars when the first date is written or read, and must not do so in two threads
/// at once: one of them would get no text. To be called before a thread begins that does.
inline void makeCalendars()
{
    QDate::currentDate().toString(Qt::ISODate);
}

} // namespace Zavo
