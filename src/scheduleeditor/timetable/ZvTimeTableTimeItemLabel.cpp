#include "timetable/ZvTimeTableTimeItemLabel.h"

#include "timetable/TimeTableFont.h"

#include <QPainter>

namespace Zavo {

ZvTimeTableTimeItemLabel::ZvTimeTableTimeItemLabel(QGraphicsItem *parent)
    : TimeTableTextItem(parent)
{
    setText(QString());
}

void ZvTimeTableTimeItemLabel::setText(const QString &text)
{
    setLabel(text, TimeTableFont::pixelSize(m_dpiRatio));
}

void ZvTimeTableTimeItemLabel::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    update();
}

void ZvTimeTableTimeItemLabel::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                                     QWidget *widget)
{
    const double ratio = TimeTableFont::dpiRatioOf(*painter);
    if (ratio != m_dpiRatio) {
        m_dpiRatio = ratio;
        setText(toPlainText());
    }
    if (m_backgroundColor.alpha() > 0)
        painter->fillRect(boundingRect(), m_backgroundColor);
    QGraphicsTextItem::paint(painter, option, widget);
}

} // namespace Zavo
