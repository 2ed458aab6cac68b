#include "timetable/ZvTimeTableTimeItemLabel.h"

#include "timetable/TimeTableFont.h"

#include <QPainter>

namespace Zavo {

ZvTimeTableTimeItemLabel::ZvTimeTableTimeItemLabel(QGraphicsItem *parent)
    : ZvTimeTableTimeItemLabel(QString(), parent)
{
}

ZvTimeTableTimeItemLabel::ZvTimeTableTimeItemLabel(const QString &text, QGraphicsItem *parent)
    : TimeTableTextItem(text, parent)
{
}

void ZvTimeTableTimeItemLabel::setBackgroundColor(const QColor &color)
{
    if (color == m_backgroundColor)
        return;
    m_backgroundColor = color;
    update();
}

void ZvTimeTableTimeItemLabel::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                                     QWidget *widget)
{
    const double ratio = TimeTableFont::dpiRatioOf(*painter);
    if (ratio != m_dpiRatio) {
        m_dpiRatio = ratio;
        setDpiRatio(ratio);
    }
    if (m_backgroundColor.alpha() > 0)
        painter->fillRect(boundingRect(), m_backgroundColor);
    TimeTableTextItem::paint(painter, option, widget);
}

} // namespace Zavo
