#pragma once

#include "domain/DpiRatioWatch.h"
#include "navigation/CalendarNavigationBar.h"
#include "navigation/DateSelection.h"

#include <QCalendarWidget>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QModelIndex>
#include <QPointer>
#include <QTableView>

class QMouseEvent;

namespace Zavo {

/// A calendar with a selection of many dates on top of the single selected date, marks on the dates
/// that have a schedule, a highlight under the mouse and a menu of its own. selectedDate() is the
/// date that is edited, selectedDates() are those that the edit commands act on; the first is
/// normally one of the second. It knows nothing of channels: its owner marks the dates and reads
/// the selection.
class ZvCalendarWidget : public QCalendarWidget
{
    Q_OBJECT

public:
    explicit ZvCalendarWidget(QWidget *parent = nullptr);
    ~ZvCalendarWidget() override;

    /// In date order; empty after the only one was taken out.
    QList<QDate> selectedDates() const;
    /// The dates with a schedule; every value is true.
    QMap<QDate, bool> scheduledDates() const;
    bool isScheduledDate(const QDate &date) const;
    /// True if a date of selectedDates() has a schedule.
    bool selectionHasScheduledDate() const;

    void clearAllScheduledDates();

    /// The label that tells how many dates have a schedule, from the next change on. Not owned.
    void setScheduleCountLabel(QLabel *label);
    /// Puts the actions of @p menu at the front of the context menu in place of those of the one
    /// before. Null for none; not owned.
    void setEditMenu(QMenu *menu);
    /// A further menu of the calendar's entries, without edit actions. The calendar owns it.
    QMenu *createMenu();

public Q_SLOTS:
    /// Selects the seven days around @p date from the first day of the week on, and edits @p date;
    /// emits no clicked(). Without an argument the selected date. Nothing for an invalid one.
    void selectWeek(QDate date);
    void selectWeek();
    /// The same with the days of the month of @p date.
    void selectMonth(QDate date);
    void selectMonth();

    /// Marks @p date; nothing happens to an invalid one.
    void setScheduledDate(QDate date);
    void clearScheduledDate(QDate date);

    /// Shows today and edits it, as a click does. selectedDates() is empty afterwards if today was
    /// on show and edited already.
    void selectToday();
    /// Leaves selectedDate() alone in the selection.
    void clearMultiSelection();
    /// Takes the highlight away; for the frame around, when the mouse has left it.
    void clearHovered();

    void onWidgetClicked(QPoint pos);
    void onWidgetClicked();

Q_SIGNALS:
    /// The user clicked or pressed on a part of the calendar, which is @p object. A click on a date
    /// comes with the selection already changed.
    void clicked(QObject *object);
    /// The menu with the edit actions, or another of this calendar, is about to be shown.
    void requestEditMenuAboutToShow();
    /// The widget came to a screen of another ratio.
    void dpiRatioChanged(double dpiRatio);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintCell(QPainter *painter, const QRect &rect, const QDate &date) const override;

private Q_SLOTS:
    void onActivated(QDate date);
    void onClicked(QDate date);
    void onSelectionChanged();
    void onActionFirstDayOfWeekTriggerd(QAction *action);
    void onMenuAboutToShow();
    void onActionShowWeekNumberTriggerd(bool checked);
    void onMonthMenuAbountToShow();
    void onMouseMoveEvent(QTableView *view, QMouseEvent *event);
    void showContextMenu(QPoint pos);
    void forgetHoveredCell();

private:
    void setupNavigationBar();
    void setupMonthButton();
    void setupYearButton();
    void fitDayNames();
    void setupView();

    void changeSelection(const QDate &date, Qt::KeyboardModifiers modifiers);
    void takeOut(const QDate &date);
    void onScheduledChanged();
    void onViewLeft();
    void updateValidCell(const QDate &date);

    DateSelection m_selection;
    QMap<QDate, bool> m_scheduled;
    /// Keeps selections made while one is being handled out of the handling.
    bool m_selecting = false;
    /// The present change of selection was handled, so the click that made it need not be.
    bool m_selectionHandled = false;
    QDate m_previousHoveredDate;
    QDate m_hoveredDate;
    QModelIndex m_hoveredIndex;
    DpiRatioWatch m_dpiRatio;
    QPointer<QMenu> m_editMenu;
    QPointer<QLabel> m_scheduleCountLabel;
    QTableView *m_calendarView;
    CalendarNavigationBar m_navigationBar;
    QMenu *m_monthMenu = nullptr;
    QMenu *m_menu = nullptr;
    QList<QPointer<QMenu>> m_menus;
};

} // namespace Zavo
