#pragma once

#include <QString>

class QDate;

namespace Zavo {

class ZvScheduleBasicInfo;

/// The date in the long format of the system's locale, with the short name of its day in
/// parentheses.
QString dateText(const QDate &date);

/// What a schedule is called in titles and questions; empty for a type that no channel holds.
QString scheduleText(const ZvScheduleBasicInfo &info);

} // namespace Zavo
