#include "navigation/ZvTodayWidget.h"

#include "domain/ElidedLabel.h"
#include "navigation/LookState.h"
#include "navigation/NavigationNames.h"

#include <QDate>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

namespace Zavo {

namespace {

constexpr int TodaySpacerPx = 9;

const QLatin1String TodayStyle(
    "QFrame:hover{background-color: rgb(240, 240, 250);border-width: 1px;border-style: solid;"
    "border-radius: 4px;border-color: rgb(190, 190, 200);}"
    "QLabel:hover{border-style: none;background-color: transparent;}"
    "QFrame[pressed=\"true\"]{background-color: rgb(204, 204, 255);border-width: 1px;"
    "border-style: solid;border-radius: 4px;border-color: rgb(154, 154, 205);}"
    "QLabel[pressed=\"true\"]{border-style: none;background-color: transparent;}"
    "QLabel{font-weight:bold;}");

} // namespace

ZvTodayWidget::ZvTodayWidget(QWidget *parent)
    : QFrame(parent)
    , m_titleLabel(new QLabel(tr("Today:"), this))
    , m_dateLabel(new ElidedLabel(this))
    , m_dayLabel(new ElidedLabel(this))
{
    setAttribute(Qt::WA_MouseTracking);
    setProperty(NavigationName::PressedProperty, false);
    setStyleSheet(TodayStyle);
    const QDate today = QDate::currentDate();
    const QLocale locale = QLocale::system();
    m_dateLabel->setText(locale.toString(today, QLocale::LongFormat));
    m_dayLabel->setText(locale.dayName(today.dayOfWeek(), QLocale::LongFormat));

    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_titleLabel);
    layout->addWidget(m_dateLabel);
    // The day, which long dates begin with, gives way before the date does.
    m_dayLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(m_dayLabel, 1);
    layout->addItem(new QSpacerItem(TodaySpacerPx, TodaySpacerPx, QSizePolicy::Expanding,
                                    QSizePolicy::Minimum));
    setToolTip(tr("Move to Today"));
    setAccessibleName(toolTip());
    setWhatsThis(tr("Today's date. Click it to turn the calendar to today and show the schedule of "
                    "that date."));
}

void ZvTodayWidget::mousePressEvent(QMouseEvent *event)
{
    setLookState(this, NavigationName::PressedProperty, true);
    Q_EMIT mousePressed();
    QFrame::mousePressEvent(event);
}

void ZvTodayWidget::mouseReleaseEvent(QMouseEvent *event)
{
    setLookState(this, NavigationName::PressedProperty, false);
    Q_EMIT mouseReleased();
    QFrame::mouseReleaseEvent(event);
}

} // namespace Zavo
