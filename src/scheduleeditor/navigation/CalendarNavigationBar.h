#pragma once

#include <QPointer>
#include <QToolButton>

class QBoxLayout;
class QMenu;

namespace Zavo {

/// The bar above a QCalendarWidget's page, with its buttons dressed anew and one more for a menu.
/// What the base class does not have is left out.
class CalendarNavigationBar final
{
public:
    /// Finds the bar of @p calendar and gives it its look.
    explicit CalendarNavigationBar(const QWidget *calendar);

    /// Each null if the calendar has none.
    QToolButton *previousMonthButton() const;
    QToolButton *nextMonthButton() const;
    QToolButton *monthButton() const;
    QToolButton *yearButton() const;
    /// Null before addMenuButton().
    QToolButton *menuButton() const;

    /// Puts a button that opens @p menu before the one of the next month.
    void addMenuButton(QMenu *menu);

    /// What assistive technology calls the buttons without a text.
    void setAccessibleNames();

    /// The arrow of the previous month points to where the page comes from.
    void setArrows(Qt::LayoutDirection direction);
    /// Icons are 16 px wide and high at ratio 1.
    void setIconRatio(double ratio);

    /// Puts the year before the month if @p longDate, today's date as the system writes it, begins
    /// with @p year and goes on with a word for it.
    void placeYear(const QString &longDate, int year);
    /// Puts that word behind the year unless it stands there.
    void completeYearText();

    /// The text between the number of the year that @p longDate begins with and its next digit;
    /// empty if it begins with anything else.
    static QString yearName(const QString &longDate, int year);

private:
    QBoxLayout *layout() const;

    QPointer<QWidget> m_bar;
    // A dying button is still told of its end, when it is a button no more: the accessors say so.
    QPointer<QObject> m_previousMonthButton;
    QPointer<QObject> m_nextMonthButton;
    QPointer<QObject> m_monthButton;
    QPointer<QObject> m_yearButton;
    QPointer<QObject> m_menuButton;
};

} // namespace Zavo
