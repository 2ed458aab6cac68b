#pragma once

#include <QGraphicsTextItem>

#include <memory>

namespace Zavo {

class TimeTableText;

/// A plain text of the time table that is not scaled with the view.
///
/// Making such an item costs more than all else about a band, and laying out its text comes next.
/// So labels of the same text share it (see TimeTableTexts), setLabel() with the text that is there
/// already costs nothing, and finished items can be kept for the next text (see
/// TimeTableLabelPool). Painting through the document would lay out again each time; the glyphs are
/// kept instead, on the same pixels.
class TimeTableTextItem : public QGraphicsTextItem
{
    Q_OBJECT

public:
    explicit TimeTableTextItem(const QString &text, QGraphicsItem *parent = nullptr);

    QString label() const { return m_label; }
    void setLabel(const QString &text);
    /// Sets the font's size to the integer part of @p dpiRatio times 12 pixels.
    void setDpiRatio(double dpiRatio);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;

private:
    void layOut();

    QString m_label;
    int m_pixelSize;
    std::shared_ptr<TimeTableText> m_text;
};

} // namespace Zavo
