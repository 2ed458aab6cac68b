#include "navigation/CalendarNavigationBar.h"

#include "domain/ToolButtonStyle.h"
#include "navigation/NavigationNames.h"
#include "navigation/ZvCalendarWidget.h"

#include <QBoxLayout>
#include <QVariant>

#include <algorithm>

namespace Zavo {

namespace {

constexpr int barMenuButtonWidthPx = 32;
constexpr double barIconPx = 16.0;

const QLatin1String barStyle("QWidget#qt_calendar_navigationbar{color: black;font-weight: bold;"
                             "background-color: lightgray;}");

QToolButton *findButton(const QWidget *bar, const char *name)
{
    return bar ? bar->findChild<QToolButton *>(QLatin1String(name)) : nullptr;
}

void exchangeWidgets(QBoxLayout *layout, QWidget *first, QWidget *second)
{
    const int firstIndex = layout->indexOf(first);
    const int secondIndex = layout->indexOf(second);
    layout->removeWidget(second);
    layout->removeWidget(first);
    layout->insertWidget(firstIndex, second);
    layout->insertWidget(secondIndex, first);
}

} // namespace

CalendarNavigationBar::CalendarNavigationBar(const QWidget *calendar)
    : m_bar(calendar->findChild<QWidget *>(QLatin1String(NavigationName::CalendarNavigationBar)))
    , m_previousMonthButton(findButton(m_bar, NavigationName::CalendarPreviousMonth))
    , m_nextMonthButton(findButton(m_bar, NavigationName::CalendarNextMonth))
    , m_monthButton(findButton(m_bar, NavigationName::CalendarMonthButton))
    , m_yearButton(findButton(m_bar, NavigationName::CalendarYearButton))
{
    if (m_bar)
        m_bar->setStyleSheet(barStyle + QLatin1String(ToolButtonStyle));
    setArrows(calendar->layoutDirection());
}

QToolButton *CalendarNavigationBar::previousMonthButton() const
{
    return qobject_cast<QToolButton *>(m_previousMonthButton);
}

QToolButton *CalendarNavigationBar::nextMonthButton() const
{
    return qobject_cast<QToolButton *>(m_nextMonthButton);
}

QToolButton *CalendarNavigationBar::monthButton() const
{
    return qobject_cast<QToolButton *>(m_monthButton);
}

QToolButton *CalendarNavigationBar::yearButton() const
{
    return qobject_cast<QToolButton *>(m_yearButton);
}

QToolButton *CalendarNavigationBar::menuButton() const
{
    return qobject_cast<QToolButton *>(m_menuButton);
}

QBoxLayout *CalendarNavigationBar::layout() const
{
    return m_bar ? qobject_cast<QBoxLayout *>(m_bar->layout()) : nullptr;
}

void CalendarNavigationBar::addMenuButton(QMenu *menu)
{
    const QToolButton *next = nextMonthButton();
    if (!layout() || !next)
        return;
    auto *button = new QToolButton(m_bar);
    m_menuButton = button;
    button->setObjectName(QLatin1String(NavigationName::CalendarMenuButton));
    button->setMinimumWidth(barMenuButtonWidthPx);
    button->setIcon(QIcon(QStringLiteral(":/images/menu_simple.svg")));
    button->setAutoRaise(next->autoRaise());
    button->setMenu(menu);
    button->setPopupMode(QToolButton::InstantPopup);
    layout()->insertWidget(layout()->indexOf(nextMonthButton()), button);
}

// Month and year have texts.
void CalendarNavigationBar::setAccessibleNames()
{
    if (QToolButton *previous = previousMonthButton())
        previous->setAccessibleName(ZvCalendarWidget::tr("Previous month"));
    if (QToolButton *next = nextMonthButton())
        next->setAccessibleName(ZvCalendarWidget::tr("Next month"));
    if (QToolButton *menu = menuButton())
        menu->setAccessibleName(ZvCalendarWidget::tr("Menu of the calendar"));
    const QLatin1String yearEditName(NavigationName::CalendarYearEdit);
    if (auto *yearEdit = m_bar ? m_bar->findChild<QWidget *>(yearEditName) : nullptr)
        yearEdit->setAccessibleName(ZvCalendarWidget::tr("Year"));
}

void CalendarNavigationBar::setArrows(Qt::LayoutDirection direction)
{
    const QIcon left(QStringLiteral(":/images/arrow_simple_left.svg"));
    const QIcon right(QStringLiteral(":/images/arrow_simple_right.svg"));
    const bool mirrored = direction == Qt::RightToLeft;
    if (QToolButton *previous = previousMonthButton())
        previous->setIcon(mirrored ? right : left);
    if (QToolButton *next = nextMonthButton())
        next->setIcon(mirrored ? left : right);
}

void CalendarNavigationBar::setIconRatio(double ratio)
{
    const QSize size = (QSizeF(barIconPx, barIconPx) * ratio).toSize();
    for (QToolButton *button : {previousMonthButton(), nextMonthButton(), menuButton()}) {
        if (button)
            button->setIconSize(size);
    }
}

void CalendarNavigationBar::placeYear(const QString &longDate, int year)
{
    const QString name = yearName(longDate, year);
    QToolButton *yearButton = this->yearButton();
    if (name.isEmpty() || !yearButton)
        return;
    yearButton->setProperty(NavigationName::YearNameProperty, name);
    QToolButton *monthButton = this->monthButton();
    if (layout() && monthButton && layout()->indexOf(yearButton) > layout()->indexOf(monthButton))
        exchangeWidgets(layout(), monthButton, yearButton);
}

void CalendarNavigationBar::completeYearText()
{
    QToolButton *button = yearButton();
    if (!button)
        return;
    const QString name = button->property(NavigationName::YearNameProperty).toString();
    if (!name.isEmpty() && !button->text().endsWith(name))
        button->setText(button->text() + name);
}

QString CalendarNavigationBar::yearName(const QString &longDate, int year)
{
    const QString number = QString::number(year);
    if (!longDate.startsWith(number))
        return {};
    const QString rest = longDate.mid(number.size());
    const auto *digit =
        std::find_if(rest.cbegin(), rest.cend(), [](QChar sign) { return sign.isDigit(); });
    return rest.left(static_cast<int>(digit - rest.cbegin()));
}

} // namespace Zavo
