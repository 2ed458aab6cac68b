#include "domain/SelectionType.h"
#include "domain/ZvScheduleBasicInfo.h"
#include "domain/ZvTimeTableTimeLabelInfo.h"

#include <QGraphicsScene>
#include <QImage>
#include <QList>
#include <QMap>
#include <QObject>
#include <QRectF>
#include <QWidget>

Q_DECLARE_METATYPE(bool *)
Q_DECLARE_METATYPE(int *)
Q_DECLARE_METATYPE(QImage **)
Q_DECLARE_METATYPE(const QWidget *)

namespace Zavo {

namespace {

// Signals spell these types without their namespace, and queued connections and whoever records
// signals go by that name.
void registerMetaTypes()
{
    qRegisterMetaType<QMap<int, QRectF>>("QMap<int,QRectF>");
    qRegisterMetaType<bool *>("bool*");
    qRegisterMetaType<int *>("int*");
    qRegisterMetaType<QImage **>("QImage**");
    qRegisterMetaType<const QWidget *>("const QWidget*");
    qRegisterMetaType<QGraphicsScene *>("QGraphicsScene*");
    qRegisterMetaType<QList<QGraphicsScene *>>("QList<QGraphicsScene*>");
    qRegisterMetaType<Qt::DayOfWeek>("Qt::DayOfWeek");
    qRegisterMetaType<ZvScheduleBasicInfo>("ZvScheduleBasicInfo");
    qRegisterMetaType<ZvScheduleBasicInfo *>("ZvScheduleBasicInfo*");
    qRegisterMetaType<QList<ZvScheduleBasicInfo>>("QList<ZvScheduleBasicInfo>");
    qRegisterMetaType<SelectionType>("SelectionType");
    qRegisterMetaType<ZvTimeTableTimeLabelInfo>("ZvTimeTableTimeLabelInfo");
    qRegisterMetaType<QList<ZvTimeTableTimeLabelInfo>>("QList<ZvTimeTableTimeLabelInfo>");
}

} // namespace

// Runs when the library is loaded, before any signal can be connected.
Q_CONSTRUCTOR_FUNCTION(registerMetaTypes)

} // namespace Zavo
