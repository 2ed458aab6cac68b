#include "navigation/ZvWeekWidget.h"

#include "navigation/ZvDayOfWeekWidget.h"

#include "Weekday.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

namespace Zavo {

ZvWeekWidget::ZvWeekWidget(QWidget *parent)
    : QFrame(parent)
    , m_titleLabel(new QLabel(tr("Schedule for Each Day of Week"), this))
    , m_daysLayout(new QHBoxLayout)
{
    m_titleLabel->setStyleSheet(QStringLiteral("font-weight: bold;"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_titleLabel);
    layout->addLayout(m_daysLayout);

    m_dayWidgets.append(createDayWidget(Qt::Sunday));
    m_dayWidgets.first()->setScheduled(true);
    for (int day = Qt::Monday; day <= Qt::Saturday; ++day)
        m_dayWidgets.append(createDayWidget(day));
    for (ZvDayOfWeekWidget *cell : qAsConst(m_dayWidgets))
        m_daysLayout->addWidget(cell);

    setAccessibleName(m_titleLabel->text());
    setWhatsThis(tr("Click a day to edit the schedule that is used on that day of every week. A "
                    "frame marks the days that have one. A schedule of a date goes before it."));
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(showContextMenu(QPoint)));
}

ZvDayOfWeekWidget *ZvWeekWidget::createDayWidget(int day)
{
    auto *cell = new ZvDayOfWeekWidget(this);
    cell->setDayOfWeek(day);
    connect(cell, SIGNAL(clicked(ZvDayOfWeekWidget*)), this,
                         SLOT(onDayOfWeekWidgetClicked(ZvDayOfWeekWidget*)));
    return cell;
}

ZvDayOfWeekWidget *ZvWeekWidget::dayWidget(int day) const
{
    for (ZvDayOfWeekWidget *cell : m_dayWidgets) {
        if (cell->dayOfWeek() == day)
            return cell;
    }
    return nullptr;
}

int ZvWeekWidget::selectedDayOfWeek() const
{
    for (const ZvDayOfWeekWidget *cell : m_dayWidgets) {
        if (cell->isSelected())
            return cell->dayOfWeek();
    }
    return Weekday::NoDay;
}

QList<int> ZvWeekWidget::days() const
{
    QList<int> days;
    for (const ZvDayOfWeekWidget *cell : m_dayWidgets)
        days.append(cell->dayOfWeek());
    return days;
}

bool ZvWeekWidget::hasScheduledDay(int day) const
{
    const ZvDayOfWeekWidget *cell = dayWidget(day);
    return cell && cell->isScheduled();
}

void ZvWeekWidget::setDaysScheduled(const QList<int> &days)
{
    for (ZvDayOfWeekWidget *cell : qAsConst(m_dayWidgets)) {
        if (days.contains(cell->dayOfWeek()))
            cell->setScheduled(true);
    }
    update();
}

void ZvWeekWidget::setDayScheduled(int day)
{
    setDaysScheduled({day});
}

void ZvWeekWidget::clearDayScheduled(int day)
{
    if (ZvDayOfWeekWidget *cell = dayWidget(day))
        cell->setScheduled(false);
    update();
}

void ZvWeekWidget::clearAllScheduledDays()
{
    for (ZvDayOfWeekWidget *cell : qAsConst(m_dayWidgets))
        cell->setScheduled(false);
    update();
}

void ZvWeekWidget::setEditMenu(QMenu *menu)
{
    m_editMenu = menu;
}

void ZvWeekWidget::setFirstDayOfWeek(int weekday)
{
    if (weekday == m_firstDayOfWeek)
        return;
    m_firstDayOfWeek = weekday;
    for (int step = 0; step < m_dayWidgets.size(); ++step) {
        if (m_dayWidgets.first()->dayOfWeek() == weekday)
            break;
        m_dayWidgets.append(m_dayWidgets.takeFirst());
    }
    for (ZvDayOfWeekWidget *cell : qAsConst(m_dayWidgets))
        m_daysLayout->removeWidget(cell);
    for (ZvDayOfWeekWidget *cell : qAsConst(m_dayWidgets))
        m_daysLayout->addWidget(cell);
}

void ZvWeekWidget::setFirstDayOfWeek(Qt::DayOfWeek weekday)
{
    setFirstDayOfWeek(static_cast<int>(weekday));
}

void ZvWeekWidget::selectDayOfWeek(Qt::DayOfWeek day)
{
    for (ZvDayOfWeekWidget *cell : qAsConst(m_dayWidgets))
        cell->setSelected(cell->dayOfWeek() == day);
    update();
}

void ZvWeekWidget::onDayOfWeekWidgetClicked(ZvDayOfWeekWidget *widget)
{
    for (ZvDayOfWeekWidget *cell : qAsConst(m_dayWidgets)) {
        if (cell == widget || !cell->isSelected())
            continue;
        cell->setSelected(false);
        cell->update();
    }
    Q_EMIT clicked(this);
}

// Where the menu opens at the press it takes the release from the day under the mouse, and its
// commands are meant for that day.
void ZvWeekWidget::showContextMenu(const QPoint &pos)
{
    if (!m_editMenu)
        return;
    for (ZvDayOfWeekWidget *cell : qAsConst(m_dayWidgets))
        cell->releaseIfPressed();
    m_editMenu->exec(mapToGlobal(pos));
}

} // namespace Zavo
