#include "timetable/TimeTableLabelPool.h"

#include "timetable/ZvTimeTableTimeItemLabel.h"

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QPointer>

namespace Zavo {

namespace {
constexpr std::size_t keptLabels =
    8640; // both labels of the densest table that is edited in practice
} // namespace

TimeTableLabelPool::TimeTableLabelPool(QObject *parent)
    : QObject(parent)
{
}

TimeTableLabelPool::~TimeTableLabelPool()
{
    deleteKept();
}

void TimeTableLabelPool::deleteKept()
{
    for (const auto &label : m_labels)
        delete label.second;
    m_labels.clear();
}

void TimeTableLabelPool::empty()
{
    if (TimeTableLabelPool *pool = instance())
        pool->deleteKept();
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
    ZvTimeTableTimeItemLabel *label = takeAny(text);
    label->setLabel(text);
    return label;
}

ZvTimeTableTimeItemLabel *TimeTableLabelPool::takeAny(const QString &text)
{
    TimeTableLabelPool *pool = instance();
    ZvTimeTableTimeItemLabel *label = pool ? pool->takeKept(text, true) : nullptr;
    return label ? label : new ZvTimeTableTimeItemLabel(text);
}

ZvTimeTableTimeItemLabel *TimeTableLabelPool::takeEqual(const QString &text)
{
    TimeTableLabelPool *pool = instance();
    return pool ? pool->takeKept(text, false) : nullptr;
}

ZvTimeTableTimeItemLabel *TimeTableLabelPool::takeKept(const QString &text, bool orAny)
{
    auto found = m_labels.find(text);
    if (found == m_labels.end() && orAny)
        found = m_labels.begin();
    if (found == m_labels.end())
        return nullptr;
    ZvTimeTableTimeItemLabel *label = found->second;
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
    // The scene takes an item from its parent too; the other way round it would first have to find
    // a place at the top level for it.
    if (label->scene())
        label->scene()->removeItem(label);
    else
        label->setParentItem(nullptr);
    m_labels.emplace(label->label(), label);
}

} // namespace Zavo
