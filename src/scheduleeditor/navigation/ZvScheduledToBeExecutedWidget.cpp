#include "navigation/ZvScheduledToBeExecutedWidget.h"

#include "navigation/NavigationNames.h"

#include <QDate>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace Zavo {

namespace {

constexpr int ExecutedSpacerPx = 16;

} // namespace

ZvScheduledToBeExecutedWidget::ZvScheduledToBeExecutedWidget(QWidget *parent)
    : QFrame(parent)
    , m_titleLabel(new QLabel(tr("Scheduled to be executed on"), this))
    , m_captionLabel(new QLabel(tr("Schedule:"), this))
    , m_scheduleLabel(new QLabel(this))
{
    m_titleLabel->setStyleSheet(QStringLiteral("font-weight: bold;"));
    // A long date is no reason for a wide dock.
    m_titleLabel->setWordWrap(true);
    m_captionLabel->setStyleSheet(
        QStringLiteral("padding: 5px;padding-right: 0px;margin-left:5px;"));
    showSchedule(tr("DEFAULT"), QStringLiteral("color: orange;"));
    setWhatsThis(tr("Tells which schedule is used on the selected date: that of the date itself, "
                    "else that of its day of the week, else the default schedule."));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_titleLabel);
    layout->addWidget(createNameWidget());
}

QWidget *ZvScheduledToBeExecutedWidget::createNameWidget()
{
    auto *widget = new QWidget(this);
    widget->setObjectName(QLatin1String(NavigationName::ExecutedSchedule));
    widget->setStyleSheet(QStringLiteral(
        "QWidget#zv_schedule_executed_name{margin-left: 5px;padding: 5px;border-style: solid;"
        "border-width: 1px;border-color: darkgray;border-radius: 2px;"
        "background-color: rgb(240, 240, 240);}"));
    auto *layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_captionLabel);
    layout->addWidget(m_scheduleLabel);
    layout->addItem(new QSpacerItem(ExecutedSpacerPx, ExecutedSpacerPx, QSizePolicy::Expanding,
                                    QSizePolicy::Minimum));
    return widget;
}

void ZvScheduledToBeExecutedWidget::showSchedule(const QString &text, const QString &styleSheet)
{
    m_scheduleLabel->setText(text);
    m_scheduleLabel->setStyleSheet(styleSheet);
}

void ZvScheduledToBeExecutedWidget::onDateSelectionChanged(const QDate &date)
{
    const QLocale locale = QLocale::system();
    const int day = date.dayOfWeek();
    const QString dateText = locale.toString(date, QLocale::LongFormat);
    m_titleLabel->setText(tr("Scheduled to be executed on %1 (%2)")
                              .arg(dateText, locale.dayName(day, QLocale::ShortFormat)));
    bool has = false;
    Q_EMIT requestHasSchedule(date, &has);
    if (has) {
        showSchedule(dateText, QStringLiteral("color: blue;"));
        return;
    }
    Q_EMIT requestHasSchedule(static_cast<Qt::DayOfWeek>(day), &has);
    if (has)
        showSchedule(locale.dayName(day, QLocale::LongFormat).toUpper(),
                     QStringLiteral("color: green;"));
    else
        showSchedule(tr("DEFAULT"), QStringLiteral("color: orange;"));
}

} // namespace Zavo
