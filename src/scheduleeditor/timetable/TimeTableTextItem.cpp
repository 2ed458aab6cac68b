#include "timetable/TimeTableTextItem.h"

#include "timetable/MereNotice.h"
#include "timetable/TimeTableFont.h"
#include "timetable/TimeTableText.h"

#include <utility>

namespace Zavo {

TimeTableTextItem::TimeTableTextItem(const QString &text, QGraphicsItem *parent)
    : QGraphicsTextItem(parent)
    , m_label(text)
    , m_pixelSize(TimeTableFont::pixelSize(1.0))
{
    setFlag(ItemIgnoresTransformations);
    setFlag(ItemIsSelectable, false);
    // A text that asked for hover and drops would make the scene search all items at every move of
    // the mouse.
    setAcceptHoverEvents(false);
    setAcceptDrops(false);
    layOut();
}

void TimeTableTextItem::setLabel(const QString &text)
{
    if (text == m_label)
        return;
    m_label = text;
    layOut();
}

void TimeTableTextItem::setDpiRatio(double dpiRatio)
{
    const int pixelSize = TimeTableFont::pixelSize(dpiRatio);
    if (pixelSize == m_pixelSize)
        return;
    m_pixelSize = pixelSize;
    layOut();
}

void TimeTableTextItem::layOut()
{
    // The item lets go of the old document before that can die.
    const std::shared_ptr<TimeTableText> old =
        std::exchange(m_text, TimeTableTexts::find(m_label, m_pixelSize));
    setDocument(&m_text->document);
}

QVariant TimeTableTextItem::itemChange(GraphicsItemChange change, const QVariant &value)
{
    return isMereNotice(change) ? QVariant() : QGraphicsTextItem::itemChange(change, value);
}

void TimeTableTextItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                              QWidget *widget)
{
    if (!m_text->paint(painter))
        QGraphicsTextItem::paint(painter, option, widget);
}

} // namespace Zavo
