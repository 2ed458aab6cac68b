#include "timetable/RulerLabels.h"

#include "timetable/TimeTableFont.h"
#include "timetable/TimeTableTextItem.h"

#include <QFontMetricsF>

#include <algorithm>

namespace Zavo {

namespace {
constexpr double clearance = 3.0; // px between a label's descent and its line
constexpr int labelsAtOnce = 300;
} // namespace

RulerLabels::RulerLabels(QGraphicsItem *carrier)
    : m_carrier(carrier)
{
    m_missingTimer.setSingleShot(true);
    connect(&m_missingTimer, SIGNAL(timeout()), this, SLOT(makeMissing()));
}

void RulerLabels::setLabels(const QList<ZvTimeTableTimeLabelInfo> &labels, double verticalScale,
                            double dpiRatio)
{
    if (labels == m_labels && verticalScale == m_labelledScale)
        return;
    m_labels = labels;
    m_labelledScale = verticalScale;
    m_dpiRatio = dpiRatio;
    for (int i = m_labels.size(); i < m_textItems.size(); ++i)
        delete m_textItems.at(i);
    m_textItems.resize(m_labels.size());
    layoutAll();
    makeMissing();
}

void RulerLabels::setDpiRatio(double dpiRatio)
{
    m_dpiRatio = dpiRatio;
    layoutAll();
}

void RulerLabels::ensure(double top, double bottom)
{
    const auto isAbove = [](const ZvTimeTableTimeLabelInfo &label, double y) {
        return label.pos().y() < y;
    };
    const auto first = std::lower_bound(m_labels.cbegin(), m_labels.cend(), top, isAbove);
    for (auto label = first; label != m_labels.cend() && label->pos().y() <= bottom; ++label)
        makeLabel(static_cast<int>(label - m_labels.cbegin()));
}

void RulerLabels::drawWithin(const DrawnRange &range)
{
    if (range == m_drawnRange)
        return;
    m_drawnRange = range;
    for (int i = 0; i < m_textItems.size(); ++i) {
        if (m_textItems.at(i))
            applyRange(i);
    }
}

void RulerLabels::applyRange(int index)
{
    const double y = m_labels.at(index).pos().y();
    setDrawn(m_textItems.at(index), m_drawnRange.meets(y, y));
}

void RulerLabels::makeMissing()
{
    int made = 0;
    for (int i = 0; i < m_textItems.size(); ++i) {
        if (m_textItems.at(i))
            continue;
        if (made == labelsAtOnce) {
            m_missingTimer.start(0);
            return;
        }
        makeLabel(i);
        ++made;
    }
}

void RulerLabels::makeLabel(int index)
{
    if (m_textItems.at(index))
        return;
    m_textItems[index] = new TimeTableTextItem(m_labels.at(index).text());
    place(index);
    m_textItems.at(index)->setParentItem(m_carrier);
}

void RulerLabels::layoutAll()
{
    for (int i = 0; i < m_textItems.size(); ++i) {
        if (m_textItems.at(i))
            place(i);
    }
}

void RulerLabels::place(int index)
{
    const ZvTimeTableTimeLabelInfo &label = m_labels.at(index);
    TimeTableTextItem *item = m_textItems.at(index);
    item->setDpiRatio(m_dpiRatio);
    item->setLabel(label.text());
    const double descent = QFontMetricsF(item->font()).descent();
    const double rise = item->boundingRect().height() - (descent + clearance);
    item->setPos(label.pos().x(), label.pos().y() - rise / m_labelledScale);
    applyRange(index);
}

} // namespace Zavo
