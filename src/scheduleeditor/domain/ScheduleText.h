#pragma once

#include <QList>
#include <QString>

class QDate;

namespace Zavo {

class ZvScheduleBasicInfo;

/// The date in the long format of the system's locale, with the short name of its day in
/// parentheses.
QString dateText(const QDate &date);

/// What a schedule is called in titles and questions; empty for a type that no channel holds.
QString scheduleText(const ZvScheduleBasicInfo &info);

/// A line with a running number from 1 for each of @p infos to which @p textOf gives a text.
QString numberedTexts(const QList<ZvScheduleBasicInfo> &infos,
                      QString (*textOf)(const ZvScheduleBasicInfo &) = scheduleText);

} // namespace Zavo
