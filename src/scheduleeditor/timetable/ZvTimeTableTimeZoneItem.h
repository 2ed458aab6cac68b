#pragma once

#include "ZvTime.h"
#include "timetable/DrawnRange.h"
#include "timetable/TimeItemChain.h"

#include <QGraphicsObject>
#include <QList>
#include <QMap>
#include <QStringList>
#include <QTime>

namespace Zavo {

class ZvTimeTableTimeItem;
class ZvTimeTableView;

/// The strip of the day: owns the bands of the schedule on show, keeps them sorted and linked, and
/// decides where a dropped stage goes. The only place where bands are created or destroyed.
///
/// Child of the base item, created once per page. Knows nothing of channels and of undo.
class ZvTimeTableTimeZoneItem final : public QGraphicsObject
{
    Q_OBJECT

public:
    enum { Type = UserType + 2 };

    explicit ZvTimeTableTimeZoneItem(QGraphicsItem *parent = nullptr);
    ~ZvTimeTableTimeZoneItem() override;

    int type() const override { return Type; }
    QRectF boundingRect() const override;

    /// The strip itself, in item coordinates: the bounding rectangle less the margin.
    QRectF innerRect() const;
    /// Distance of the strip from the item's edge on all four sides, in scene units.
    double margin() const { return m_margin; }

    /// The bands in order of time. The strip owns them.
    QList<ZvTimeTableTimeItem *> timeItems() const;
    int timeItemCount() const;
    /// True if every one of @p items is a band of this strip. The pointers are only compared, so
    /// they may dangle.
    bool containsAll(const QList<ZvTimeTableTimeItem *> &items) const;
    QList<ZvTimeTableTimeItem *> selectedTimeItems() const;
    int selectedTimeItemCount() const;
    /// The records of all bands, in order.
    QList<ZvTime> times() const;

    /// The time at @p y (item coordinates); from the strip's bottom on the end of the day.
    QTime timeAtY(double y) const;

    /// The first view of the scene, or null.
    ZvTimeTableView *view() const;

    /// Makes @p rect (parent coordinates) the strip; the item reaches beyond it by the margin.
    void setRect(const QRectF &rect);
    void setHorizontalScale(double scale);
    void setVerticalScale(double scale);
    /// Draws the bands in @p range and those that are moved from now on.
    void drawWithin(const DrawnRange &range);

    /// Creates a band for each record and selects it. False if one could not be placed; the others
    /// stay, and criticalErrorOccured() named each that failed.
    bool insertTimeItems(QList<ZvTime> times);
    /// Divides the free gap at @p start among the stages. Returns the bands made; empty if the drop
    /// was refused, after warningErrorOccured() gave the reason.
    QList<ZvTime> insertStages(QTime start, const QStringList &stageNames);
    /// Removes one band for each record that equals it; records without a band are passed over.
    void removeTimeItems(const QList<ZvTime> &times);
    void removeAllTimeItems();
    /// Gives bands new records by index, with no check of their order and no signal.
    void setTimeItemTimes(const QMap<int, ZvTime> &itemTimes);

    /// Says that so many bands are about to change: most of them are painted anew with the table.
    void expectChangesOf(int bands);

    void selectAllTimeItems();
    void clearSelection();
    /// Selects the band after the first selected one, or the first of all, and brings it into
    /// sight.
    void selectNextTimeItem();
    void selectPreviousTimeItem();
    /// Selects that band of the strip and no other, and brings it into sight.
    void selectOnly(ZvTimeTableTimeItem *item);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

public Q_SLOTS:
    /// Writes the number of selected bands through @p count, unless that is null.
    void getTimeItemSelectionCount(int *count);

Q_SIGNALS:
    /// The time under a drag, at every step of it, also outside the strip.
    void timeStringChanged(QString timeString);
    /// A record could not be placed.
    void criticalErrorOccured(QString message);
    /// A drop was refused.
    void warningErrorOccured(QString message);
    /// Once a bulk removal, once an inserted band.
    void timeItemCountChanged(int count);
    /// A drop made these bands; not for other insertions.
    void timeItemInserted(QList<ZvTime> times);
    /// True before and false after every bulk change. Connect direct: it has to act before the next
    /// band changes.
    void requestDisableSelectionChanged(bool disabled);
    /// After every bulk change, for one pass over the result.
    void requestSelectionChanged();

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    void dragEnterEvent(QGraphicsSceneDragDropEvent *event) override;
    void dragLeaveEvent(QGraphicsSceneDragDropEvent *event) override;
    void dragMoveEvent(QGraphicsSceneDragDropEvent *event) override;
    void dropEvent(QGraphicsSceneDragDropEvent *event) override;

private:
    class BulkChange;

    ZvTimeTableTimeItem *createTimeItem(const ZvTime &time, int index, double verticalScale);
    bool insertTimeItem(const ZvTime &time, double verticalScale);
    void repaintAsAWhole();
    void reportBands(bool isOneNew) const;

    double m_margin = 10.0;
    double m_width = 260.0;
    double m_height = 86420.0;
    QGraphicsLineItem *m_dropLine = nullptr;
    TimeItemChain m_timeItems;
    double m_horizontalScale = 1.0;
    DrawnRange m_drawnRange;
    bool m_hasNewBands = false; ///< since the range was looked at
};

} // namespace Zavo
