#pragma once

#include "exporter/ExportRequest.h"

#include <QCoreApplication>

namespace Zavo {

class ZvChannel;

/// What a channel shows in a range of dates as an iCalendar file, an event for each time that a
/// stage is shown.
class ChannelCalendar final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::ChannelCalendar)

public:
    /// More events than any calendar program opens.
    static constexpr int MaximumEvents = 200000;

    ChannelCalendar() = delete;

    /// Times are those of the clock on the wall, wherever the display stands. An event that is
    /// exported again has the identity that it had, so that a calendar takes it in place of the old
    /// one. @p from to @p to are valid, in order and no more than ExportRequest::MaximumDays.
    static ExportContent of(const ZvChannel &channel, const QDate &from, const QDate &to);
};

} // namespace Zavo
