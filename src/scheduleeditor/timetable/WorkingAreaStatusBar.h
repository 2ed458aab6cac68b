#pragma once

#include <QStatusBar>

class QComboBox;
class QLabel;
class QLayout;

namespace Zavo {

/// The line below the time table: the scale and the time under the cursor.
///
/// Every scale gives a whole number of seconds a screen pixel. That alone keeps edits by mouse and
/// key on whole seconds, so the list is fixed.
class WorkingAreaStatusBar final : public QStatusBar
{
    Q_OBJECT

public:
    explicit WorkingAreaStatusBar(QWidget *parent = nullptr);

    QComboBox *scaleComboBox() const { return m_scaleComboBox; }
    /// Screen pixels a minute of the row @p index; 0.0 without such a row.
    double scaleAt(int index) const;

    void setTimeString(const QString &timeString);

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void createScale(QLayout *part);
    void createCursorTime(QLayout *part);

    bool m_layoutPending = false;
    QComboBox *m_scaleComboBox = nullptr;
    QLabel *m_cursorTimeLabel = nullptr;
};

} // namespace Zavo
