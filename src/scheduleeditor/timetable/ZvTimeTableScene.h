#pragma once

#include "ZvTime.h"
#include "timetable/ZvTimeTableTimeItem.h"

#include <QGraphicsScene>
#include <QList>
#include <QTime>

namespace Zavo {

class ZvTimeTableBaseItem;
class ZvTimeTableTimeZoneItem;

/// Holds the base item and the strip, owns the sorted list of selected bands and turns mouse drags
/// into moves and resizes. Items are not movable by themselves: every move goes through here.
///
/// Created by the page without a parent; it can outlive its page.
class ZvTimeTableScene final : public QGraphicsScene
{
    Q_OBJECT

public:
    /// What a drag does; the handle values are those of the handles' types.
    enum DragMode { NoDrag = 0, DragTopHandle = 1, DragBottomHandle = 2, DragSelection = 16 };

    explicit ZvTimeTableScene(QObject *parent = nullptr);
    ~ZvTimeTableScene() override;

    ZvTimeTableBaseItem *baseItem() const { return m_baseItem; }
    ZvTimeTableTimeZoneItem *timeZoneItem() const { return m_timeZoneItem; }
    /// The selected bands by index, as the last pass over the selection left them.
    QList<ZvTimeTableTimeItem *> selectedTimeItems() const { return m_selectedTimeItems; }
    /// The records of selectedTimeItems(), in order.
    QList<ZvTime> selectedTimes() const;
    double verticalScale() const { return m_verticalScale; }
    /// The records of the bands that intersect the range, in order.
    QList<ZvTime> timeItemsInRange(QTime start, QTime end) const;
    /// What a press at @p point (scene coordinates) on a resize handle would drag, or NoDrag.
    DragMode resizeHandleAt(const QPointF &point) const;

    /// Adds the item to the scene, which owns it from then on.
    void setBaseItem(ZvTimeTableBaseItem *baseItem);
    void setTimeZoneItem(ZvTimeTableTimeZoneItem *timeZoneItem);
    void setVerticalScale(double scale);
    void setHorizontalScale(double scale);

    /// False without a strip or if a record could not be placed.
    bool insertTimeItems(const QList<ZvTime> &times);
    void removeAllTimeItems();
    void removeTimeItems(const QList<ZvTime> &times);
    /// Removes the selected bands and returns their records, in order.
    QList<ZvTime> removeSelectedTimeItems();
    /// Moves the selected bands as one block by the y distance from @p last to @p current, up to
    /// the first obstacle. False if there was nothing to do.
    bool moveSelectedTimeItems(const QPointF &current, const QPointF &last);
    /// Ends a drag as if the button were released here; up to the next press the mouse moves
    /// nothing more.
    void completeDrag();

public Q_SLOTS:
    /// Takes over the selection and reports it, unless disabled.
    void onSelectionChanged();
    void setDisableSelectionChanged(bool disabled);
    bool isDesabeleSelectionChanged(bool *state = nullptr);

Q_SIGNALS:
    /// The selection changed to a non-empty one, or bands moved or were resized; also at every step
    /// of a drag. Receivers that are queued must check that the items still live.
    void timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem *> items);
    void timeTableTimeItemHasNotSelected();
    /// A button other than the right one was released away from where it was pressed.
    void mousePressingMoved();
    void mousePressed();

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    class MovedSignalBlocker;

    bool isOnSelectedTimeItem(const QPointF &point) const;
    bool resizeSelectedTimeItem(const QPointF &current, const QPointF &last);
    bool continueDrag(const QPointF &current, const QPointF &last);
    void reportDrag();
    void freeMouse();
    void reportMove();

    double m_verticalScale = 1.0;
    double m_horizontalScale = 1.0;
    ZvTimeTableBaseItem *m_baseItem = nullptr;
    QList<ZvTimeTableTimeItem *> m_selectedTimeItems;
    ZvTimeTableTimeZoneItem *m_timeZoneItem = nullptr;
    DragMode m_dragMode = NoDrag;
    bool m_hasDragged = false; ///< and not reported it yet
    bool m_movedSignalBlocked = false;
    QPointF m_pressPos;
    QPointF m_pressScenePos;
    bool m_disableSelectionChanged = false;
};

} // namespace Zavo
