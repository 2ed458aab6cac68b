#pragma once

#include "timetable/TimeTableTextItem.h"

#include <QColor>

namespace Zavo {

/// A text on a band, drawn on a background of its own and not scaled with the view.
class ZvTimeTableTimeItemLabel final : public TimeTableTextItem
{
    Q_OBJECT

public:
    explicit ZvTimeTableTimeItemLabel(QGraphicsItem *parent = nullptr);
    explicit ZvTimeTableTimeItemLabel(const QString &text, QGraphicsItem *parent = nullptr);

    void setBackgroundColor(const QColor &color);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QColor m_backgroundColor{255, 255, 255, 128};
    double m_dpiRatio = 1.0;
};

} // namespace Zavo
