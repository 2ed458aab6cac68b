#pragma once

#include "ZvTime.h"
#include "timetable/SelectionMarkItem.h"
#include "timetable/TimeAxis.h"
#include "timetable/ZvTimeTableTimeItemResizeHandle.h"

#include <QColor>
#include <QGraphicsObject>

namespace Zavo {

class ZvTimeTableTimeItemLabel;

/// One assigned band on the strip. Its y and height are the start and length of its record and are
/// the master while it is dragged: at every step it turns them back into times, truncated.
///
/// Created and deleted by the strip alone. Knows its neighbours and cannot be moved past them. Its
/// texts, mark and handles are not scaled with the view; their geometry is kept in step by hand.
class ZvTimeTableTimeItem final : public QGraphicsObject
{
    Q_OBJECT

public:
    enum { Type = UserType + 3 };

    explicit ZvTimeTableTimeItem(QGraphicsItem *parent = nullptr);
    /// With the stage's name from the start, which spares the label a change. The index label may
    /// still bear another text: the chain hands those labels round when it numbers its bands.
    ZvTimeTableTimeItem(const QString &stageName, int index, QGraphicsItem *parent = nullptr);
    /// Takes itself out of the chain; the items behind it are renumbered.
    ~ZvTimeTableTimeItem() override;

    /// See BandMemory.
    static void *operator new(std::size_t size);
    static void operator delete(void *memory);

    int type() const override { return Type; }
    QRectF boundingRect() const override;

    ZvTime timeInfo() const { return m_timeInfo; }
    QTime startTime() const { return m_timeInfo.startTime(); }
    QTime endTime() const { return m_timeInfo.endTime(); }
    /// Position in the strip, from 0.
    int index() const { return m_index; }
    /// Duration in scene units.
    double itemHeight() const { return m_itemHeight; }
    double itemWidth() const { return m_itemWidth; }
    /// Position and size in the strip's coordinates.
    QRectF itemRect() const { return {x(), y(), m_itemWidth, m_itemHeight}; }

    ZvTimeTableTimeItem *previousItem() const { return m_previousItem; }
    ZvTimeTableTimeItem *nextItem() const { return m_nextItem; }
    ZvTimeTableTimeItemResizeHandle *topHandle() { return &m_topHandle; }
    const ZvTimeTableTimeItemResizeHandle *topHandle() const { return &m_topHandle; }
    ZvTimeTableTimeItemResizeHandle *bottomHandle() { return &m_bottomHandle; }
    const ZvTimeTableTimeItemResizeHandle *bottomHandle() const { return &m_bottomHandle; }

    /// Bottom of the previous band, or the top limit.
    double upperBound() const;
    /// Top of the next band, or the bottom limit.
    double lowerBound() const;
    /// The times of these two bounds.
    QTime minimumStartTime() const;
    QTime maximumEndTime() const;

    /// Places the band at the record's times; in a scene the record it ends up with is the one
    /// derived from that geometry, unless the time update is blocked.
    void setTimeInfo(const ZvTime &time);
    void setItemHeight(double height);
    void setItemWidth(double width);
    void setLeft(double left) { m_left = left; }
    void setTopMargin(double topMargin) { m_topMargin = topMargin; }
    void setDayBottom(double dayBottom) { m_dayBottom = dayBottom; }
    void setVerticalScale(double scale);
    void setHorizontalScale(double scale);
    void setPreviousItem(ZvTimeTableTimeItem *item) { m_previousItem = item; }
    void setNextItem(ZvTimeTableTimeItem *item) { m_nextItem = item; }

    /// While false a move is not clamped between the neighbours.
    void setPositionLimited(bool limited) { m_positionLimited = limited; }
    /// While true no time is derived from the geometry.
    void setTimeUpdateBlocked(bool blocked) { m_timeUpdateBlocked = blocked; }
    /// Whether the band is drawn, which it is at first. One that moves or changes its size is drawn
    /// again: it may come into sight.
    void setDrawn(bool drawn);
    /// Derives the times from the geometry, unless blocked.
    void updateTimeInfo();

    /// Gives this item and all behind it in the chain their index.
    void renumber();
    /// Gives this item alone its index: text of the index label and stacking order.
    void setIndex(int index);
    /// The same without the label, which setIndexLabel() has to bring in line.
    void setIndexOnly(int index);
    /// What the index label is to read.
    QString indexText() const;
    ZvTimeTableTimeItemLabel *indexLabel() const { return m_indexLabel; }
    /// Takes @p label over in the place of the present one, which is the caller's from then on.
    void setIndexLabel(ZvTimeTableTimeItemLabel *label);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

public Q_SLOTS:
    void onSelectionChanged(bool selected = true);
    void setResizeHandleVisible(bool visible);

Q_SIGNALS:
    void timeInfoChanged(ZvTime timeInfo);
    /// Answered by the strip through @p count; connect direct.
    void requestGettingTimeItemSelectionCount(int *count);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;

private:
    ZvTimeTableTimeItemLabel *adoptLabel(ZvTimeTableTimeItemLabel *label, const QColor &background);
    QPointF limitedPosition(const QPointF &position) const;
    void layoutChildren();
    void layoutHandles();
    void applyStackingOrder();
    QTime timeAtBound(double y) const;

    ZvTimeTableTimeItem *m_previousItem = nullptr;
    ZvTimeTableTimeItem *m_nextItem = nullptr;
    double m_left = 10.0;
    double m_topMargin = TimeAxis::topMargin;
    double m_itemWidth = 240.0;
    double m_itemHeight = 60.0;
    double m_minimumY = TimeAxis::dayTop;
    double m_maximumY = TimeAxis::dayBottom;
    double m_dayBottom = TimeAxis::dayBottom;
    double m_verticalScale = 1.0;
    double m_horizontalScale = 1.0;
    ZvTime m_timeInfo;
    int m_index = 0;
    bool m_positionLimited = true;
    QColor m_markColor = Qt::blue;
    bool m_timeUpdateBlocked = false;
    bool m_isDrawn = true;
    // The children, in the order in which they are stacked. What every band has of its own is part
    // of it: thousands of bands come and go at once, and the scene takes out items that are close
    // together in memory at less cost.
    ZvTimeTableTimeItemLabel *m_stageLabel;
    SelectionMarkItem m_selectionRect;
    SelectionMarkItem m_innerSelectionRect;
    ZvTimeTableTimeItemResizeHandle m_topHandle;
    ZvTimeTableTimeItemResizeHandle m_bottomHandle;
    ZvTimeTableTimeItemLabel *m_indexLabel;
};

} // namespace Zavo
