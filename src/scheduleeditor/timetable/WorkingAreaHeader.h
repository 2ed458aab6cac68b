#pragma once

#include <QWidget>

class QAbstractButton;
class QLabel;

namespace Zavo {

class ZvScheduleDefaultStageWidget;

/// The line above the time table: which schedule is on show, a button to create it if it does not
/// exist, and its default stage.
class WorkingAreaHeader final : public QWidget
{
    Q_OBJECT

public:
    /// With the look of a schedule that does not exist.
    explicit WorkingAreaHeader(QWidget *parent = nullptr);

    QAbstractButton *createButton() const { return m_createButton; }
    ZvScheduleDefaultStageWidget *defaultStageWidget() const { return m_defaultStageWidget; }

    void setTitle(const QString &title);
    /// The look of a schedule that exists, or of one that does not.
    void setScheduleEnabled(bool enabled);

    /// Takes no width before it was first shown.
    QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *newCreateWidget();
    void showTitleFont(bool enabled);

    QLabel *m_titleLabel;
    QAbstractButton *m_createButton = nullptr;
    QWidget *m_createWidget;
    ZvScheduleDefaultStageWidget *m_defaultStageWidget;
    bool m_wasShown = false;
};

} // namespace Zavo
