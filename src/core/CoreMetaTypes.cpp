#include "ZvChannel.h"
#include "ZvStage.h"

#include <QMap>

namespace Zavo {

namespace {
/// Signals name these types without their namespace, and queued connections go by that name.
void registerMetaTypes()
{
    qRegisterMetaType<ZvTime>("ZvTime");
    qRegisterMetaType<QList<ZvTime>>("QList<ZvTime>");
    qRegisterMetaType<QMap<int, ZvTime>>("QMap<int,ZvTime>");
    qRegisterMetaType<ZvSchedule>("ZvSchedule");
    qRegisterMetaType<QList<ZvSchedule>>("QList<ZvSchedule>");
    qRegisterMetaType<ZvSchedule::ScheduleTypes>("ZvSchedule::ScheduleTypes");
    qRegisterMetaType<Weekday::Days>("Weekday::Days");
    qRegisterMetaType<ZvChannel *>("ZvChannel*");
    qRegisterMetaType<const ZvChannel *>("const ZvChannel*");
    qRegisterMetaType<QList<ZvChannel *>>("QList<ZvChannel*>");
    qRegisterMetaType<ZvStage>("ZvStage");
}
} // namespace

// Runs when the library is loaded, before any signal can be connected.
Q_CONSTRUCTOR_FUNCTION(registerMetaTypes)

} // namespace Zavo
