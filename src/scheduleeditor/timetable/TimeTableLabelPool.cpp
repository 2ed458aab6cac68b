#include "timetable/TimeTableLabelPool.h"

#include "timetable/ZvTimeTableTimeItemLabel.h"

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QPointer>

namespace Zavo {

namespace {
constexpr int keptLabels = 8640; // both labels of the densest table that is edited in practice
} // namespace

TimeTableLabelPool::TimeTableLabelPool(QObject *parent)
    : QObject(parent)
{
}

TimeTableLabelPool::~TimeTableLabelPool()
{
    qDeleteAll(m_labels);
}

TimeTableLabelPool *TimeTableLabelPool::instance()
{
    static QPointer<TimeTableLabelPool> pool;
    if (!pool && QCoreApplication::instance())
        pool = new TimeTableLabelPool(QCoreApplication::instance());
    return pool;
}

ZvTimeTableTimeItemLabel *TimeTableLabelPool::take(const QString &text)
{
    TimeTableLabelPool *pool = instance();
    ZvTimeTableTimeItemLabel *label = pool ? pool->takeKept(text) : nullptr;
    if (!label)
        label = new ZvTimeTableTimeItemLabel;
    label->setLabel(text);
    return label;
}

ZvTimeTableTimeItemLabel *TimeTableLabelPool::takeKept(const QString &text)
{
    auto found = m_labels.find(text);
    if (found == m_labels.end())
        found = m_labels.begin();
    if (found == m_labels.end())
        return nullptr;
    ZvTimeTableTimeItemLabel *label = *found;
    m_labels.erase(found);
    return label;
}

void TimeTableLabelPool::give(ZvTimeTableTimeItemLabel *label)
{
    TimeTableLabelPool *pool = instance();
    if (pool && pool->m_labels.size() < keptLabels)
        pool->keep(label);
    else
        delete label;
}

void TimeTableLabelPool::keep(ZvTimeTableTimeItemLabel *label)
{
    label->setParentItem(nullptr);
    if (label->scene())
        label->scene()->removeItem(label);
    m_labels.insert(label->label(), label);
}

} // namespace Zavo
