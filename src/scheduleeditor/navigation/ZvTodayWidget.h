#pragma once

#include <QFrame>

class QLabel;

namespace Zavo {

/// The line that shows the date of the day on which it was made. Pressing it is meant to lead to
/// the real today, which is its receiver's affair.
class ZvTodayWidget final : public QFrame
{
    Q_OBJECT

public:
    explicit ZvTodayWidget(QWidget *parent = nullptr);

Q_SIGNALS:
    void mousePressed();
    /// Wherever the button was released.
    void mouseReleased();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QLabel *m_titleLabel;
    QLabel *m_dateLabel;
    QLabel *m_dayLabel;
};

} // namespace Zavo
