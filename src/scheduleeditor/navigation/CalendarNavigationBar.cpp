#include "navigation/CalendarNavigationBar.h"

#include "domain/ToolButtonStyle.h"
#include "navigation/NavigationNames.h"

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
    return m_previousMonthButton;
}

QToolButton *CalendarNavigationBar::nextMonthButton() const
{
    return m_nextMonthButton;
}

QToolButton *CalendarNavigationBar::monthButton() const
{
    return m_monthButton;
}

QToolButton *CalendarNavigationBar::yearButton() const
{
    return m_yearButton;
}

QToolButton *CalendarNavigationBar::menuButton() const
{
    return m_menuButton;
}

QBoxLayout *CalendarNavigationBar::layout() const
{
    return m_bar ? qobject_cast<QBoxLayout *>(m_bar->layout()) : nullptr;
}

void CalendarNavigationBar::addMenuButton(QMenu *menu)
{
    if (!layout() || !m_nextMonthButton)
        return;
    m_menuButton = new QToolButton(m_bar);
    m_menuButton->setObjectName(QLatin1String(NavigationName::CalendarMenuButton));
    m_menuButton->setMinimumWidth(barMenuButtonWidthPx);
    m_menuButton->setIcon(QIcon(QStringLiteral(":/images/menu_simple.svg")));
    m_menuButton->setAutoRaise(m_nextMonthButton->autoRaise());
    m_menuButton->setMenu(menu);
    m_menuButton->setPopupMode(QToolButton::InstantPopup);
    layout()->insertWidget(layout()->indexOf(m_nextMonthButton), m_menuButton);
}

void CalendarNavigationBar::setArrows(Qt::LayoutDirection direction)
{
    const QIcon left(QStringLiteral(":/images/arrow_simple_left.svg"));
    const QIcon right(QStringLiteral(":/images/arrow_simple_right.svg"));
    const bool mirrored = direction == Qt::RightToLeft;
    if (m_previousMonthButton)
        m_previousMonthButton->setIcon(mirrored ? right : left);
    if (m_nextMonthButton)
        m_nextMonthButton->setIcon(mirrored ? left : right);
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
    if (name.isEmpty() || !m_yearButton)
        return;
    m_yearButton->setProperty(NavigationName::YearNameProperty, name);
    if (layout() && m_monthButton &&
        layout()->indexOf(m_yearButton) > layout()->indexOf(m_monthButton))
        exchangeWidgets(layout(), m_monthButton, m_yearButton);
}

void CalendarNavigationBar::completeYearText()
{
    if (!m_yearButton)
        return;
    const QString name = m_yearButton->property(NavigationName::YearNameProperty).toString();
    if (!name.isEmpty() && !m_yearButton->text().endsWith(name))
        m_yearButton->setText(m_yearButton->text() + name);
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
