#pragma once

#include <QColor>
#include <QGraphicsObject>

namespace Zavo {

/// The bar at the top or the bottom edge of a selected band by which it is resized. It only paints
/// and gives its rectangle; the scene does the resizing.
class ZvTimeTableTimeItemResizeHandle final : public QGraphicsObject
{
    Q_OBJECT

public:
    /// Values are bit flags of the edges that carry the line, and the drag modes of the scene.
    enum HandleType { NoHandle = 0, TopHandle = 1, BottomHandle = 2 };

    explicit ZvTimeTableTimeItemResizeHandle(HandleType handleType,
                                             QGraphicsItem *parent = nullptr);

    QRectF boundingRect() const override;

    HandleType handleType() const { return m_handleType; }
    double handleWidth() const { return m_handleWidth; }
    double handleHeight() const { return m_handleHeight; }
    double maximumHeight() const;

    /// Size in screen pixels.
    void setHandleWidth(double width);
    void setHandleHeight(double height);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;

private:
    double m_handleWidth = 240.0;
    double m_handleHeight = 5.0;
    QColor m_color = Qt::blue;
    HandleType m_handleType = NoHandle;
};

} // namespace Zavo
