#include "stages/ZvScheduleAutoStageSwichSettingWidget.h"

#include "stages/StagesNames.h"

#include "ZvEditorUserConfig.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace Zavo {

namespace {

constexpr int leastIntervalSeconds = 10;
constexpr int longestIntervalSeconds = 12 * 60 * 60;
constexpr int intervalStepSeconds = 60;
constexpr int usualIntervalSeconds = 300;

/// Stands for 24 o'clock.
QTime twentyFourOclock()
{
    return {23, 59, 59, 999};
}

QTime lastSecondOfDay()
{
    return {23, 59, 59};
}

QTimeEdit *createTimeEdit(QTime earliest, QTime latest, QTime time)
{
    auto *edit = new QTimeEdit;
    edit->setDisplayFormat(QStringLiteral("hh:mm:ss"));
    edit->setTimeRange(earliest, latest);
    edit->setTime(time);
    return edit;
}

QLabel *labelOf(QWidget *editor, const QString &text)
{
    auto *label = new QLabel(text);
    label->setBuddy(editor);
    return label;
}

QLabel *createWarning(const QString &text)
{
    auto *note = new QLabel(text);
    note->setWordWrap(true);
    QFont font = note->font();
    font.setItalic(true);
    font.setWeight(QFont::Bold);
    note->setFont(font);
    return note;
}

// What is damaged counts as not stored.
QTime storedSwitchTime(const QString &key, QTime defaultTime)
{
    const QTime time = ZvEditorUserConfig::value(key).toTime();
    return time.isValid() ? time : defaultTime;
}

} // namespace

ZvScheduleAutoStageSwichSettingWidget::ZvScheduleAutoStageSwichSettingWidget(QWidget *parent)
    : QWidget(parent)
    , m_intervalSpinBox(new QSpinBox)
    , m_fromTimeEdit(createTimeEdit({0, 0, 0}, {23, 59, 0}, {0, 0, 0}))
    , m_toTimeEdit(createTimeEdit({0, 1, 0}, lastSecondOfDay(), lastSecondOfDay()))
    , m_at24oclockCheckBox(new QCheckBox(tr("24 o'clock")))
{
    setObjectName(QLatin1String(StagesName::SwitchSettings));
    auto *about =
        new QLabel(tr("You can set the schedule to switch the default stage at regular time "
                      "intervals.\nThe same content as the selected stage will be created with a "
                      "different name."));
    about->setWordWrap(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(about);
    layout->addWidget(
        createWarning(tr("Note: All stages already set to the timetable will be deleted.")));
    layout->addLayout(createIntervalRow());
    layout->addWidget(createRangeBox());
    layout->addStretch();
    layout->addLayout(createButtonRow());
    loadSettings();
}

QLayout *ZvScheduleAutoStageSwichSettingWidget::createIntervalRow()
{
    m_intervalSpinBox->setAlignment(Qt::AlignRight);
    m_intervalSpinBox->setRange(leastIntervalSeconds, longestIntervalSeconds);
    m_intervalSpinBox->setSingleStep(intervalStepSeconds);
    m_intervalSpinBox->setValue(usualIntervalSeconds);

    auto *row = new QHBoxLayout;
    row->addWidget(labelOf(m_intervalSpinBox, tr("Switching Interval")));
    row->addWidget(m_intervalSpinBox);
    row->addWidget(new QLabel(tr("Seconds")));
    row->addStretch();
    return row;
}

QWidget *ZvScheduleAutoStageSwichSettingWidget::createRangeBox()
{
    m_toTimeEdit->setEnabled(false);
    m_at24oclockCheckBox->setChecked(true);
    connect(m_at24oclockCheckBox, SIGNAL(toggled(bool)), this, SLOT(at24oclockToggled(bool)));

    auto *box = new QGroupBox(tr("Time Range"));
    auto *row = new QHBoxLayout(box);
    row->addWidget(labelOf(m_fromTimeEdit, tr("From")));
    row->addWidget(m_fromTimeEdit);
    row->addWidget(labelOf(m_toTimeEdit, tr(" To")));
    row->addWidget(m_toTimeEdit);
    row->addWidget(m_at24oclockCheckBox);
    row->addStretch();
    return box;
}

QLayout *ZvScheduleAutoStageSwichSettingWidget::createButtonRow()
{
    auto *execute = new QPushButton(tr("Execute"));
    auto *cancel = new QPushButton(tr("Cancel"));
    connect(execute, SIGNAL(clicked()), this, SLOT(executeButtonClicked()));
    connect(cancel, SIGNAL(clicked()), this, SLOT(cancelButtonClicked()));

    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(execute);
    row->addWidget(cancel);
    return row;
}

void ZvScheduleAutoStageSwichSettingWidget::cancelButtonClicked()
{
    const QPointer<ZvScheduleAutoStageSwichSettingWidget> self(this);
    Q_EMIT canceled();
    if (self)
        closeParent();
}

// Who executes may show a box, under whose event loop the dialog can die.
void ZvScheduleAutoStageSwichSettingWidget::executeButtonClicked()
{
    const int interval = m_intervalSpinBox->value();
    const QTime from = m_fromTimeEdit->time();
    const QTime to = m_at24oclockCheckBox->isChecked() ? twentyFourOclock() : m_toTimeEdit->time();
    storeSettings(interval, from, to);
    const QPointer<ZvScheduleAutoStageSwichSettingWidget> self(this);
    Q_EMIT requestExecute(interval, from, to);
    if (self)
        closeParent();
}

void ZvScheduleAutoStageSwichSettingWidget::at24oclockToggled(bool checked)
{
    m_toTimeEdit->setEnabled(!checked);
}

void ZvScheduleAutoStageSwichSettingWidget::loadSettings()
{
    if (!ZvEditorUserConfig::settings() || objectName().isEmpty())
        return;
    const int interval = qMax(
        1,
        ZvEditorUserConfig::value(settingsKey(StagesName::Interval), usualIntervalSeconds).toInt());
    const QTime from = storedSwitchTime(settingsKey(StagesName::FromTime), QTime(0, 0));
    QTime to = storedSwitchTime(settingsKey(StagesName::ToTime), twentyFourOclock());
    // A range that holds no interval is shown as an empty one.
    if (from.secsTo(to) < interval)
        to = from;
    m_intervalSpinBox->setValue(interval);
    m_fromTimeEdit->setTime(from);
    const bool isAt24oclock = to == twentyFourOclock();
    m_toTimeEdit->setTime(isAt24oclock ? lastSecondOfDay() : to);
    m_at24oclockCheckBox->setChecked(isAt24oclock);
    m_toTimeEdit->setEnabled(!isAt24oclock);
}

void ZvScheduleAutoStageSwichSettingWidget::storeSettings(int interval, QTime from, QTime to) const
{
    if (objectName().isEmpty())
        return;
    ZvEditorUserConfig::setValue(settingsKey(StagesName::Interval), interval);
    ZvEditorUserConfig::setValue(settingsKey(StagesName::FromTime), from);
    ZvEditorUserConfig::setValue(settingsKey(StagesName::ToTime), to);
}

QString ZvScheduleAutoStageSwichSettingWidget::settingsKey(const char *key) const
{
    return objectName() + QLatin1Char('/') + QLatin1String(key);
}

void ZvScheduleAutoStageSwichSettingWidget::closeParent()
{
    if (QWidget *parent = parentWidget())
        parent->close();
}

} // namespace Zavo
