#pragma once

#include "timetable/TimeAxis.h"

#include <QWidget>

class ZvTimeSpinBox;

namespace Zavo {

/// An editor of a time of day by hour, minute and second, in which seconds carry into minutes and
/// minutes into hours. 23:59:59.999 stands for the end of the day and shows as 24 h 0 m 0 s, where
/// minutes and seconds stay at 0 until the hour is another; of any other time the milliseconds do
/// not show. What is typed is held in the range only when it is
/// finished, since the first digit of a number may lie outside.
class ZvTimeSpinWidget final : public QWidget
{
    Q_OBJECT

public:
    explicit ZvTimeSpinWidget(QWidget *parent = nullptr);

    /// The time that the boxes show.
    QTime currentTime() const;

    /// What time it is, as assistive technology tells it before the parts.
    void setSubject(const QString &subject);

    /// Shows @p time, held in the range; an invalid one is the end of the day.
    void setTime(QTime time);

    /// The range of setTime() from now on; an invalid time is the end of the day. The minimum is
    /// never later than the maximum was before, and the maximum never earlier than @p minimum or
    /// the new minimum. The time on show stays as it is.
    void setTimeRange(QTime minimum, QTime maximum);

Q_SIGNALS:
    /// The time is another, by a person or by setTime(). The first time has an invalid @p oldTime.
    void timeChanged(QTime oldTime, QTime newTime);

private Q_SLOTS:
    void onHourBoxValueChanged(int value);
    void onMinuteBoxValueChanged(int value);
    void onSecondBoxValueChanged(int value);
    void onEditingFinished();

private:
    bool isAtLastHour() const;
    int wrapStateOf(const ZvTimeSpinBox *box) const;
    void takeTimeFrom(const ZvTimeSpinBox *box);
    void carryIntoHour();
    bool borrowFromHour();
    void carryIntoMinute();
    void borrowFromMinute();
    void showTime(QTime time);

    ZvTimeSpinBox *m_hourBox = nullptr;
    ZvTimeSpinBox *m_minuteBox = nullptr;
    ZvTimeSpinBox *m_secondBox = nullptr;
    bool m_boxUpdating = false;
    bool m_timeUpdating = false;
    bool m_outOfRange = false; ///< what is typed so far
    QTime m_time;
    QTime m_maximumTime = TimeAxis::endOfDay();
    QTime m_minimumTime = QTime(0, 0);
};

} // namespace Zavo
