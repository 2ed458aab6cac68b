#pragma once

#include "domain/DpiRatioWatch.h"

#include <QList>
#include <QPointer>
#include <QScrollArea>

class QLabel;
class QToolButton;

namespace Zavo {

class ZvScheduleWorkingArea;
class ZvTime;
class ZvTimeSpinWidget;
class ZvTimeTableTimeItem;

/// The content of the item property dock: shows the bands selected in the table of a page, and lets
/// a person type start and end of a single one. A band is never made shorter than five seconds by
/// this, nor moved into its neighbours.
///
/// It changes the band on the page and then says that a person did so; recording the step of undo
/// is the receiver's. It owns neither page nor band and stands the end of both.
class ZvScheduleItemPropertyWidget final : public QScrollArea
{
    Q_OBJECT

public:
    explicit ZvScheduleItemPropertyWidget(QWidget *parent = nullptr);

public Q_SLOTS:
    /// Empties the panel. @p area is the page that the stage buttons act on from then on.
    void onTimeTableTimeItemHasNotSelected(ZvScheduleWorkingArea *area = nullptr);

    /// Shows the selected @p items of @p area, which are in the order of their times.
    void onTimeTableTimeItemsMoved(const QList<ZvTimeTableTimeItem *> &items,
                                   ZvScheduleWorkingArea *area);
    void selectPreviousTimeItem();
    void selectNextTimeItem();

Q_SIGNALS:
    /// A person gave the band on show another start or end, which the page shows already.
    void itemPropertyChangedByUser();
    /// The panel is on a screen of another ratio.
    void dpiRatioChanged(double dpiRatio);

protected:
    bool event(QEvent *event) override;

private Q_SLOTS:
    void onStartTimeChanged(QTime oldTime, QTime newTime);
    void onEndTimeChanged(QTime oldTime, QTime newTime);
    void scaleButtons(double dpiRatio);

private:
    QWidget *createNavigation();
    QWidget *createTimes();
    QToolButton *addButton(QWidget *navigation, const QString &icon, const QString &toolTip);
    bool isFilling() const { return m_clearing || m_updating; }
    ZvTimeTableTimeItem *editedItem(const ZvTimeSpinWidget *editor) const;
    void clear();
    void showItem(ZvTimeTableTimeItem *item);
    void showItems(const QList<ZvTimeTableTimeItem *> &items);
    void apply(const ZvTimeTableTimeItem *item, const ZvTime &time);
    void reportChange(QTime oldTime, QTime newTime);

    QLabel *m_stageLabel = nullptr;
    ZvTimeSpinWidget *m_startTimeWidget = nullptr;
    ZvTimeSpinWidget *m_endTimeWidget = nullptr;
    QToolButton *m_previousButton = nullptr;
    QToolButton *m_nextButton = nullptr;
    int m_minimumDuration = 5; ///< s
    bool m_changing = false;
    QPointer<ZvScheduleWorkingArea> m_workingArea;
    QPointer<ZvTimeTableTimeItem> m_timeItem;
    bool m_clearing = false;
    bool m_updating = false;
    DpiRatioWatch m_dpiRatio;
};

} // namespace Zavo
