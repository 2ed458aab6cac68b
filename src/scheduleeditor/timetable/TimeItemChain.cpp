#include "timetable/TimeItemChain.h"

#include "timetable/TimeTableLabelPool.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeItemLabel.h"

#include <QMultiHash>
#include <QSet>

#include <algorithm>

namespace Zavo {

namespace {

// A band's geometry gives its times back truncated, so bands that adjoin may overlap by this much.
constexpr int adjoiningTolerance = ZvTime::ToleranceMs;

int startOf(const ZvTimeTableTimeItem *item)
{
    return item->startTime().msecsSinceStartOfDay();
}

int endOf(const ZvTimeTableTimeItem *item)
{
    return item->endTime().msecsSinceStartOfDay();
}

bool startsEarlier(const ZvTimeTableTimeItem *left, const ZvTimeTableTimeItem *right)
{
    return startOf(left) < startOf(right);
}

void link(ZvTimeTableTimeItem *previous, ZvTimeTableTimeItem *next)
{
    if (previous)
        previous->setNextItem(next);
    if (next)
        next->setPreviousItem(previous);
}

/// Hands the index labels of @p items round, so that few need another text: that costs much more
/// than another band. Labels that are kept from earlier bands join in.
void exchangeLabels(const QList<ZvTimeTableTimeItem *> &items)
{
    QMultiHash<QString, ZvTimeTableTimeItemLabel *> loose;
    for (const ZvTimeTableTimeItem *item : items)
        loose.insert(item->indexLabel()->label(), item->indexLabel());

    QList<ZvTimeTableTimeItem *> unlabelled;
    for (ZvTimeTableTimeItem *item : items) {
        const QString text = item->indexText();
        ZvTimeTableTimeItemLabel *label = loose.take(text);
        if (!label)
            label = TimeTableLabelPool::takeEqual(text);
        if (label)
            item->setIndexLabel(label);
        else
            unlabelled.append(item);
    }
    auto spare = loose.cbegin();
    for (ZvTimeTableTimeItem *item : qAsConst(unlabelled)) {
        ZvTimeTableTimeItemLabel *label = *spare++;
        label->setLabel(item->indexText());
        item->setIndexLabel(label);
    }
    std::for_each(spare, loose.cend(), TimeTableLabelPool::give);
}

} // namespace

bool TimeItemChain::containsAll(const QList<ZvTimeTableTimeItem *> &items) const
{
    // Reports list bands in order, so one walk finds them all.
    auto searched = items.cbegin();
    for (auto item = m_items.cbegin(); item != m_items.cend() && searched != items.cend(); ++item) {
        if (*item == *searched)
            ++searched;
    }
    if (searched == items.cend())
        return true;
    const QSet<ZvTimeTableTimeItem *> live(m_items.cbegin(), m_items.cend());
    return std::all_of(searched, items.cend(),
                       [&live](ZvTimeTableTimeItem *item) { return live.contains(item); });
}

void TimeItemChain::checkOrder()
{
    m_ascending = std::is_sorted(m_items.cbegin(), m_items.cend(), startsEarlier);
}

int TimeItemChain::insertionIndex(QTime start, QTime end) const
{
    const int startMs = start.msecsSinceStartOfDay();
    const int endMs = end.msecsSinceStartOfDay();
    if (m_items.isEmpty() || endMs <= startOf(m_items.first()) + adjoiningTolerance)
        return 0;
    if (startMs + adjoiningTolerance >= endOf(m_items.last()))
        return m_items.size();

    const auto startsTooEarly = [endMs](const ZvTimeTableTimeItem *item) {
        return startOf(item) + adjoiningTolerance < endMs;
    };
    const auto second = m_items.cbegin() + 1;
    const auto following = m_ascending
                               ? std::partition_point(second, m_items.cend(), startsTooEarly)
                               : std::find_if_not(second, m_items.cend(), startsTooEarly);
    return following == m_items.cend() ? -1 : static_cast<int>(following - m_items.cbegin());
}

void TimeItemChain::insert(int index, ZvTimeTableTimeItem *item)
{
    ZvTimeTableTimeItem *previous = index > 0 ? m_items.at(index - 1) : nullptr;
    ZvTimeTableTimeItem *next = index < m_items.size() ? m_items.at(index) : nullptr;
    m_items.insert(index, item);
    item->setPreviousItem(nullptr);
    item->setNextItem(nullptr);
    link(previous, item);
    link(item, next);
    item->setIndexOnly(index);
    m_ascending = m_ascending && (!previous || !startsEarlier(item, previous)) &&
                  (!next || !startsEarlier(next, item));
}

int TimeItemChain::lastEqual(const ZvTime &time, const QList<int> &starts) const
{
    auto from = starts.cbegin();
    auto to = starts.cend();
    if (m_ascending) {
        const int start = time.startTime().msecsSinceStartOfDay();
        from = std::lower_bound(from, to, start - adjoiningTolerance);
        to = std::upper_bound(from, to, start + adjoiningTolerance);
    }
    while (to != from) {
        --to;
        const int index = static_cast<int>(to - starts.cbegin());
        const ZvTimeTableTimeItem *item = m_items.at(index);
        if (item && item->timeInfo() == time)
            return index;
    }
    return -1;
}

QList<ZvTimeTableTimeItem *> TimeItemChain::take(const QList<ZvTime> &times)
{
    checkOrder();
    QList<int> starts;
    starts.reserve(m_items.size());
    for (const ZvTimeTableTimeItem *item : qAsConst(m_items))
        starts.append(startOf(item));

    QList<ZvTimeTableTimeItem *> taken;
    for (auto time = times.crbegin(); time != times.crend(); ++time) {
        const int index = lastEqual(*time, starts);
        if (index < 0)
            continue;
        ZvTimeTableTimeItem *item = m_items.at(index);
        link(item->previousItem(), item->nextItem());
        item->setPreviousItem(nullptr);
        item->setNextItem(nullptr);
        m_items[index] = nullptr;
        taken.append(item);
    }
    m_items.removeAll(nullptr);
    return taken;
}

ZvTimeTableTimeItem *TimeItemChain::takeLast()
{
    ZvTimeTableTimeItem *item = m_items.takeLast();
    link(item->previousItem(), nullptr);
    item->setPreviousItem(nullptr);
    return item;
}

void TimeItemChain::renumber()
{
    QList<ZvTimeTableTimeItem *> mislabelled;
    for (int i = 0; i < m_items.size(); ++i) {
        ZvTimeTableTimeItem *item = m_items.at(i);
        item->setIndexOnly(i);
        if (item->indexLabel()->label() != item->indexText())
            mislabelled.append(item);
    }
    exchangeLabels(mislabelled);
}

} // namespace Zavo
