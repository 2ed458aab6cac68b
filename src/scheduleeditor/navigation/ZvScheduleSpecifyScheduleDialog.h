#pragma once

#include "domain/ZvScheduleBasicInfo.h"

#include <QDate>
#include <QDialog>
#include <QMap>

class QCheckBox;
class QDateEdit;
class QDialogButtonBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QRadioButton;

namespace Zavo {

class ZvChannel;

/// Asks for the name of one schedule: its type, and its day of the week or its date. The caller
/// presets it, runs exec() and reads the answer; the dialog changes nothing itself and serves one
/// question.
class ZvScheduleSpecifyScheduleDialog final : public QDialog
{
    Q_OBJECT

public:
    /// What the schedule is asked for.
    enum Mode {
        Create = 0, ///< names a schedule that @p channel does not have yet
        Paste = 1,  ///< names a destination; the day of the week is the preset one
        Jump = 2    ///< names a schedule to go to
    };

    /// @p channel is not owned and may be null; it has to outlive exec().
    ZvScheduleSpecifyScheduleDialog(Mode mode, const ZvChannel *channel, QWidget *parent = nullptr,
                                    Qt::WindowFlags flags = Qt::WindowFlags());

    /// The value of ZvSchedule::ScheduleTypes that is chosen; 0 if none.
    int selectedType() const;
    /// The chosen day of the week from 1, Monday; 1 if none.
    int selectedDay() const;
    QDate selectedDate() const;
    /// The type with what it needs of day and date.
    ZvScheduleBasicInfo selectedInfo() const;
    /// The buttons of the types, and of the days from Monday on.
    QList<QRadioButton *> typeButtons() const;
    QList<QRadioButton *> dayButtons() const;
    /// Whether each of several schedules is to be pasted, on consecutive days.
    bool isRepeatChecked() const;

    void setMode(Mode mode);
    /// Presets @p info; to create one, a schedule near it that does not exist yet.
    void setScheduleInfo(const ZvScheduleBasicInfo &info);
    /// A type that cannot be chosen changes nothing; nor does an invalid date or day.
    void setType(int type);
    void setDate(const QDate &date);
    void setDay(int day);

protected:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void onDateEditDateChanged(const QDate &date);
    void onRadioButtonTypeClicked();
    void adjectSizeRequested();
    void onAcceptRequired();

private:
    QGroupBox *newTypeGroupBox();
    QGroupBox *newDayOfWeekGroupBox();
    QGroupBox *newDateGroupBox();
    QHBoxLayout *newDateLine();
    void showTexts();
    void offerDefaultSchedule(bool offered);
    void loadExistingSchedules();
    void setDayButtonsEnabled(bool excludeExisting, bool enabled);
    bool exists(const ZvScheduleBasicInfo &info) const;

    Mode m_mode = Create;
    const ZvChannel *m_channel = nullptr;
    QLabel *m_descriptionLabel = nullptr;
    QDateEdit *m_dateEdit = nullptr;
    QLabel *m_dayNameLabel = nullptr;
    QDialogButtonBox *m_buttonBox = nullptr;
    QCheckBox *m_repeatCheckBox = nullptr;
    QGroupBox *m_typeGroupBox = nullptr;
    QGroupBox *m_dayOfWeekGroupBox = nullptr;
    QGroupBox *m_dateGroupBox = nullptr;
    QMap<ZvScheduleBasicInfo, bool> m_existingSchedules;
};

} // namespace Zavo
