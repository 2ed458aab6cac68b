#pragma once

#include <QTime>
#include <QWidget>

class QCheckBox;
class QLayout;
class QSpinBox;
class QTimeEdit;

namespace Zavo {

/// The page that asks at which interval and in which range of the day a schedule is to switch. It
/// shows what was asked for last, which it keeps in the user's settings, and leaves the doing to
/// others. Its parent is the dialog it is shown in, which it closes.
class ZvScheduleAutoStageSwichSettingWidget final : public QWidget
{
    Q_OBJECT

public:
    explicit ZvScheduleAutoStageSwichSettingWidget(QWidget *parent = nullptr);

Q_SIGNALS:
    void canceled();

    /// The user wants a switch every @p interval seconds, 10 to 43200, between the two times, where
    /// 24 o'clock is 23:59:59.999. Comes before the dialog closes; the range may be empty.
    void requestExecute(int interval, QTime fromTime, QTime toTime);

private Q_SLOTS:
    void cancelButtonClicked();
    void executeButtonClicked();
    void at24oclockToggled(bool checked);

private:
    QLayout *createIntervalRow();
    QWidget *createRangeBox();
    QLayout *createButtonRow();
    void loadSettings();
    void storeSettings(int interval, QTime from, QTime to) const;
    QString settingsKey(const char *key) const;
    void closeParent();

    QSpinBox *m_intervalSpinBox;
    QTimeEdit *m_fromTimeEdit;
    QTimeEdit *m_toTimeEdit;
    QCheckBox *m_at24oclockCheckBox;
};

} // namespace Zavo
