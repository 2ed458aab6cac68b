#include "navigation/ZvScheduleSwitcherWidget.h"

#include "domain/ChannelSchedules.h"
#include "navigation/NavigationNames.h"
#include "navigation/SchedulePastePlan.h"
#include "navigation/SwitcherAccessibility.h"
#include "navigation/ZvCalendarWidget.h"
#include "navigation/ZvScheduleDefaultWidget.h"
#include "navigation/ZvScheduleSwitcherSelectedWidget.h"
#include "navigation/ZvScheduledToBeExecutedWidget.h"
#include "navigation/ZvTodayWidget.h"
#include "navigation/ZvWeekWidget.h"

#include "ZvChannel.h"
#include "ZvConfig.h"
#include "ZvEditorConfig.h"

#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

namespace Zavo {

namespace {

constexpr int CalendarMarginPx = 9;
constexpr int SpacerPx = 24;

constexpr struct
{
    SelectionType selection;
    const char *word;
} Words[] = {
    {SelectionType::DefaultSchedule, "DefaultSchedule"},
    {SelectionType::Calendar, "Calendar"},
    {SelectionType::Week, "Week"},
};

SelectionType selectionOf(const QString &objectName)
{
    for (const auto &entry : Words) {
        if (objectName.startsWith(QLatin1String(entry.word)))
            return entry.selection;
    }
    return SelectionType::None;
}

// Before any part is made: Qt looks a part up for assistive technology when it gets a text, and
// keeps what it finds.
QWidget *withAccessibility(QWidget *parent)
{
    SwitcherAccessibility::install();
    return parent;
}

QString wordOf(SelectionType selection)
{
    for (const auto &entry : Words) {
        if (entry.selection == selection)
            return QLatin1String(entry.word);
    }
    return {};
}

} // namespace

ZvScheduleSwitcherWidget::ZvScheduleSwitcherWidget(QWidget *parent)
    : QScrollArea(withAccessibility(parent))
    , m_todayWidget(new ZvTodayWidget)
    , m_calendarWidget(new ZvCalendarWidget)
    , m_weekWidget(new ZvWeekWidget)
    , m_defaultWidget(new ZvScheduleDefaultWidget)
    , m_executedWidget(new ZvScheduledToBeExecutedWidget)
{
    m_calendarWidget->setObjectName(QLatin1String(NavigationName::CalendarWidget));
    m_weekWidget->setObjectName(QLatin1String(NavigationName::WeekWidget));
    m_defaultWidget->setObjectName(QLatin1String(NavigationName::DefaultWidget));
    m_weekWidget->selectDayOfWeek(static_cast<Qt::DayOfWeek>(QDate::currentDate().dayOfWeek()));
    setAccessibleName(tr("Switch Schedule"));
    setWhatsThis(tr("Chooses the schedule in the time table: that of a date in the calendar, that "
                    "of a day of the week, or the default one. The bar at the left edge marks the "
                    "chosen kind."));
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    createContent();
    selectAtStart();
    connectParts();
}

// Construction

// From the outside in: whatever is put into another widget takes its style over, with all it holds.
void ZvScheduleSwitcherWidget::createContent()
{
    auto *content = new QWidget;
    setWidget(content);
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(m_todayWidget);
    ZvScheduleSwitcherSelectedWidget *calendarFrame =
        addFrame(NavigationName::CalendarFrame, layout);
    calendarFrame->setAccessibleName(tr("Schedule of a date"));
    fillCalendarFrame(calendarFrame);
    layout->addWidget(m_executedWidget);
    ZvScheduleSwitcherSelectedWidget *weekFrame = addFrame(NavigationName::WeekFrame, layout);
    weekFrame->setAccessibleName(m_weekWidget->accessibleName());
    weekFrame->addChildWidget(m_weekWidget);
    ZvScheduleSwitcherSelectedWidget *defaultFrame = addFrame(NavigationName::DefaultFrame, layout);
    defaultFrame->setAccessibleName(m_defaultWidget->accessibleName());
    defaultFrame->addChildWidget(m_defaultWidget);
    defaultFrame->setSelected(true);
    layout->addItem(
        new QSpacerItem(SpacerPx, SpacerPx, QSizePolicy::Minimum, QSizePolicy::Expanding));
}

ZvScheduleSwitcherSelectedWidget *ZvScheduleSwitcherWidget::addFrame(const char *name,
                                                                     QBoxLayout *layout)
{
    auto *frame = new ZvScheduleSwitcherSelectedWidget;
    frame->setObjectName(QLatin1String(name));
    m_selectedWidgets.append(frame);
    layout->addWidget(frame);
    return frame;
}

void ZvScheduleSwitcherWidget::fillCalendarFrame(ZvScheduleSwitcherSelectedWidget *frame)
{
    auto *outerWidget = new QWidget;
    outerWidget->setObjectName(QLatin1String(NavigationName::CalendarOuterWidget));
    outerWidget->installEventFilter(this);
    auto *countLabel = new QLabel(tr("Schedule of days: None"));
    m_calendarWidget->setScheduleCountLabel(countLabel);

    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(CalendarMarginPx, CalendarMarginPx, CalendarMarginPx,
                               CalendarMarginPx);
    frame->addChildLayout(layout);
    layout->addWidget(outerWidget);
    layout->addWidget(countLabel);

    auto *outerLayout = new QVBoxLayout(outerWidget);
    outerLayout->setSpacing(0);
    outerLayout->setContentsMargins(0, 0, 0, 0);
    outerLayout->addWidget(m_calendarWidget);
    frame->addManagedObject(m_calendarWidget);
}

void ZvScheduleSwitcherWidget::selectAtStart()
{
    if (ZvEditorConfig::getConfig()->defaultScheduleUsedFirst()) {
        setSelection(SelectionType::DefaultSchedule);
    } else {
        setSelection(SelectionType::Calendar);
        m_calendarWidget->selectToday();
    }
}

// The calendar hears of its own selection before this widget does, having connected itself first.
void ZvScheduleSwitcherWidget::connectParts()
{
    // clang-format off
    for (const ZvScheduleSwitcherSelectedWidget *frame : qAsConst(m_selectedWidgets))
        connect(frame, SIGNAL(clicked(QObject*)), this, SLOT(onObjectSelected(QObject*)));
    connect(m_calendarWidget, SIGNAL(clicked(QObject*)), this, SLOT(onObjectSelected(QObject*)));
    connect(m_weekWidget, SIGNAL(clicked(QObject*)), this, SLOT(onObjectSelected(QObject*)));
    connect(m_calendarWidget, SIGNAL(requestEditMenuAboutToShow()), this, SLOT(onEditMenuAboutToShow()));
    connect(m_todayWidget, SIGNAL(mouseReleased()), m_calendarWidget, SLOT(selectToday()));
    connect(m_calendarWidget, SIGNAL(selectionChanged()), this, SLOT(onCalendarSelectionChanged()));
    connect(m_executedWidget, SIGNAL(requestHasSchedule(QDate,bool*)),
            this, SLOT(hasSchedule(QDate,bool*)), Qt::DirectConnection);
    connect(m_executedWidget, SIGNAL(requestHasSchedule(Qt::DayOfWeek,bool*)),
            this, SLOT(hasSchedule(Qt::DayOfWeek,bool*)), Qt::DirectConnection);
    // clang-format on
}

void ZvScheduleSwitcherWidget::setEditMenu(QMenu *menu)
{
    m_editMenu = menu;
    m_weekWidget->setEditMenu(menu);
    m_defaultWidget->setEditMenu(menu);
    m_calendarWidget->setEditMenu(menu);
}

QMenu *ZvScheduleSwitcherWidget::createCalendarMenu()
{
    return m_calendarWidget->createMenu();
}

// The selection

SelectionType ZvScheduleSwitcherWidget::currentSelection() const
{
    for (const ZvScheduleSwitcherSelectedWidget *frame : m_selectedWidgets) {
        if (frame->isSelected())
            return selectionOf(frame->objectName());
    }
    return SelectionType::None;
}

int ZvScheduleSwitcherWidget::currentScheduleType() const
{
    switch (currentSelection()) {
    case SelectionType::Calendar:
        return ZvSchedule::Date;
    case SelectionType::Week:
        return ZvSchedule::DayOfWeek;
    default:
        return ZvSchedule::Default;
    }
}

ZvScheduleBasicInfo ZvScheduleSwitcherWidget::currentInfo() const
{
    return infoOf(currentSelection());
}

ZvScheduleBasicInfo ZvScheduleSwitcherWidget::infoOf(SelectionType selection) const
{
    switch (selection) {
    case SelectionType::Calendar:
        return ZvScheduleBasicInfo(m_calendarWidget->selectedDate());
    case SelectionType::Week:
        return ZvScheduleBasicInfo(static_cast<Weekday::Days>(m_weekWidget->selectedDayOfWeek()));
    case SelectionType::DefaultSchedule:
        return ZvScheduleBasicInfo(ZvSchedule::Default);
    default:
        return {};
    }
}

void ZvScheduleSwitcherWidget::getCurrentScheduleInfo(ZvScheduleBasicInfo *info)
{
    if (info)
        *info = currentInfo();
}

void ZvScheduleSwitcherWidget::setSelection(SelectionType selection)
{
    const QString word = wordOf(selection);
    for (ZvScheduleSwitcherSelectedWidget *frame : qAsConst(m_selectedWidgets))
        frame->setSelected(frame->objectName().startsWith(word));
}

// The request goes out even if its schedule is chosen already: a click applies it again.
void ZvScheduleSwitcherWidget::onObjectSelected(QObject *object)
{
    for (ZvScheduleSwitcherSelectedWidget *frame : qAsConst(m_selectedWidgets))
        frame->setSelected(frame == object || frame->containsObject(object));
    if (object)
        requestSwitchTo(infoOf(selectionOf(object->objectName())));
    setActivated();
}

void ZvScheduleSwitcherWidget::requestSwitchTo(const ZvScheduleBasicInfo &info)
{
    switch (info.type()) {
    case ZvSchedule::Default:
        Q_EMIT requestSwitchToDefault();
        break;
    case ZvSchedule::DayOfWeek:
        Q_EMIT requestSwitchToDayOfWeek(static_cast<Qt::DayOfWeek>(info.dayOfWeek()));
        break;
    case ZvSchedule::Date:
        Q_EMIT requestSwitchToDate(info.date());
        break;
    default:
        break;
    }
}

// Ends the loop: the page reports the schedule that was asked for here, which is chosen by then.
void ZvScheduleSwitcherWidget::changeCurrentScheduleSelection(const ZvScheduleBasicInfo &info)
{
    if (info == currentInfo())
        return;
    switch (info.type()) {
    case ZvSchedule::Default:
        setSelection(SelectionType::DefaultSchedule);
        break;
    case ZvSchedule::DayOfWeek:
        m_weekWidget->selectDayOfWeek(static_cast<Qt::DayOfWeek>(info.dayOfWeek()));
        setSelection(SelectionType::Week);
        break;
    case ZvSchedule::Date:
        m_calendarWidget->setSelectedDate(info.date());
        // With Ctrl held, as for an undo by its keys, that takes a selected date out.
        if (m_calendarWidget->selectedDate() != info.date())
            m_calendarWidget->setSelectedDate(info.date());
        setSelection(SelectionType::Calendar);
        break;
    default:
        setSelection(SelectionType::None);
        break;
    }
    requestSwitchTo(info);
}

void ZvScheduleSwitcherWidget::onCalendarSelectionChanged()
{
    m_executedWidget->onDateSelectionChanged(m_calendarWidget->selectedDate());
}

bool ZvScheduleSwitcherWidget::eventFilter(QObject *watched, QEvent *event)
{
    const bool isAroundCalendar =
        watched->objectName() == QLatin1String(NavigationName::CalendarOuterWidget);
    if (event->type() == QEvent::Leave && isAroundCalendar)
        m_calendarWidget->clearHovered();
    else if (event->type() == QEvent::MouseButtonPress)
        setActivated();
    return QScrollArea::eventFilter(watched, event);
}

void ZvScheduleSwitcherWidget::setActivated(bool flag)
{
    if (flag)
        Q_EMIT activated(this);
}

void ZvScheduleSwitcherWidget::setActivated()
{
    setActivated(true);
}

void ZvScheduleSwitcherWidget::storeCurrentSchedule()
{
    Q_EMIT requestStoreCurrentSchedule();
}

void ZvScheduleSwitcherWidget::onEditMenuAboutToShow()
{
    Q_EMIT requestEditMenuAboutToShow();
}

// The channel

void ZvScheduleSwitcherWidget::setCurrentChannel(const ZvChannel *currentChannel)
{
    if (m_currentChannel == currentChannel)
        return;
    m_currentChannel = currentChannel;
    m_calendarWidget->clearAllScheduledDates();
    m_weekWidget->clearAllScheduledDays();
    m_defaultWidget->setStageCount(0);
    if (m_currentChannel) {
        const QList<ZvSchedule> &schedules = m_currentChannel->scheduleList();
        for (const ZvSchedule &schedule : schedules) {
            markSchedule(schedule);
            if (schedule.type() == ZvSchedule::Default)
                m_defaultWidget->setStageCount(ChannelSchedules::stageCount(schedule));
        }
        m_calendarWidget->update();
        m_weekWidget->update();
    }
    Q_EMIT currentChannelChanged(m_currentChannel);
}

void ZvScheduleSwitcherWidget::markSchedule(const ZvSchedule &schedule)
{
    if (schedule.type() == ZvSchedule::Date)
        m_calendarWidget->setScheduledDate(schedule.date());
    else if (schedule.type() == ZvSchedule::DayOfWeek)
        m_weekWidget->setDayScheduled(schedule.dayOfWeek());
}

void ZvScheduleSwitcherWidget::onScheduleCreated(const QList<int> &indexies,
                                                 const ZvScheduleBasicInfo &curInfo)
{
    if (!m_currentChannel)
        return;
    const QList<ZvSchedule> &schedules = m_currentChannel->scheduleList();
    for (int index : indexies) {
        if (index >= 0 && index < schedules.size())
            markSchedule(schedules.at(index));
    }
    Q_EMIT scheduleCreated(indexies, curInfo);
    changeCurrentScheduleSelection(curInfo);
    onCalendarSelectionChanged();
}

void ZvScheduleSwitcherWidget::onScheduleRemoved(const QList<ZvScheduleBasicInfo> &list,
                                                 const ZvScheduleBasicInfo &curInfo)
{
    for (const ZvScheduleBasicInfo &info : list) {
        if (info.type() == ZvSchedule::Date)
            m_calendarWidget->clearScheduledDate(info.date());
        else if (info.type() == ZvSchedule::DayOfWeek)
            m_weekWidget->clearDayScheduled(info.dayOfWeek());
    }
    Q_EMIT scheduleRemoved(list, curInfo);
    changeCurrentScheduleSelection(curInfo);
    onCalendarSelectionChanged();
}

void ZvScheduleSwitcherWidget::onScheduleStageCountChanged(const ZvScheduleBasicInfo &info,
                                                           int stageCount)
{
    if (info.type() == ZvSchedule::Default)
        m_defaultWidget->setStageCount(stageCount);
    Q_EMIT scheduleStageCountChanged(info, stageCount);
}

bool ZvScheduleSwitcherWidget::hasSchedule(const QDate &date, bool *has)
{
    const bool isScheduled = m_calendarWidget->isScheduledDate(date);
    if (has)
        *has = isScheduled;
    return isScheduled;
}

bool ZvScheduleSwitcherWidget::hasSchedule(Qt::DayOfWeek day, bool *has)
{
    const bool isScheduled = m_weekWidget->hasScheduledDay(day);
    if (has)
        *has = isScheduled;
    return isScheduled;
}

// What runs on a date

void ZvScheduleSwitcherWidget::changeExecutedScheduleDisplaying()
{
    changeExecutedScheduleDisplaying(QDate::currentDate());
}

void ZvScheduleSwitcherWidget::changeExecutedScheduleDisplaying(const QDate &date)
{
    m_executedWidget->onDateSelectionChanged(date);
}

void ZvScheduleSwitcherWidget::updateExecutedShceudleDisplaying()
{
    const QDate date = m_calendarWidget->selectedDate();
    changeExecutedScheduleDisplaying(date.isValid() ? date : QDate::currentDate());
}

} // namespace Zavo
