#include "timetable/TimeTableTextItem.h"

#include "timetable/TimeTableFont.h"

#include <QPainter>
#include <QTextDocument>

#include <cmath>

namespace Zavo {

namespace {
constexpr double documentMargin = 4.0; // px, that of a text document
} // namespace

TimeTableTextItem::TimeTableTextItem(QGraphicsItem *parent)
    : QGraphicsTextItem(parent)
{
    setFlag(ItemIgnoresTransformations);
    setFlag(ItemIsSelectable, false);
    // A text that asked for hover and drops would make the scene search all items at every move of
    // the mouse.
    setAcceptHoverEvents(false);
    setAcceptDrops(false);
    m_glyphs.setTextFormat(Qt::PlainText);
    m_glyphs.setPerformanceHint(QStaticText::AggressiveCaching);
    setDpiRatio(1.0);
}

void TimeTableTextItem::setLabel(const QString &text)
{
    if (text == m_label)
        return;
    m_label = text;
    setPlainText(text);
    m_glyphs.setText(text);
}

void TimeTableTextItem::setDpiRatio(double dpiRatio)
{
    const int pixelSize = TimeTableFont::pixelSize(dpiRatio);
    if (pixelSize == m_pixelSize)
        return;
    m_pixelSize = pixelSize;
    m_font = TimeTableFont::font(pixelSize);
    setFont(m_font);
}

void TimeTableTextItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                              QWidget *widget)
{
    // Kept glyphs stand on other subpixels than the document's where a pixel is no whole number of
    // device pixels, and all on one line.
    const double pixelRatio = painter->deviceTransform().m11();
    if (pixelRatio != std::floor(pixelRatio) || document()->blockCount() > 1) {
        QGraphicsTextItem::paint(painter, option, widget);
        return;
    }
    painter->setFont(m_font);
    painter->setPen(Qt::black);
    painter->drawStaticText(QPointF(documentMargin, documentMargin), m_glyphs);
}

} // namespace Zavo
