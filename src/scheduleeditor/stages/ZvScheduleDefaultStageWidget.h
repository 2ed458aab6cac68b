#pragma once

#include "domain/DpiRatioWatch.h"

#include <QFrame>

class QCheckBox;
class QDragEnterEvent;
class QDropEvent;
class QLabel;

namespace Zavo {

/// The strip of a working area that shows the default stage of the schedule on show: a check box
/// and a drop box for a stage of the stage list. It holds the name alone and knows neither schedule
/// nor channel.
class ZvScheduleDefaultStageWidget final : public QFrame
{
    Q_OBJECT

public:
    explicit ZvScheduleDefaultStageWidget(QWidget *parent = nullptr);

    /// Empty when there is no default stage.
    QString stageName() const;
    /// True exactly when there is a default stage.
    bool isDefaultStageChecked() const;

    /// Shows @p name without a step of undo.
    void setStageName(const QString &name);

public Q_SLOTS:
    /// Shows @p stageName as a choice of the user, which can be undone.
    void setStageNameWithUndo(const QString &stageName);

Q_SIGNALS:
    /// The name became another one, by whatever path.
    void stageNameChanged(const QString &name);
    /// The user changed the name; comes after stageNameChanged().
    void stageNameChangedWithUndo(const QString &oldName, const QString &newName);
    /// The widget came to a screen of another ratio.
    void dpiRatioChanged(double dpiRatio);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void onCheckBoxClicked(bool checked);
    void onDpiRatioChanged(double dpiRatio);

private:
    void setLabelStyle(const QString &frame);
    void showResting();
    void showHovering();
    void enterDrag(QDragEnterEvent *event);
    void dropStage(QDropEvent *event);

    QCheckBox *m_checkBox;
    QLabel *m_label;
    QString m_stageName;
    DpiRatioWatch m_dpiRatio;
};

} // namespace Zavo
