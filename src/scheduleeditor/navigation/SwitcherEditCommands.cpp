#include "navigation/ZvScheduleSwitcherWidget.h"

#include "domain/ChannelSchedules.h"
#include "domain/ZvScheduleCommon.h"
#include "navigation/SchedulePastePlan.h"
#include "navigation/ZvCalendarWidget.h"
#include "navigation/ZvWeekWidget.h"
#include "services/ZvScheduleClipboard.h"

#include "ZvChannel.h"

// What the edit commands do to the schedules that the switcher has selected.
namespace Zavo {

QList<ZvScheduleBasicInfo> ZvScheduleSwitcherWidget::selectedScheduleInfos() const
{
    QList<ZvScheduleBasicInfo> infos;
    if (currentSelection() == SelectionType::Calendar) {
        const QList<QDate> dates = m_calendarWidget->selectedDates();
        for (const QDate &date : dates) {
            if (m_calendarWidget->isScheduledDate(date))
                infos.append(ZvScheduleBasicInfo(date));
        }
    } else if (currentSelection() == SelectionType::Week) {
        const int day = m_weekWidget->selectedDayOfWeek();
        if (m_weekWidget->days().contains(day))
            infos.append(ZvScheduleBasicInfo(static_cast<Weekday::Days>(day)));
    }
    return infos;
}

QList<ZvSchedule> ZvScheduleSwitcherWidget::selectedSchedules(bool withEmpty) const
{
    QList<ZvSchedule> schedules;
    switch (currentSelection()) {
    case SelectionType::Calendar: {
        const QList<QDate> dates = m_calendarWidget->selectedDates();
        for (const QDate &date : dates) {
            const bool isScheduled = m_calendarWidget->isScheduledDate(date);
            if (isScheduled && m_currentChannel)
                schedules.append(m_currentChannel->getSchedule(date));
            else if (isScheduled || withEmpty)
                schedules.append(ZvSchedule());
        }
        break;
    }
    case SelectionType::Week:
    case SelectionType::DefaultSchedule:
        schedules.append(ChannelSchedules::find(m_currentChannel, currentInfo()));
        break;
    case SelectionType::None:
        break;
    }
    return schedules;
}

ZvScheduleCommonInterface::SelectedType ZvScheduleSwitcherWidget::hasSelectedItems() const
{
    const SelectedType all = SelectedCopy | SelectedCut | SelectedDelete;
    switch (currentSelection()) {
    case SelectionType::Calendar:
        return m_calendarWidget->selectionHasScheduledDate() ? all : SelectedType();
    case SelectionType::Week:
        return m_weekWidget->hasScheduledDay(m_weekWidget->selectedDayOfWeek()) ? all
                                                                                : SelectedType();
    case SelectionType::DefaultSchedule:
        return SelectedCopy;
    default:
        return {};
    }
}

void ZvScheduleSwitcherWidget::deleteSelectedItems()
{
    const QList<ZvScheduleBasicInfo> infos = selectedScheduleInfos();
    if (!infos.isEmpty())
        Q_EMIT requestRemoveSchedule(infos, true);
}

bool ZvScheduleSwitcherWidget::writeSelectedSchedules()
{
    storeCurrentSchedule();
    const QList<ZvSchedule> schedules = selectedSchedules(true);
    if (schedules.isEmpty())
        return false;
    ZvScheduleClipboard::writeSchedulesToClipboard(schedules);
    return true;
}

bool ZvScheduleSwitcherWidget::copySelectedItems()
{
    return writeSelectedSchedules();
}

bool ZvScheduleSwitcherWidget::cutSelectedItems()
{
    const bool written = writeSelectedSchedules();
    const QList<ZvScheduleBasicInfo> infos = selectedScheduleInfos();
    if (!infos.isEmpty())
        Q_EMIT requestRemoveSchedule(infos, false);
    return written;
}

bool ZvScheduleSwitcherWidget::isPastingPossible() const
{
    switch (currentSelection()) {
    case SelectionType::Calendar:
        return !m_calendarWidget->selectedDates().isEmpty() &&
               ZvScheduleClipboard::hasScheduleData();
    case SelectionType::Week:
        return m_weekWidget->selectedDayOfWeek() != 0 && ZvScheduleClipboard::hasScheduleData();
    case SelectionType::DefaultSchedule:
        return ZvScheduleClipboard::hasScheduleData();
    default:
        return false;
    }
}

bool ZvScheduleSwitcherWidget::pasteItems()
{
    const QList<ZvSchedule> list = ZvScheduleClipboard::readSchedulesFromClipboard();
    if (list.isEmpty())
        return false;
    storeCurrentSchedule();
    return pasteSchedules(list);
}

bool ZvScheduleSwitcherWidget::pasteSchedules(const QList<ZvSchedule> &list)
{
    SchedulePastePlan plan;
    const SelectionType selection = currentSelection();
    if (list.isEmpty() || selection == SelectionType::None)
        return false;
    const bool agreed = selection == SelectionType::Calendar ? planPasteOverDates(list, &plan)
                                                             : planPasteOverOne(list, &plan);
    if (!agreed || plan.isEmpty())
        return false;
    Q_EMIT requestRemoveAndInsertSchedule(plan.removed, plan.inserted);
    return true;
}

bool ZvScheduleSwitcherWidget::planPasteOverOne(const QList<ZvSchedule> &list,
                                                SchedulePastePlan *plan)
{
    const QList<ZvSchedule> schedules = schedulesWithContent(list);
    if (schedules.isEmpty())
        return false;
    if (schedules.size() > 1) {
        ZvScheduleCommon::showCannotPasteMultiple(this);
        return false;
    }
    const ZvScheduleBasicInfo place = currentInfo();
    const bool exists =
        place.type() == ZvSchedule::Default || m_weekWidget->hasScheduledDay(place.dayOfWeek());
    plan->replace(place, schedules.first(), exists);
    return !exists || ZvScheduleCommon::confirmScheduleReplace({}, this, true) == QMessageBox::Yes;
}

// From the first of the selected dates on, whatever is selected beyond.
bool ZvScheduleSwitcherWidget::planPasteOverDates(const QList<ZvSchedule> &list,
                                                  SchedulePastePlan *plan)
{
    const QList<QDate> dates = m_calendarWidget->selectedDates();
    if (dates.isEmpty())
        return false;
    if (list.size() > dates.size() &&
        ZvScheduleCommon::confirmSchedulePasteCount(this) != QMessageBox::Yes)
        return false;
    for (int i = 0; i < list.size(); ++i) {
        const QDate date = dates.first().addDays(i);
        plan->replace(ZvScheduleBasicInfo(date), list.at(i),
                      m_calendarWidget->isScheduledDate(date));
    }
    return plan->removed.isEmpty() || ZvScheduleCommon::confirmScheduleReplace(
                                          plan->removed, this, plan->hasEmpty) == QMessageBox::Yes;
}

// Which dates there are is the calendar's affair, so there is no "all" of them.
void ZvScheduleSwitcherWidget::selectAllItems() {}

void ZvScheduleSwitcherWidget::deselectAllItems() {}

} // namespace Zavo
