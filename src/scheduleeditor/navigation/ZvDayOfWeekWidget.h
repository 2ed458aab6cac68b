#pragma once

#include <QLabel>
#include <QSize>

namespace Zavo {

/// One day of the week row. It holds its day and its look, "selected", "scheduled" and "pressed";
/// that only one day is selected is the row's affair.
class ZvDayOfWeekWidget final : public QLabel
{
    Q_OBJECT

public:
    explicit ZvDayOfWeekWidget(QWidget *parent = nullptr);
    ~ZvDayOfWeekWidget() override;

    /// A Qt::DayOfWeek value; 0 until it is set.
    int dayOfWeek() const { return m_dayOfWeek; }
    bool isSelected() const;
    bool isScheduled() const;

    /// As wide as there is room, and twice its minimum height.
    QSize sizeHint() const override;

    /// Gives the cell its name and the colour of the day. Called once.
    void setDayOfWeek(int day);

    /// Does what the release does that a menu has swallowed: selects the cell if it is held down.
    void releaseIfPressed();

    /// Selects the cell and reports it as clicked.
    void select();

public Q_SLOTS:
    void setSelected(bool selected);
    void setScheduled(bool scheduled);

Q_SIGNALS:
    /// A mouse button was released over the cell, which is selected by now.
    void clicked(ZvDayOfWeekWidget *widget);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private Q_SLOTS:
    void delayedResize();

private:
    int m_dayOfWeek = 0;
    QSize m_delayedSize;
};

} // namespace Zavo
