#include "BareTimeTable.h"

#include "timetable/TimeAxis.h"

#include <QCoreApplication>
#include <QGraphicsRectItem>
#include <QGraphicsTextItem>
#include <QPen>

using namespace Zavo;

namespace {

constexpr double left = 70.0;        // scene units
constexpr double bandWidth = 240.0;  // scene units
constexpr double handleHeight = 5.0; // px
constexpr double sceneHeight = 1500.0;
constexpr int labelPixelSize = 12;

QPen cosmeticPen(const QColor &color)
{
    QPen pen(color);
    pen.setCosmetic(true);
    return pen;
}

void addText(const QString &text, QGraphicsItem *parent)
{
    auto *item = new QGraphicsTextItem(parent);
    item->setFlag(QGraphicsItem::ItemIgnoresTransformations);
    QFont font(QStringLiteral("Yu Gothic UI"));
    font.setPixelSize(labelPixelSize);
    item->setFont(font);
    item->setPlainText(text);
}

QGraphicsRectItem *addRect(const QRectF &rect, QGraphicsItem *parent)
{
    auto *item = new QGraphicsRectItem(rect, parent);
    item->setFlag(QGraphicsItem::ItemIgnoresTransformations);
    item->setPen(cosmeticPen(Qt::blue));
    item->setVisible(false);
    return item;
}

} // namespace

BareTimeTable::BareTimeTable(QSize size)
    : m_view(&m_scene)
{
    m_view.setSceneRect(0.0, -20.0, 330.0, sceneHeight);
    m_view.resize(size);
    m_view.show();
    settle();
}

void BareTimeTable::load(const QList<ZvTime> &times)
{
    for (int i = 0; i < times.size(); ++i)
        addBand(times.at(i), i);
}

void BareTimeTable::addBand(const ZvTime &time, int index)
{
    const double top = TimeAxis::dayTop + TimeAxis::unitsOf(time.startTime());
    const double height = TimeAxis::unitsOf(time.endTime()) - TimeAxis::unitsOf(time.startTime());
    const QRectF bounds(0.0, 0.0, bandWidth, height);
    auto *band = new QGraphicsRectItem(bounds);
    band->setFlag(QGraphicsItem::ItemIsSelectable);
    band->setPen(cosmeticPen(Qt::black));
    band->setBrush(QColor(QStringLiteral("lavender")));
    band->setPos(left, top);
    addText(time.stageName(), band);
    addRect(bounds.adjusted(1.0, 1.0, -1.0, -1.0), addRect(bounds, band));
    addRect({0.0, 0.0, bandWidth, handleHeight}, band);
    addRect({0.0, height, bandWidth, handleHeight}, band);
    addText(QStringLiteral("#%1").arg(index), band);
    m_scene.addItem(band);
    m_bands.append(band);
}

void BareTimeTable::clear()
{
    m_scene.clear();
    m_bands.clear();
}

void BareTimeTable::selectAll()
{
    for (QGraphicsItem *band : qAsConst(m_bands))
        band->setSelected(true);
}

void BareTimeTable::deselectAll()
{
    m_scene.clearSelection();
}

void BareTimeTable::moveAll(double dy)
{
    for (QGraphicsItem *band : qAsConst(m_bands))
        band->moveBy(0.0, dy);
}

void BareTimeTable::moveOne(int index, double dy)
{
    m_bands.at(index)->moveBy(0.0, dy);
}

void BareTimeTable::look(double scale, int index)
{
    m_view.setTransform(QTransform::fromScale(1.0, scale));
    m_view.centerOn(m_bands.at(index));
    settle();
}

void BareTimeTable::repaint()
{
    m_view.viewport()->repaint();
}

void BareTimeTable::settle()
{
    QCoreApplication::processEvents();
}
