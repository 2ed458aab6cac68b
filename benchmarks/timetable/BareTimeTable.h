#pragma once

#include "ZvTime.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QList>

/// The limit that the time table is held against: the same seven items a band, plain Qt ones in a
/// scene and a view as they come, with no logic at all.
class BareTimeTable final
{
public:
    explicit BareTimeTable(QSize size);

    void load(const QList<Zavo::ZvTime> &times);
    void clear();
    void selectAll();
    void deselectAll();
    void moveAll(double dy);
    void moveOne(int index, double dy);
    /// Screen pixels a minute, with the band of @p index in the middle.
    void look(double scale, int index);
    void repaint();
    /// Lets the events of the last change pass, its painting among them.
    void settle();

private:
    void addBand(const Zavo::ZvTime &time, int index);

    QGraphicsScene m_scene;
    QGraphicsView m_view;
    QList<QGraphicsItem *> m_bands;
};
