#include "timetable/ZvTimeTableBaseItem.h"

#include "timetable/TimeTableFont.h"
#include "timetable/ZvTimeTableTimeLabelItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLocale>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTimer>

#include <cmath>

namespace Zavo {

namespace {

constexpr double timeZoneWidth = 240.0;
constexpr double secondLength = 0.016666666666666666; // in scene units
constexpr int secondsPerDay = 86400;
constexpr int relabelDelay = 10;          // ms
constexpr double labelReach = 50.0;       // px that a label may stand away from its line
constexpr double leastScaleOfRange = 3.0; // below that most of the day is in sight
constexpr double sightsAhead = 1.0;       // drawn on both sides of what is in sight
constexpr double mostSightsDrawn = 8.0;

} // namespace

ZvTimeTableBaseItem::ZvTimeTableBaseItem(QGraphicsItem *parent)
    : QGraphicsObject(parent)
    , m_labelItem(new ZvTimeTableTimeLabelItem(this))
    , m_labels(m_labelItem)
{
    qRegisterMetaType<QList<ZvTimeTableTimeLabelInfo>>("QList<ZvTimeTableTimeLabelInfo>");
    setFlag(ItemUsesExtendedStyleOption);
    m_labelItem->setHeight(m_height);
}

QRectF ZvTimeTableBaseItem::boundingRect() const
{
    return {0.0, 0.0, m_width, m_height};
}

QString ZvTimeTableBaseItem::timeStringAt(const QPointF &pos) const
{
    const double seconds = std::floor((pos.y() - m_topMargin) / secondLength + 0.5);
    if (seconds == secondsPerDay)
        return QStringLiteral("24:00:00");
    if (!(seconds >= 0.0 && seconds < secondsPerDay))
        return QStringLiteral("--:--:--");
    const QTime time = QTime(0, 0).addSecs(static_cast<int>(seconds));
    return QLocale::c().toString(time, QStringLiteral("hh:mm:ss"));
}

void ZvTimeTableBaseItem::addTimeZone(ZvTimeTableTimeZoneItem *zone)
{
    if (!zone)
        return;
    if (m_timeZones.contains(zone)) {
        zone->setSelected(true);
        return;
    }
    QRectF strip(m_labelAreaWidth, m_topMargin, timeZoneWidth, m_height - 2.0 * m_topMargin);
    if (!m_timeZones.isEmpty()) {
        const ZvTimeTableTimeZoneItem *last = m_timeZones.last();
        const QRectF lastStrip = last->innerRect().translated(last->pos());
        strip = lastStrip;
        strip.moveLeft(lastStrip.right() + last->margin() + zone->margin());
    }
    m_timeZones.append(zone);
    zone->setParentItem(this);
    zone->setRect(strip);

    const double right = zone->x() + zone->boundingRect().right() + m_rightMargin;
    if (right != boundingRect().right()) {
        prepareGeometryChange();
        m_width = right;
        update();
    }
}

void ZvTimeTableBaseItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                                QWidget *widget)
{
    followFontDpi(*painter);
    followSight(option->exposedRect, widget);
    if (m_ruler.verticalScale() != m_verticalScale)
        m_ruler = TimeTableRuler(m_verticalScale);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    fillTimeZones(painter);
    m_lines.paint(painter, m_ruler, static_cast<int>(m_width), option->exposedRect.top(),
                  option->exposedRect.bottom());
    painter->restore();
    Q_EMIT timeTablePosUpdated(scenePos());
    m_labels.setLabels(m_ruler.labels(), m_verticalScale, m_dpiRatio);
    const double reach = labelReach * m_dpiRatio / m_verticalScale;
    m_labels.ensure(option->exposedRect.top() - reach, option->exposedRect.bottom() + reach);
}

void ZvTimeTableBaseItem::followFontDpi(const QPainter &painter)
{
    const double ratio = TimeTableFont::dpiRatioOf(painter);
    if (ratio == m_dpiRatio)
        return;
    m_dpiRatio = ratio;
    QTimer::singleShot(relabelDelay, this, SLOT(synchroniseLabels()));
}

void ZvTimeTableBaseItem::fillTimeZones(QPainter *painter) const
{
    for (const ZvTimeTableTimeZoneItem *zone : m_timeZones)
        painter->fillRect(zone->innerRect().translated(zone->scenePos()), Qt::white);
}

void ZvTimeTableBaseItem::followSight(const QRectF &exposed, const QWidget *viewport)
{
    const auto *view =
        viewport ? qobject_cast<const QGraphicsView *>(viewport->parentWidget()) : nullptr;
    QRectF seen = exposed;
    if (view)
        seen |= mapRectFromScene(view->mapToScene(viewport->rect()).boundingRect());
    const double reach = labelReach * m_dpiRatio / m_verticalScale;
    const DrawnRange sight = DrawnRange{seen.top(), seen.bottom()}.grownBy(reach);

    const bool isKept = m_drawnScale == m_verticalScale && m_drawnRange.contains(sight) &&
                        (m_verticalScale < leastScaleOfRange ||
                         m_drawnRange.length() <= mostSightsDrawn * sight.length());
    if (!isKept) {
        m_drawnScale = m_verticalScale;
        m_drawnRange = m_verticalScale < leastScaleOfRange
                           ? DrawnRange()
                           : sight.grownBy(sight.length() * sightsAhead);
    }
    m_labels.drawWithin(m_drawnRange);
    for (ZvTimeTableTimeZoneItem *zone : qAsConst(m_timeZones))
        zone->drawWithin(m_drawnRange);
}

void ZvTimeTableBaseItem::synchroniseLabels()
{
    m_labels.setDpiRatio(m_dpiRatio);
}

void ZvTimeTableBaseItem::correctLabelAreaPos()
{
    const QList<QGraphicsView *> views = scene() ? scene()->views() : QList<QGraphicsView *>();
    if (views.isEmpty())
        return;
    const double left = views.first()->mapToScene(QPoint(0, 0)).x();
    m_labelItem->setX(left > x() ? left : 0.0);
}

} // namespace Zavo
