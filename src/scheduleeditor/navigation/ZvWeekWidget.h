#pragma once

#include <QFrame>
#include <QList>
#include <QPointer>

class QBoxLayout;
class QLabel;
class QMenu;

namespace Zavo {

class ZvDayOfWeekWidget;

/// The row of seven days by which the schedule of a day of the week is chosen. It shows which days
/// have a schedule as it is told, and knows no channel.
class ZvWeekWidget final : public QFrame
{
    Q_OBJECT

public:
    /// Sunday comes first, and is marked as scheduled until the marks are cleared.
    explicit ZvWeekWidget(QWidget *parent = nullptr);

    /// The day of the first selected cell; 8 if there is none.
    int selectedDayOfWeek() const;
    /// All seven days in the order shown.
    QList<int> days() const;
    /// False for a day that no cell has.
    bool hasScheduledDay(int day) const;

    /// Marks these days and leaves the others as they are.
    void setDaysScheduled(const QList<int> &days);
    void setDayScheduled(int day);
    void clearDayScheduled(int day);
    void clearAllScheduledDays();

    /// The context menu, which stays its owner's; null for none.
    void setEditMenu(QMenu *menu);

public Q_SLOTS:
    /// Rotates the row so that the day comes first.
    void setFirstDayOfWeek(int weekday);
    void setFirstDayOfWeek(Qt::DayOfWeek weekday);
    void selectDayOfWeek(Qt::DayOfWeek day);

Q_SIGNALS:
    /// A day was clicked and is selected by now; @p object is this row.
    void clicked(QObject *object = nullptr);

private Q_SLOTS:
    void onDayOfWeekWidgetClicked(ZvDayOfWeekWidget *widget);
    void showContextMenu(const QPoint &pos);

private:
    ZvDayOfWeekWidget *createDayWidget(int day);
    ZvDayOfWeekWidget *dayWidget(int day) const;

    QLabel *m_titleLabel;
    QList<ZvDayOfWeekWidget *> m_dayWidgets;
    QBoxLayout *m_daysLayout;
    int m_firstDayOfWeek = Qt::Sunday;
    QPointer<QMenu> m_editMenu;
};

} // namespace Zavo
