#pragma once

#include "domain/ZvTimeTableTimeLabelInfo.h"
#include "timetable/DrawnRange.h"

#include <QList>
#include <QObject>
#include <QTimer>
#include <QVector>

class QGraphicsItem;

namespace Zavo {

class TimeTableTextItem;

/// The text items of the ruler's labels, kept in step with the labels, the scale and the screen.
///
/// At large scales there are more than a thousand. The ones in sight are made at once, the others
/// piece by piece from the event loop, so that a change of scale never holds the window up. The
/// items belong to their carrier.
class RulerLabels final : public QObject
{
    Q_OBJECT

public:
    explicit RulerLabels(QGraphicsItem *carrier);

    /// Shows @p labels at @p verticalScale, for a screen of @p dpiRatio. Does nothing if they are
    /// shown at that scale already.
    void setLabels(const QList<ZvTimeTableTimeLabelInfo> &labels, double verticalScale,
                   double dpiRatio);
    /// Makes the labels between two y that are still missing.
    void ensure(double top, double bottom);
    /// Draws the labels on lines in @p range and no others.
    void drawWithin(const DrawnRange &range);
    /// Lays the labels out for a screen of another font DPI.
    void setDpiRatio(double dpiRatio);

private Q_SLOTS:
    void makeMissing();

private:
    void makeLabel(int index);
    void layoutAll();
    void place(int index);
    void applyRange(int index);

    QGraphicsItem *m_carrier;
    QList<ZvTimeTableTimeLabelInfo> m_labels;
    double m_labelledScale = 1.0;
    double m_dpiRatio = 1.0;
    DrawnRange m_drawnRange;
    QVector<TimeTableTextItem *> m_textItems; ///< null where one is still missing
    QTimer m_missingTimer;
};

} // namespace Zavo
