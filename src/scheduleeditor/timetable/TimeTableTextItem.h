#pragma once

#include <QGraphicsTextItem>
#include <QStaticText>

namespace Zavo {

/// A plain text of the time table that is not scaled with the view.
///
/// Making such an item costs more than all else about a band, and setting its text comes next. So
/// setLabel() with the text that is there already costs nothing, and finished items can be kept for
/// the next text (see TimeTableLabelPool). Painting through the document would lay out again each
/// time; the glyphs are kept instead, on the same pixels.
class TimeTableTextItem : public QGraphicsTextItem
{
    Q_OBJECT

public:
    explicit TimeTableTextItem(QGraphicsItem *parent = nullptr);

    QString label() const { return m_label; }
    void setLabel(const QString &text);
    /// Sets the font's size to the integer part of @p dpiRatio times 12 pixels.
    void setDpiRatio(double dpiRatio);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QString m_label;
    int m_pixelSize = 0;
    QFont m_font;
    QStaticText m_glyphs;
};

} // namespace Zavo
