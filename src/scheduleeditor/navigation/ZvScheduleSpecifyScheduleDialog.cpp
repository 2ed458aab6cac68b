#include "navigation/ZvScheduleSpecifyScheduleDialog.h"

#include "ZvChannel.h"
#include "domain/ChannelSchedules.h"
#include "domain/MessageBox.h"
#include "navigation/FreeSchedule.h"
#include "navigation/NavigationNames.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTimer>

namespace Zavo {

namespace {

constexpr int minimumWidthPx = 360;
constexpr int DialogGapPx = 9;
constexpr int shrinkDelay = 100; // ms

struct ModeTexts
{
    const char *title;
    const char *description;
};

constexpr ModeTexts textsOfModes[] = {
    {QT_TRANSLATE_NOOP("Zavo::ZvScheduleSpecifyScheduleDialog", "Create Schedule"),
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleSpecifyScheduleDialog",
                       "The new schedule will be created. \nYou have to select Schedule Type and "
                       "specify a day of week, or a date.")},
    {QT_TRANSLATE_NOOP("Zavo::ZvScheduleSpecifyScheduleDialog", "Paste Schedule"),
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleSpecifyScheduleDialog",
                       "The schedule will be pasted from a clipboard. \nYou have to specify a "
                       "destination of pasting.")},
    {QT_TRANSLATE_NOOP("Zavo::ZvScheduleSpecifyScheduleDialog", "Jump To Schedule"),
     QT_TRANSLATE_NOOP("Zavo::ZvScheduleSpecifyScheduleDialog",
                       "Specify the schedule you want to jump.")},
};

QString dialogText(const char *text)
{
    return QCoreApplication::translate("Zavo::ZvScheduleSpecifyScheduleDialog", text);
}

int valueOf(const QRadioButton *button)
{
    return button->property(NavigationName::ValueProperty).toInt();
}

QRadioButton *newButton(const QString &text, const QString &name, int value, QGroupBox *group)
{
    auto *button = new QRadioButton(text, group);
    button->setObjectName(name);
    button->setProperty(NavigationName::ValueProperty, value);
    group->layout()->addWidget(button);
    // No wider than its text: a button takes no clicks beside it.
    group->layout()->setAlignment(button, Qt::AlignLeft);
    return button;
}

QGroupBox *newGroupBox(const QString &title, QLayout *layout)
{
    auto *group = new QGroupBox(title);
    group->setFlat(true);
    group->setLayout(layout);
    return group;
}

QSpacerItem *newGap(QSizePolicy::Policy horizontal, QSizePolicy::Policy vertical)
{
    return new QSpacerItem(DialogGapPx, DialogGapPx, horizontal, vertical);
}

QList<QRadioButton *> buttonsOf(const QGroupBox *group, const char *namePrefix)
{
    const QRegularExpression name(QLatin1Char('^') + QLatin1String(namePrefix));
    return group->findChildren<QRadioButton *>(name, Qt::FindDirectChildrenOnly);
}

int checkedValue(const QList<QRadioButton *> &buttons, int valueOfNone)
{
    for (const QRadioButton *button : buttons) {
        if (button->isChecked())
            return valueOf(button);
    }
    return valueOfNone;
}

void checkValue(const QList<QRadioButton *> &buttons, int value)
{
    for (QRadioButton *button : buttons) {
        if (valueOf(button) == value) {
            button->setChecked(true);
            return;
        }
    }
}

} // namespace

ZvScheduleSpecifyScheduleDialog::ZvScheduleSpecifyScheduleDialog(Mode mode,
                                                                 const ZvChannel *channel,
                                                                 QWidget *parent,
                                                                 Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_channel(channel)
    , m_descriptionLabel(new QLabel(this))
    , m_typeGroupBox(newTypeGroupBox())
    , m_dayOfWeekGroupBox(newDayOfWeekGroupBox())
    , m_dateGroupBox(newDateGroupBox())
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    setMinimumWidth(minimumWidthPx);
    m_descriptionLabel->setTextFormat(Qt::PlainText);

    auto *layout = new QVBoxLayout(this);
    // Left to the layout, the dialog would grow with a group at once and shrink with none.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(m_descriptionLabel);
    layout->addSpacerItem(newGap(QSizePolicy::Minimum, QSizePolicy::Minimum));
    layout->addWidget(m_typeGroupBox);
    layout->addWidget(m_dayOfWeekGroupBox);
    layout->addWidget(m_dateGroupBox);
    layout->addSpacerItem(newGap(QSizePolicy::Minimum, QSizePolicy::Expanding));
    // After the groups, so that the Tab key comes to it last.
    m_buttonBox = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_buttonBox->setCenterButtons(true);
    layout->addWidget(m_buttonBox);

    const QDate today = QDate::currentDate();
    setDay(today.dayOfWeek());
    setDate(today);
    onDateEditDateChanged(today);
    setMode(mode);
    connect(m_buttonBox, SIGNAL(accepted()), this, SLOT(onAcceptRequired()));
    connect(m_buttonBox, SIGNAL(rejected()), this, SLOT(reject()));
}

QGroupBox *ZvScheduleSpecifyScheduleDialog::newTypeGroupBox()
{
    QGroupBox *group = newGroupBox(tr("Schedule Type"), new QHBoxLayout);
    const auto addType = [this, group](const QString &text, const char *word, int value) {
        const QString name = QLatin1String(NavigationName::TypeButtonPrefix) + QLatin1String(word);
        const QRadioButton *button = newButton(text, name, value, group);
        connect(button, SIGNAL(clicked()), this, SLOT(onRadioButtonTypeClicked()));
    };
    addType(tr("Default"), "Default", ZvSchedule::Default);
    addType(tr("Day of Week"), "DayOfWeek", ZvSchedule::DayOfWeek);
    addType(tr("Date"), "Date", ZvSchedule::Date);
    checkValue(buttonsOf(group, NavigationName::TypeButtonPrefix), ZvSchedule::Default);
    return group;
}

QGroupBox *ZvScheduleSpecifyScheduleDialog::newDayOfWeekGroupBox()
{
    QGroupBox *group = newGroupBox(tr("Day of Week"), new QHBoxLayout);
    const QLocale locale = QLocale::system();
    for (int day = Weekday::Monday; day <= Weekday::Sunday; ++day)
        newButton(locale.dayName(day, QLocale::ShortFormat),
                  QLatin1String(NavigationName::DayButtonPrefix) + QString::number(day), day,
                  group);
    return group;
}

QGroupBox *ZvScheduleSpecifyScheduleDialog::newDateGroupBox()
{
    m_repeatCheckBox = new QCheckBox(
        tr("Repeat the paste when there are the multiple schedules on the clipboard."));
    m_repeatCheckBox->setChecked(true);

    auto *layout = new QVBoxLayout;
    layout->addLayout(newDateLine());
    layout->addWidget(m_repeatCheckBox);
    return newGroupBox(tr("Date"), layout);
}

QHBoxLayout *ZvScheduleSpecifyScheduleDialog::newDateLine()
{
    m_dateEdit = new QDateEdit;
    m_dateEdit->setDisplayFormat(tr(" yyyy - MM - dd "));
    m_dateEdit->setCalendarPopup(true);
    connect(m_dateEdit, SIGNAL(dateChanged(QDate)), this, SLOT(onDateEditDateChanged(QDate)));
    m_dayNameLabel = new QLabel;

    auto *line = new QHBoxLayout;
    line->addWidget(m_dateEdit);
    line->addWidget(m_dayNameLabel);
    line->addSpacerItem(newGap(QSizePolicy::Expanding, QSizePolicy::Minimum));
    return line;
}

QList<QRadioButton *> ZvScheduleSpecifyScheduleDialog::typeButtons() const
{
    return buttonsOf(m_typeGroupBox, NavigationName::TypeButtonPrefix);
}

QList<QRadioButton *> ZvScheduleSpecifyScheduleDialog::dayButtons() const
{
    return buttonsOf(m_dayOfWeekGroupBox, NavigationName::DayButtonPrefix);
}

int ZvScheduleSpecifyScheduleDialog::selectedType() const
{
    return checkedValue(typeButtons(), ZvSchedule::NoType);
}

int ZvScheduleSpecifyScheduleDialog::selectedDay() const
{
    return checkedValue(dayButtons(), Weekday::Monday);
}

QDate ZvScheduleSpecifyScheduleDialog::selectedDate() const
{
    return m_dateEdit->date();
}

ZvScheduleBasicInfo ZvScheduleSpecifyScheduleDialog::selectedInfo() const
{
    switch (selectedType()) {
    case ZvSchedule::Default:
        return ZvScheduleBasicInfo(ZvSchedule::Default);
    case ZvSchedule::Date:
        return ZvScheduleBasicInfo(selectedDate());
    case ZvSchedule::DayOfWeek:
        return ZvScheduleBasicInfo(static_cast<Weekday::Days>(selectedDay()));
    default:
        return {};
    }
}

bool ZvScheduleSpecifyScheduleDialog::isRepeatChecked() const
{
    return m_repeatCheckBox->isChecked();
}

void ZvScheduleSpecifyScheduleDialog::setMode(Mode mode)
{
    m_mode = mode;
    showTexts();
    // A destination's day is the one that the caller presets.
    setDayButtonsEnabled(false, false);
    offerDefaultSchedule(mode != Create);
    if (mode == Create) {
        loadExistingSchedules();
        setDayButtonsEnabled(true, true);
    }
    m_repeatCheckBox->setChecked(mode == Paste);
    m_repeatCheckBox->setVisible(mode == Paste);
    onRadioButtonTypeClicked();
}

void ZvScheduleSpecifyScheduleDialog::showTexts()
{
    const ModeTexts &texts = textsOfModes[m_mode];
    setWindowTitle(dialogText(texts.title));
    m_descriptionLabel->setText(dialogText(texts.description));
}

// The default schedule always exists, so that it cannot be created.
void ZvScheduleSpecifyScheduleDialog::offerDefaultSchedule(bool offered)
{
    const QList<QRadioButton *> buttons = typeButtons();
    buttons.first()->setVisible(offered);
    if (!offered && buttons.first()->isChecked())
        buttons.at(1)->setChecked(true);
}

void ZvScheduleSpecifyScheduleDialog::loadExistingSchedules()
{
    m_existingSchedules.clear();
    if (!m_channel)
        return;
    const QList<ZvSchedule> &schedules = m_channel->scheduleList();
    for (const ZvSchedule &schedule : schedules)
        m_existingSchedules.insert(ZvScheduleBasicInfo(schedule), true);
}

void ZvScheduleSpecifyScheduleDialog::setDayButtonsEnabled(bool excludeExisting, bool enabled)
{
    const QList<QRadioButton *> buttons = dayButtons();
    for (QRadioButton *button : buttons) {
        const ZvScheduleBasicInfo day(static_cast<Weekday::Days>(valueOf(button)));
        button->setEnabled(excludeExisting ? !m_existingSchedules.contains(day) : enabled);
    }
}

void ZvScheduleSpecifyScheduleDialog::setScheduleInfo(const ZvScheduleBasicInfo &info)
{
    const ZvScheduleBasicInfo shown =
        m_mode == Create ? findFreeSchedule(m_existingSchedules, info, QDate::currentDate()) : info;
    setType(shown.type());
    if (shown.type() == ZvSchedule::DayOfWeek)
        setDay(shown.dayOfWeek());
    else if (shown.type() == ZvSchedule::Date)
        setDate(shown.date());
}

void ZvScheduleSpecifyScheduleDialog::setType(int type)
{
    checkValue(typeButtons(), type);
    onRadioButtonTypeClicked();
}

void ZvScheduleSpecifyScheduleDialog::setDate(const QDate &date)
{
    m_dateEdit->setDate(date);
}

void ZvScheduleSpecifyScheduleDialog::setDay(int day)
{
    checkValue(dayButtons(), day);
}

void ZvScheduleSpecifyScheduleDialog::onDateEditDateChanged(const QDate &date)
{
    m_dayNameLabel->setText(QLocale::system().dayName(date.dayOfWeek(), QLocale::LongFormat));
}

void ZvScheduleSpecifyScheduleDialog::onRadioButtonTypeClicked()
{
    const int type = selectedType();
    m_dayOfWeekGroupBox->setVisible(type == ZvSchedule::DayOfWeek);
    m_dateGroupBox->setVisible(type == ZvSchedule::Date);
    // The layout has to take in the change first.
    QTimer::singleShot(shrinkDelay, this, SLOT(adjectSizeRequested()));
}

void ZvScheduleSpecifyScheduleDialog::adjectSizeRequested()
{
    const QSize needed = layout()->totalMinimumSize();
    setMinimumHeight(needed.height());
    adjustSize();
    // On a small screen that leaves less room than the texts take.
    resize(size().expandedTo(needed));
}

void ZvScheduleSpecifyScheduleDialog::showEvent(QShowEvent *event)
{
    adjectSizeRequested();
    QDialog::showEvent(event);
}

bool ZvScheduleSpecifyScheduleDialog::exists(const ZvScheduleBasicInfo &info) const
{
    if (m_existingSchedules.isEmpty())
        return ChannelSchedules::contains(m_channel, info);
    return m_existingSchedules.contains(info);
}

void ZvScheduleSpecifyScheduleDialog::onAcceptRequired()
{
    const ZvScheduleBasicInfo info(selectedDate());
    if (m_mode != Create || !m_dateGroupBox->isVisible() || !exists(info)) {
        accept();
        return;
    }
    const QString date = QLocale::system().toString(info.date(), QLocale::LongFormat);
    showMessageBox(
        this, QMessageBox::Critical, tr("New Schedule"),
        tr("The schedule of %1 has already existed.\nYou have to specify another date.").arg(date));
}

} // namespace Zavo
