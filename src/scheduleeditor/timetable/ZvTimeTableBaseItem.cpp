#include "timetable/ZvTimeTableBaseItem.h"

#include "timetable/TimeTableFont.h"
#include "timetable/ZvTimeTableTimeLabelItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace Zavo {

namespace {

constexpr double timeZoneWidth = 240.0;
constexpr double secondLength = 0.016666666666666666; // in scene units
constexpr int secondsPerDay = 86400;
constexpr int relabelDelay = 10;    // ms
constexpr double labelReach = 50.0; // px that a label may stand away from its line

QPen cosmeticPen(const QColor &color, Qt::PenStyle style = Qt::SolidLine)
{
    QPen pen(color, 1.0, style);
    pen.setCosmetic(true);
    return pen;
}

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
    return QTime(0, 0).addSecs(static_cast<int>(seconds)).toString(QStringLiteral("hh:mm:ss"));
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
                                QWidget *)
{
    followFontDpi(*painter);
    if (m_ruler.verticalScale() != m_verticalScale)
        m_ruler = TimeTableRuler(m_verticalScale);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    fillTimeZones(painter);
    paintRuler(painter, option->exposedRect);
    painter->restore();
    Q_EMIT timeTablePosUpdated(scenePos());
    m_labels.setLabels(m_ruler.labels(), m_verticalScale);
    m_labels.ensure(option->exposedRect.top() - labelReach / m_verticalScale,
                    option->exposedRect.bottom() + labelReach / m_verticalScale);
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

void ZvTimeTableBaseItem::paintRuler(QPainter *painter, const QRectF &exposed)
{
    const QPen pens[] = {cosmeticPen(Qt::gray, Qt::DotLine), cosmeticPen(Qt::gray),
                         cosmeticPen(Qt::blue)};
    // Lines are drawn at the whole unit above them, so one starts up to a unit before it shows.
    const auto &lines = m_ruler.lines();
    auto line = std::lower_bound(
        lines.cbegin(), lines.cend(), exposed.top() - 1.0,
        [](const TimeTableRulerLine &candidate, double y) { return candidate.y < y; });
    for (; line != lines.cend() && line->y <= exposed.bottom() + 1.0; ++line) {
        painter->setPen(pens[line->kind]);
        const int y = static_cast<int>(line->y);
        painter->drawLine(QLine(0, y, static_cast<int>(m_width), y));
    }
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
