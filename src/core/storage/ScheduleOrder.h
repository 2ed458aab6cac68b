#pragma once

#include "ZvSchedule.h"

/// The order of a channel's schedules and of a schedule's bands, and the rules by which they are
/// stored. Knows neither channels nor files.
namespace Zavo::ScheduleOrder {

/// True if the schedule has a place in a channel: a type, and the day or date that it asks for.
bool isPlaceable(const ZvSchedule &schedule);

/// Strict order of placeable schedules: default, Monday to Sunday, dates ascending.
bool isBefore(const ZvSchedule &a, const ZvSchedule &b);

/// The schedule with only the day or date that its type uses.
ZvSchedule withoutForeignKeys(const ZvSchedule &schedule);

/// True if the bands are sorted by start, none ends before it starts or after the next one starts.
bool isInOrder(const QList<ZvTime> &bands);

/// The bands as isInOrder() wants them. A band that runs past the start of the next ends there.
QList<ZvTime> inOrder(QList<ZvTime> bands);

/// What is stored when @p bands, which are in order, come back over @p stored: the stored record of
/// each band that is == to it, the others put on the whole second when they are close to it.
QList<ZvTime> storedAgain(const QList<ZvTime> &bands, const QList<ZvTime> &stored);

/// Puts schedules and their bands in order, and touches neither if they are. False if two schedules
/// have the same key or one has no place.
bool putInOrder(QList<ZvSchedule> *schedules);

} // namespace Zavo::ScheduleOrder
