#pragma once

#include <QFrame>

class QDate;
class QLabel;

namespace Zavo {

/// Tells which kind of schedule runs on a date: that of the date before that of its day, and that
/// before the default schedule. It asks for its facts and keeps none.
class ZvScheduledToBeExecutedWidget final : public QFrame
{
    Q_OBJECT

public:
    explicit ZvScheduledToBeExecutedWidget(QWidget *parent = nullptr);

public Q_SLOTS:
    /// Asks and shows the answer for @p date.
    void onDateSelectionChanged(const QDate &date);

Q_SIGNALS:
    /// Whether the channel on show has such a schedule. The receiver fills @p hasSchedule, so the
    /// connections are direct; without one there is none.
    void requestHasSchedule(Qt::DayOfWeek day, bool *hasSchedule);
    void requestHasSchedule(const QDate &date, bool *hasSchedule);

private:
    QWidget *createNameWidget();
    void showSchedule(const QString &text, const QString &styleSheet);

    QLabel *m_titleLabel;
    QLabel *m_captionLabel;
    QLabel *m_scheduleLabel;
};

} // namespace Zavo
