#include "timetable/ZvTimeSpinWidget.h"

#include "timetable/ZvTimeSpinBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScopedValueRollback>

#include <utility>

namespace Zavo {

namespace {

constexpr int BoxSpacing = 4; // px

QTime validTime(QTime time)
{
    return time.isValid() ? time : TimeAxis::endOfDay();
}

// What the boxes tell of a time.
QTime shownPart(QTime time)
{
    return !time.isValid() || TimeAxis::isEndOfDay(time)
               ? time
               : QTime(time.hour(), time.minute(), time.second());
}

void toMinimum(ZvTimeSpinBox *box)
{
    box->setValue(box->minimum());
}

ZvTimeSpinBox *addBox(QHBoxLayout *layout, const QString &unit)
{
    auto *box = new ZvTimeSpinBox;
    layout->addWidget(box);
    layout->addWidget(new QLabel(unit));
    return box;
}

} // namespace

ZvTimeSpinWidget::ZvTimeSpinWidget(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(BoxSpacing);
    m_hourBox = addBox(layout, tr("h"));
    m_minuteBox = addBox(layout, tr("m"));
    m_secondBox = addBox(layout, tr("s"));
    m_hourBox->setIsHourBox(true);
    m_hourBox->setWrapping(false);
    // clang-format off
    connect(m_hourBox, SIGNAL(valueChanged(int)), this, SLOT(onHourBoxValueChanged(int)));
    connect(m_minuteBox, SIGNAL(valueChanged(int)), this, SLOT(onMinuteBoxValueChanged(int)));
    connect(m_secondBox, SIGNAL(valueChanged(int)), this, SLOT(onSecondBoxValueChanged(int)));
    for (ZvTimeSpinBox *box : {m_hourBox, m_minuteBox, m_secondBox})
        connect(box, SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
    // clang-format on
}

void ZvTimeSpinWidget::setSubject(const QString &subject)
{
    setAccessibleName(subject);
    m_hourBox->setAccessibleName(tr("%1, hours").arg(subject));
    m_minuteBox->setAccessibleName(tr("%1, minutes").arg(subject));
    m_secondBox->setAccessibleName(tr("%1, seconds").arg(subject));
}

bool ZvTimeSpinWidget::isAtLastHour() const
{
    return m_hourBox->value() == m_hourBox->maximum();
}

// The 24th hour has no minutes: it is left by the box of the hours alone.
int ZvTimeSpinWidget::wrapStateOf(const ZvTimeSpinBox *box) const
{
    return isAtLastHour() ? int(ZvTimeSpinBox::NotWrapped) : box->wrapState();
}

QTime ZvTimeSpinWidget::currentTime() const
{
    if (isAtLastHour())
        return TimeAxis::endOfDay();
    return {m_hourBox->value(), m_minuteBox->value(), m_secondBox->value()};
}

void ZvTimeSpinWidget::setTime(QTime time)
{
    if (m_timeUpdating)
        return;
    const QTime held = qBound(m_minimumTime, validTime(time), m_maximumTime);
    QTime before;
    {
        const QScopedValueRollback<bool> updating(m_timeUpdating, true);
        m_outOfRange = false;
        showTime(held);
        before = std::exchange(m_time, held);
    }
    if (before != held)
        Q_EMIT timeChanged(before, held);
}

void ZvTimeSpinWidget::showTime(QTime time)
{
    const bool isEnd = TimeAxis::isEndOfDay(time);
    m_hourBox->setValue(isEnd ? m_hourBox->maximum() : time.hour());
    m_minuteBox->setValue(isEnd ? 0 : time.minute());
    m_secondBox->setValue(isEnd ? 0 : time.second());
}

void ZvTimeSpinWidget::setTimeRange(QTime minimum, QTime maximum)
{
    const QTime lower = validTime(minimum);
    m_minimumTime = qMin(lower, m_maximumTime);
    m_maximumTime = qMax(qMax(lower, validTime(maximum)), m_minimumTime);
}

void ZvTimeSpinWidget::onHourBoxValueChanged(int /*value*/)
{
    if (m_boxUpdating)
        return;
    const QScopedValueRollback<bool> updating(m_boxUpdating, true);
    if (isAtLastHour()) {
        toMinimum(m_minuteBox);
        toMinimum(m_secondBox);
    }
    takeTimeFrom(m_hourBox);
}

void ZvTimeSpinWidget::onMinuteBoxValueChanged(int /*value*/)
{
    if (m_boxUpdating)
        return;
    const QScopedValueRollback<bool> updating(m_boxUpdating, true);
    const int wrapState = wrapStateOf(m_minuteBox);
    if (wrapState == ZvTimeSpinBox::Carried)
        carryIntoHour();
    else if (wrapState == ZvTimeSpinBox::Borrowed && !borrowFromHour())
        toMinimum(m_minuteBox);
    if (isAtLastHour()) {
        toMinimum(m_minuteBox);
        toMinimum(m_secondBox);
    }
    takeTimeFrom(m_minuteBox);
}

void ZvTimeSpinWidget::onSecondBoxValueChanged(int /*value*/)
{
    if (m_boxUpdating)
        return;
    const QScopedValueRollback<bool> updating(m_boxUpdating, true);
    const int wrapState = wrapStateOf(m_secondBox);
    if (wrapState == ZvTimeSpinBox::Carried)
        carryIntoMinute();
    else if (wrapState == ZvTimeSpinBox::Borrowed)
        borrowFromMinute();
    if (isAtLastHour())
        toMinimum(m_secondBox);
    takeTimeFrom(m_secondBox);
}

// The Enter key reports a value that is the same; the milliseconds that do not show stay then.
void ZvTimeSpinWidget::takeTimeFrom(const ZvTimeSpinBox *box)
{
    const QTime time = currentTime();
    m_outOfRange = box->isBeingTyped() && (time < m_minimumTime || time > m_maximumTime);
    if (!m_outOfRange)
        setTime(time == shownPart(m_time) ? m_time : time);
}

void ZvTimeSpinWidget::onEditingFinished()
{
    if (m_outOfRange)
        setTime(currentTime());
}

void ZvTimeSpinWidget::carryIntoHour()
{
    m_hourBox->setValue(qMin(m_hourBox->value() + 1, m_hourBox->maximum()));
}

// False if there is no hour left.
bool ZvTimeSpinWidget::borrowFromHour()
{
    if (m_hourBox->value() <= m_hourBox->minimum())
        return false;
    m_hourBox->setValue(m_hourBox->value() - 1);
    return true;
}

void ZvTimeSpinWidget::carryIntoMinute()
{
    if (m_minuteBox->value() < m_minuteBox->maximum()) {
        m_minuteBox->setValue(m_minuteBox->value() + 1);
        return;
    }
    toMinimum(m_minuteBox);
    carryIntoHour();
    if (isAtLastHour())
        toMinimum(m_secondBox);
}

void ZvTimeSpinWidget::borrowFromMinute()
{
    if (m_minuteBox->value() > m_minuteBox->minimum()) {
        m_minuteBox->setValue(m_minuteBox->value() - 1);
    } else if (borrowFromHour()) {
        m_minuteBox->setValue(m_minuteBox->maximum());
    } else {
        toMinimum(m_minuteBox);
        toMinimum(m_secondBox);
    }
}

} // namespace Zavo
