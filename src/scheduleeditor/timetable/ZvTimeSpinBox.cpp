#include "timetable/ZvTimeSpinBox.h"

#include <QLineEdit>

namespace {

constexpr int LastMinuteOrSecond = 59;
constexpr int LastHour = 24;

} // namespace

// The first connection of all, so that whoever connects later finds the wrap state up to date.
ZvTimeSpinBox::ZvTimeSpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    connect(this, SIGNAL(valueChanged(int)), this, SLOT(onValueChanged(int)), Qt::DirectConnection);
    setRange(0, LastMinuteOrSecond);
    setWrapping(true);
    setValue(0);
    setAlignment(Qt::AlignRight);
}

void ZvTimeSpinBox::setIsHourBox(bool isHourBox)
{
    m_isHourBox = isHourBox;
    setRange(0, LastHour);
}

// A value that is set or stepped to replaces the text, which is then no longer a person's.
bool ZvTimeSpinBox::isBeingTyped() const
{
    return lineEdit()->isModified();
}

void ZvTimeSpinBox::stepBy(int steps)
{
    m_stepValue = steps;
    QSpinBox::stepBy(steps);
    m_stepValue = 0;
}

void ZvTimeSpinBox::onValueChanged(int value)
{
    m_wrapState = NotWrapped;
    if (m_stepValue > 0 && m_lastValue > value) {
        m_wrapState = Carried;
        Q_EMIT carried();
    } else if (m_stepValue < 0 && m_lastValue < value) {
        m_wrapState = Borrowed;
        Q_EMIT borrowed();
    }
    m_lastValue = value;
}
