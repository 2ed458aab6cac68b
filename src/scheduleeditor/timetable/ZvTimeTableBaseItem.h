#pragma once

#include "domain/ZvTimeTableTimeLabelInfo.h"
#include "timetable/DrawnRange.h"
#include "timetable/RulerLabels.h"
#include "timetable/RulerLines.h"
#include "timetable/TimeAxis.h"
#include "timetable/TimeTableRuler.h"

#include <QGraphicsObject>
#include <QList>

namespace Zavo {

class ZvTimeTableTimeLabelItem;
class ZvTimeTableTimeZoneItem;

/// Root item of the time table: lays out the strip of the day, paints the ruler across the whole
/// width and keeps the ruler's labels in step with the scale.
///
/// Owned by its scene; lives through all switches of schedule, of which it knows nothing.
class ZvTimeTableBaseItem final : public QGraphicsObject
{
    Q_OBJECT

public:
    enum { Type = UserType + 1 };

    explicit ZvTimeTableBaseItem(QGraphicsItem *parent = nullptr);

    int type() const override { return Type; }
    QRectF boundingRect() const override;

    /// Height in scene units, both margins included.
    double itemHeight() const { return m_height; }

    /// The time at @p pos (item coordinates) as "hh:mm:ss", "24:00:00" at the end of the day,
    /// "--:--:--" outside it.
    QString timeStringAt(const QPointF &pos) const;

    /// Takes @p zone as a child, gives it its rectangle and grows to hold it. A zone that is here
    /// already is selected.
    void addTimeZone(ZvTimeTableTimeZoneItem *zone);

    /// Scale of the view; the next paint follows it.
    void setVerticalScale(double scale) { m_verticalScale = scale; }
    void setHorizontalScale(double scale) { m_horizontalScale = scale; }

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

public Q_SLOTS:
    /// Keeps the labels at the left edge of the first view.
    void correctLabelAreaPos();

Q_SIGNALS:
    /// The ruler was painted with the item at @p scenePos.
    void timeTablePosUpdated(QPointF scenePos);
    /// Reachable for integrators; the component itself never emits it.
    void timeTableLabelUpdated(QList<ZvTimeTableTimeLabelInfo> timeLabels);

private Q_SLOTS:
    void synchroniseLabels();

private:
    void followFontDpi(const QPainter &painter);
    void fillTimeZones(QPainter *painter) const;
    void followSight(const QRectF &exposed, const QWidget *viewport);

    double m_topMargin = TimeAxis::topMargin;
    double m_width = 420.0;
    double m_height = 1460.0;
    double m_labelAreaWidth = 60.0;
    double m_rightMargin = 20.0;
    double m_verticalScale = 1.0;
    double m_horizontalScale = 1.0;
    TimeTableRuler m_ruler; // laid out by the first paint
    RulerLines m_lines;
    ZvTimeTableTimeLabelItem *m_labelItem = nullptr;
    RulerLabels m_labels;
    QList<ZvTimeTableTimeZoneItem *> m_timeZones;
    double m_dpiRatio = 1.0;
    DrawnRange m_drawnRange;
    double m_drawnScale = 0.0;
};

} // namespace Zavo
