#include "workspace/ZvChannelInformationWidget.h"

#include "ZvChannel.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QSpacerItem>
#include <QVBoxLayout>

namespace Zavo {

namespace {

constexpr int CaptionColumn = 0;
constexpr int ValueColumn = 1;
constexpr int InformationSpacer = 16; // px

// The names of the value labels are these with a prefix.
const QLatin1String IdKey("id");
const QLatin1String NameKey("name");
const QLatin1String OrderKey("order");
const QLatin1String DefaultScheduleKey("default_schedule");
const QLatin1String DayOfWeekScheduleKey("dayofweek_schedule");
const QLatin1String DateScheduleKey("date_schedule");
const QLatin1String ValueLabelPrefix("i_");

} // namespace

ZvChannelInformationWidget::ZvChannelInformationWidget(ZvChannel *channel, QWidget *parent)
    : QWidget(parent)
    , m_channel(channel)
{
    auto *layout = new QGridLayout(this);
    auto *title = new QLabel(tr("Channel Information"), this);
    title->setStyleSheet(QStringLiteral("QLabel{font-weight: bold;}"));
    layout->addWidget(title, 0, CaptionColumn, 1, 2, Qt::AlignLeft | Qt::AlignTop);
    int row = 0;
    addRow(layout, ++row, tr("ID:"), IdKey);
    addRow(layout, ++row, tr("Name:"), NameKey);
    addRow(layout, ++row, tr("Order#:"), OrderKey);
    addRow(layout, ++row, tr("Default Schedule:"), DefaultScheduleKey);
    addRow(layout, ++row, tr("Day of Week Schedule:"), DayOfWeekScheduleKey);
    addRow(layout, ++row, tr("Date Schedule:"), DateScheduleKey);
    showValues();
}

void ZvChannelInformationWidget::addRow(QGridLayout *layout, int row, const QString &caption,
                                        const QString &key)
{
    auto *value = new QLabel(this);
    value->setObjectName(ValueLabelPrefix + key);
    value->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    m_valueLabels.insert(key, value);
    layout->addWidget(new QLabel(caption, this), row, CaptionColumn);
    layout->addWidget(value, row, ValueColumn);
}

void ZvChannelInformationWidget::showValues()
{
    if (!m_channel)
        return;
    QMap<int, int> counts;
    const QList<ZvSchedule> &schedules = m_channel->scheduleList();
    for (const ZvSchedule &schedule : schedules)
        ++counts[schedule.type()];
    setValue(IdKey, QString::number(m_channel->id()));
    setValue(NameKey, m_channel->name());
    setValue(OrderKey, QString::number(m_channel->index()));
    setValue(DefaultScheduleKey, QString::number(counts.value(ZvSchedule::Default)));
    setValue(DayOfWeekScheduleKey, QString::number(counts.value(ZvSchedule::DayOfWeek)));
    setValue(DateScheduleKey, QString::number(counts.value(ZvSchedule::Date)));
}

void ZvChannelInformationWidget::setValue(const QString &key, const QString &value)
{
    if (QLabel *label = m_valueLabels.value(key))
        label->setText(value);
}

void ZvChannelInformationWidget::showDialog(ZvChannel *channel, QWidget *parent)
{
    // Not on the stack: a parent that is deleted from the dialog's event loop takes it along.
    const QPointer<QDialog> dialog = new QDialog(parent);
    dialog->setWindowTitle(tr("Channel Information"));
    dialog->setWindowFlags(dialog->windowFlags() & ~Qt::WindowContextHelpButtonHint);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    connect(buttons, SIGNAL(rejected()), dialog, SLOT(reject()));
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(new ZvChannelInformationWidget(channel, dialog));
    layout->addSpacerItem(new QSpacerItem(InformationSpacer, InformationSpacer,
                                          QSizePolicy::Minimum, QSizePolicy::Expanding));
    layout->addWidget(buttons);
    dialog->exec();
    delete dialog;
}

} // namespace Zavo
