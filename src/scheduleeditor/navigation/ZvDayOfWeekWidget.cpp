#include "navigation/ZvDayOfWeekWidget.h"

#include "navigation/LookState.h"
#include "navigation/NavigationNames.h"

#include <QLocale>
#include <QMouseEvent>
#include <QResizeEvent>

namespace Zavo {

namespace {

constexpr int MinimumSidePx = 24;

// Fill and frame look like those of the calendar's cells.
const QLatin1String CellStyle(
    "QLabel{background-color: rgb(255, 255, 255);border-width: 1px;border-style: solid;"
    "border-color: lightgray;}"
    "[pressed=\"true\"]{background-color: rgb(204,204,230);}"
    "[selected=\"true\"]{background-color: rgb(204,204,255);}"
    "[scheduled=\"true\"]{border-width: 2px;border-style: solid;border-color: rgb(153,153,204);}"
    ":hover{background-color: rgba(240, 240, 250, 128);}"
    ":hover[selected=true]{background-color: rgba(204,204,255, 128);}"
    ":hover[pressed=true]{background-color: rgb(204,204,230);}");
const QLatin1String SundayStyle("QLabel{color:red;}");
const QLatin1String SaturdayStyle("QLabel{color:blue;}");

} // namespace

ZvDayOfWeekWidget::ZvDayOfWeekWidget(QWidget *parent)
    : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
    setMinimumSize(MinimumSidePx, MinimumSidePx);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    for (const char *property : {NavigationName::PressedProperty, NavigationName::SelectedProperty,
                                 NavigationName::ScheduledProperty})
        setProperty(property, false);
    setStyleSheet(CellStyle);
}

ZvDayOfWeekWidget::~ZvDayOfWeekWidget() = default;

void ZvDayOfWeekWidget::setDayOfWeek(int day)
{
    m_dayOfWeek = day;
    if (day == Qt::Sunday)
        setStyleSheet(styleSheet() + SundayStyle);
    else if (day == Qt::Saturday)
        setStyleSheet(styleSheet() + SaturdayStyle);
    setText(day == 0 ? tr("NON") : QLocale::system().dayName(day, QLocale::ShortFormat));
}

bool ZvDayOfWeekWidget::isSelected() const
{
    return property(NavigationName::SelectedProperty).toBool();
}

bool ZvDayOfWeekWidget::isScheduled() const
{
    return property(NavigationName::ScheduledProperty).toBool();
}

void ZvDayOfWeekWidget::setSelected(bool selected)
{
    setLookState(this, NavigationName::SelectedProperty, selected);
}

void ZvDayOfWeekWidget::setScheduled(bool scheduled)
{
    setLookState(this, NavigationName::ScheduledProperty, scheduled);
}

QSize ZvDayOfWeekWidget::sizeHint() const
{
    return {maximumWidth(), 2 * minimumHeight()};
}

// The press ends here: the frame around would take it for a choice of the day selected so far.
void ZvDayOfWeekWidget::mousePressEvent(QMouseEvent *event)
{
    setLookState(this, NavigationName::PressedProperty, true);
    QLabel::mousePressEvent(event);
    event->accept();
}

void ZvDayOfWeekWidget::mouseReleaseEvent(QMouseEvent *event)
{
    setLookState(this, NavigationName::PressedProperty, false);
    if (rect().contains(event->pos()))
        select();
    QLabel::mouseReleaseEvent(event);
}

void ZvDayOfWeekWidget::releaseIfPressed()
{
    if (!property(NavigationName::PressedProperty).toBool())
        return;
    setLookState(this, NavigationName::PressedProperty, false);
    select();
}

void ZvDayOfWeekWidget::select()
{
    setSelected(true);
    Q_EMIT clicked(this);
}

// Square, until it is high enough.
void ZvDayOfWeekWidget::resizeEvent(QResizeEvent *event)
{
    setMaximumHeight(qMin(2 * minimumHeight(), event->size().width()));
    QLabel::resizeEvent(event);
}

void ZvDayOfWeekWidget::delayedResize()
{
    resize(m_delayedSize);
}

} // namespace Zavo
