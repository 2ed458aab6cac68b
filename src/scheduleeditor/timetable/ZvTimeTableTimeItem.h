#pragma once

#include "ZvTime.h"
#include "timetable/TimeAxis.h"

#include <QColor>
#include <QGraphicsObject>

class QGraphicsRectItem;

namespace Zavo {

class ZvTimeTableTimeItemLabel;
class ZvTimeTableTimeItemResizeHandle;

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
    /// With its texts from the start, which spares the labels a change.
    ZvTimeTableTimeItem(const QString &stageName, int index, QGraphicsItem *parent = nullptr);
    /// Takes itself out of the chain; the items behind it are renumbered.
    ~ZvTimeTableTimeItem() override;

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
    ZvTimeTableTimeItemResizeHandle *topHandle() const { return m_topHandle; }
    ZvTimeTableTimeItemResizeHandle *bottomHandle() const { return m_bottomHandle; }

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
    /// Derives the times from the geometry, unless blocked.
    void updateTimeInfo();

    /// Gives this item and all behind it in the chain their index.
    void renumber();
    /// Gives this item alone its index: text of the index label and stacking order.
    void setIndex(int index);

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
    ZvTimeTableTimeItemLabel *createLabel(const QString &text, const QColor &background);
    void createMark();
    void createHandles();
    QPointF limitedPosition(const QPointF &position) const;
    void layoutChildren();
    void layoutHandles();
    void applyStackingOrder();
    QTime timeAtBound(double y) const;

    ZvTimeTableTimeItem *m_previousItem = nullptr;
    ZvTimeTableTimeItem *m_nextItem = nullptr;
    ZvTimeTableTimeItemLabel *m_stageLabel = nullptr;
    QGraphicsRectItem *m_selectionRect = nullptr;
    QGraphicsRectItem *m_innerSelectionRect = nullptr;
    ZvTimeTableTimeItemLabel *m_indexLabel = nullptr;
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
    ZvTimeTableTimeItemResizeHandle *m_topHandle = nullptr;
    ZvTimeTableTimeItemResizeHandle *m_bottomHandle = nullptr;
};

} // namespace Zavo
