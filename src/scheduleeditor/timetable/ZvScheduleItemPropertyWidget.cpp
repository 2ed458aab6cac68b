#include "timetable/ZvScheduleItemPropertyWidget.h"

#include "domain/ElidedLabel.h"
#include "domain/ToolButtonStyle.h"
#include "timetable/TimeAxis.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "timetable/ZvTimeSpinWidget.h"
#include "timetable/ZvTimeTableTimeItem.h"

#include <QGridLayout>
#include <QLabel>
#include <QMap>
#include <QScopedValueRollback>
#include <QToolButton>
#include <QVBoxLayout>

namespace Zavo {

namespace {

constexpr int PanelIconSize = 16;         // px at ratio 1
constexpr int MinimumStageLabelSize = 24; // px
constexpr int PanelMargin = 6;            // px
constexpr int PanelSpacing = 4;           // px
constexpr int MillisecondsPerSecond = 1000;

QTime dayStart()
{
    return {0, 0};
}

QTime timeAt(int milliseconds)
{
    return QTime::fromMSecsSinceStartOfDay(milliseconds);
}

// Opened first, since a minimum is held below the maximum of before.
void setExactRange(ZvTimeSpinWidget *editor, QTime minimum, QTime maximum)
{
    editor->setTimeRange(dayStart(), TimeAxis::endOfDay());
    editor->setTimeRange(minimum, maximum);
}

QString joinedStageNames(const QList<ZvTimeTableTimeItem *> &items)
{
    QStringList names;
    names.reserve(items.size());
    for (const ZvTimeTableTimeItem *item : items)
        names.append(item->timeInfo().stageName());
    return names.join(QStringLiteral(", "));
}

// Its minimum lets many names be cut off, so that the times stay in sight.
QLabel *newStageLabel()
{
    auto *label = new ElidedLabel;
    label->setMinimumSize(MinimumStageLabelSize, MinimumStageLabelSize);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    label->setStyleSheet(QStringLiteral("border: 1px solid gray;margin-left: 5px;"));
    return label;
}

} // namespace

ZvScheduleItemPropertyWidget::ZvScheduleItemPropertyWidget(QWidget *parent)
    : QScrollArea(parent)
    , m_stageLabel(newStageLabel())
    , m_startTimeWidget(new ZvTimeSpinWidget)
    , m_endTimeWidget(new ZvTimeSpinWidget)
{
    setAccessibleName(tr("Assigned Item Property"));
    setWhatsThis(tr("The stage that is selected in the time table, and when it starts and ends. "
                    "Type a time or step it; the neighbours set the limits."));
    m_startTimeWidget->setSubject(tr("Start Time"));
    m_endTimeWidget->setSubject(tr("End Time"));
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);

    auto *topRow = new QHBoxLayout;
    topRow->setContentsMargins(0, 0, 0, 0);
    topRow->setSpacing(0);
    topRow->addWidget(new QLabel(tr("Selected Stage")));
    topRow->addWidget(createNavigation());
    topRow->addStretch();

    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(PanelMargin, PanelMargin, PanelMargin, PanelMargin);
    layout->setSpacing(PanelSpacing);
    layout->addLayout(topRow);
    layout->addWidget(m_stageLabel);
    layout->addWidget(createTimes());
    layout->addStretch();
    setWidget(content);

    // clang-format off
    connect(m_startTimeWidget, SIGNAL(timeChanged(QTime,QTime)), this, SLOT(onStartTimeChanged(QTime,QTime)));
    connect(m_endTimeWidget, SIGNAL(timeChanged(QTime,QTime)), this, SLOT(onEndTimeChanged(QTime,QTime)));
    connect(this, SIGNAL(dpiRatioChanged(double)), this, SLOT(scaleButtons(double)));
    // clang-format on
    scaleButtons(m_dpiRatio.ratio());
    clear();
}

QWidget *ZvScheduleItemPropertyWidget::createNavigation()
{
    auto *navigation = new QWidget;
    auto *layout = new QHBoxLayout(navigation);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_previousButton =
        addButton(navigation, QStringLiteral(":/images/arrow_simple_up.svg"), tr("Previous Stage"));
    m_nextButton =
        addButton(navigation, QStringLiteral(":/images/arrow_simple_down.svg"), tr("Next Stage"));
    m_previousButton->setPopupMode(QToolButton::InstantPopup);
    navigation->setStyleSheet(QLatin1String(ToolButtonStyle));
    connect(m_previousButton, SIGNAL(clicked()), this, SLOT(selectPreviousTimeItem()));
    connect(m_nextButton, SIGNAL(clicked()), this, SLOT(selectNextTimeItem()));
    return navigation;
}

QToolButton *ZvScheduleItemPropertyWidget::addButton(QWidget *navigation, const QString &icon,
                                                     const QString &toolTip)
{
    auto *button = new QToolButton(navigation);
    button->setIcon(QIcon(icon));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setAutoRaise(false);
    navigation->layout()->addWidget(button);
    return button;
}

QWidget *ZvScheduleItemPropertyWidget::createTimes()
{
    auto *times = new QWidget;
    times->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    auto *grid = new QGridLayout(times);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(new QLabel(tr("Start Time")), 0, 0);
    grid->addWidget(m_startTimeWidget, 0, 1);
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum), 0, 2);
    grid->addWidget(new QLabel(tr("End Time")), 1, 0);
    grid->addWidget(m_endTimeWidget, 1, 1);
    return times;
}

bool ZvScheduleItemPropertyWidget::event(QEvent *event)
{
    if (m_dpiRatio.hasChanged(this, event))
        Q_EMIT dpiRatioChanged(m_dpiRatio.ratio());
    return QScrollArea::event(event);
}

void ZvScheduleItemPropertyWidget::scaleButtons(double dpiRatio)
{
    const int size = int(PanelIconSize * dpiRatio);
    for (QToolButton *button : {m_previousButton, m_nextButton})
        button->setIconSize(QSize(size, size));
}

void ZvScheduleItemPropertyWidget::selectPreviousTimeItem()
{
    if (m_workingArea)
        m_workingArea->selectPreviousTimeItem();
}

void ZvScheduleItemPropertyWidget::selectNextTimeItem()
{
    if (m_workingArea)
        m_workingArea->selectNextTimeItem();
}

// What is on show

void ZvScheduleItemPropertyWidget::onTimeTableTimeItemHasNotSelected(ZvScheduleWorkingArea *area)
{
    m_workingArea = area;
    clear();
}

void ZvScheduleItemPropertyWidget::onTimeTableTimeItemsMoved(
    const QList<ZvTimeTableTimeItem *> &items, ZvScheduleWorkingArea *area)
{
    const QScopedValueRollback<bool> updating(m_updating, true);
    m_workingArea = area;
    if (items.isEmpty()) {
        clear();
        return;
    }
    m_timeItem = items.first();
    m_startTimeWidget->setEnabled(items.size() == 1);
    m_endTimeWidget->setEnabled(items.size() == 1);
    m_stageLabel->setText(joinedStageNames(items));
    if (items.size() == 1)
        showItem(items.first());
    else
        showItems(items);
}

void ZvScheduleItemPropertyWidget::clear()
{
    const QScopedValueRollback<bool> clearing(m_clearing, true);
    m_stageLabel->clear();
    for (ZvTimeSpinWidget *editor : {m_startTimeWidget, m_endTimeWidget}) {
        editor->setEnabled(false);
        editor->setTimeRange(dayStart(), TimeAxis::endOfDay());
    }
    m_startTimeWidget->setTime(dayStart());
    m_endTimeWidget->setTime(TimeAxis::endOfDay());
    m_timeItem.clear();
}

// A band shorter than the shortest is shown as it is.
void ZvScheduleItemPropertyWidget::showItem(ZvTimeTableTimeItem *item)
{
    const int shortest = m_minimumDuration * MillisecondsPerSecond;
    const QTime start = item->startTime();
    const QTime end = item->endTime();
    const QTime lower = item->minimumStartTime();
    const QTime upper = item->maximumEndTime();
    const QTime lastStart = timeAt(qMax(upper.msecsSinceStartOfDay() - shortest, 0));
    const QTime firstEnd = timeAt(lower.msecsSinceStartOfDay() + shortest);
    setExactRange(m_startTimeWidget, lower, qMax(lastStart, start));
    m_startTimeWidget->setTime(start);
    setExactRange(m_endTimeWidget, firstEnd.isValid() ? qMin(firstEnd, end) : end,
                  qMax(upper, end));
    m_endTimeWidget->setTime(end);
}

void ZvScheduleItemPropertyWidget::showItems(const QList<ZvTimeTableTimeItem *> &items)
{
    const QTime start = items.first()->startTime();
    const QTime end = items.last()->endTime();
    setExactRange(m_startTimeWidget, start, start);
    m_startTimeWidget->setTime(start);
    setExactRange(m_endTimeWidget, end, end);
    m_endTimeWidget->setTime(end);
}

// What a person changes

// Null while the panel is being filled: to show a band must not change it.
ZvTimeTableTimeItem *ZvScheduleItemPropertyWidget::editedItem(const ZvTimeSpinWidget *editor) const
{
    return editor->isEnabled() && m_workingArea && !isFilling() ? m_timeItem.data() : nullptr;
}

// Between close neighbours there may be no room for the shortest band.
void ZvScheduleItemPropertyWidget::onStartTimeChanged(QTime oldTime, QTime newTime)
{
    if (m_changing)
        return;
    const QScopedValueRollback<bool> changing(m_changing, true);
    if (const ZvTimeTableTimeItem *item = editedItem(m_startTimeWidget)) {
        const int shortest = m_minimumDuration * MillisecondsPerSecond;
        const QTime end = item->endTime();
        QTime start = newTime;
        if (newTime.msecsTo(end) < shortest) {
            start = timeAt(qMax(end.msecsSinceStartOfDay() - shortest, 0));
            m_startTimeWidget->setTime(start);
        }
        ZvTime time = item->timeInfo();
        time.setStartTime(qMax(start, item->minimumStartTime()));
        apply(item, time);
    }
    reportChange(oldTime, newTime);
}

void ZvScheduleItemPropertyWidget::onEndTimeChanged(QTime oldTime, QTime newTime)
{
    if (m_changing)
        return;
    const QScopedValueRollback<bool> changing(m_changing, true);
    if (const ZvTimeTableTimeItem *item = editedItem(m_endTimeWidget)) {
        const int shortest = m_minimumDuration * MillisecondsPerSecond;
        const QTime start = item->startTime();
        QTime end = newTime;
        if (start.msecsTo(newTime) < shortest) {
            const QTime earliest = timeAt(start.msecsSinceStartOfDay() + shortest);
            end = earliest.isValid() ? earliest : TimeAxis::endOfDay();
            m_endTimeWidget->setTime(end);
        }
        ZvTime time = item->timeInfo();
        time.setEndTime(qMin(end, item->maximumEndTime()));
        apply(item, time);
    }
    reportChange(oldTime, newTime);
}

void ZvScheduleItemPropertyWidget::apply(const ZvTimeTableTimeItem *item, const ZvTime &time)
{
    m_workingArea->changeTimeItemTimes(QMap<int, ZvTime>{{item->index(), time}});
}

void ZvScheduleItemPropertyWidget::reportChange(QTime oldTime, QTime newTime)
{
    if (oldTime != newTime && !isFilling())
        Q_EMIT itemPropertyChangedByUser();
}

} // namespace Zavo
