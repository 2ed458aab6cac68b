#include "navigation/CalendarAccessibility.h"

#include "navigation/ZvCalendarWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QLocale>
#include <QPointer>
#include <QTableView>

namespace Zavo {

namespace {

constexpr int daysInWeek = 7;

ZvCalendarWidget *calendarOf(const QTableView *view)
{
    return view ? qobject_cast<ZvCalendarWidget *>(view->parentWidget()) : nullptr;
}

/// A place on the page; which date stands there is looked up when it is asked for.
class AccessibleCalendarCell final : public QAccessibleInterface, public QAccessibleActionInterface
{
    Q_DISABLE_COPY(AccessibleCalendarCell)

public:
    AccessibleCalendarCell(QTableView *view, int row, int column)
        : m_view(view)
        , m_row(row)
        , m_column(column)
    {
    }

    bool isValid() const override { return calendar() != nullptr; }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_view ? m_view->window()->windowHandle() : nullptr; }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_view);
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override {}
    QAccessible::Role role() const override
    {
        return date().isValid() ? QAccessible::ListItem : QAccessible::StaticText;
    }
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface
                   ? static_cast<QAccessibleActionInterface *>(this)
                   : nullptr;
    }

    QStringList actionNames() const override
    {
        return date().isValid() ? QStringList{pressAction()} : QStringList();
    }
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    ZvCalendarWidget *calendar() const { return calendarOf(m_view); }
    QModelIndex index() const
    {
        return m_view && m_row >= 0 && m_column >= 0 ? m_view->model()->index(m_row, m_column)
                                                     : QModelIndex();
    }
    QDate date() const;

    QPointer<QTableView> m_view;
    int m_row;
    int m_column;
};

QRect AccessibleCalendarCell::rect() const
{
    const QModelIndex cell = index();
    if (!cell.isValid())
        return {};
    const QRect inView = m_view->visualRect(cell);
    return {m_view->viewport()->mapToGlobal(inView.topLeft()), inView.size()};
}

// A page begins with a day of the month before, if need be with a whole week of them.
QDate AccessibleCalendarCell::date() const
{
    const ZvCalendarWidget *const shown = calendar();
    if (!shown || !index().isValid())
        return {};
    const bool hasHeader = shown->horizontalHeaderFormat() != QCalendarWidget::NoHorizontalHeader;
    const bool hasNumbers = shown->verticalHeaderFormat() != QCalendarWidget::NoVerticalHeader;
    const int row = m_row - (hasHeader ? 1 : 0);
    const int column = m_column - (hasNumbers ? 1 : 0);
    if (row < 0 || column < 0)
        return {};
    const QDate first(shown->yearShown(), shown->monthShown(), 1);
    const int before = (first.dayOfWeek() - shown->firstDayOfWeek() + daysInWeek) % daysInWeek;
    const int daysBefore = before == 0 ? daysInWeek : before;
    return first.addDays(row * daysInWeek + column - daysBefore);
}

QString AccessibleCalendarCell::text(QAccessible::Text kind) const
{
    const ZvCalendarWidget *const shown = calendar();
    if (!shown || kind != QAccessible::Name)
        return {};
    const QDate cellDate = date();
    if (!cellDate.isValid())
        return index().data().toString();
    const QString dateText = QLocale::system().toString(cellDate, QLocale::LongFormat);
    return shown->isScheduledDate(cellDate)
               ? ZvCalendarWidget::tr("%1, has a schedule").arg(dateText)
               : dateText;
}

QAccessible::State AccessibleCalendarCell::state() const
{
    QAccessible::State state;
    const ZvCalendarWidget *const shown = calendar();
    if (!shown) {
        state.invalid = true;
        return state;
    }
    state.invisible = !index().isValid() || !m_view->isVisible();
    const QDate cellDate = date();
    if (!cellDate.isValid())
        return state;
    const bool isCurrent = cellDate == shown->selectedDate();
    state.selectable = true;
    state.multiSelectable = true;
    state.focusable = true;
    state.selected = isCurrent || shown->selectedDates().contains(cellDate);
    state.focused = isCurrent && m_view->hasFocus();
    return state;
}

// As a click does it.
void AccessibleCalendarCell::doAction(const QString &name)
{
    ZvCalendarWidget *const shown = calendar();
    const QDate cellDate = date();
    if (!shown || !cellDate.isValid() || name != pressAction())
        return;
    const QPointer<ZvCalendarWidget> live(shown);
    shown->setSelectedDate(cellDate);
    if (live)
        Q_EMIT live->QCalendarWidget::clicked(cellDate);
}

/// The view of the page. It numbers its cells as a table view reports them, with a row and a column
/// of headers in front that a calendar never shows.
class AccessibleCalendar final : public QAccessibleWidget
{
public:
    explicit AccessibleCalendar(QTableView *view)
        : QAccessibleWidget(view, QAccessible::List)
    {
    }

    int childCount() const override { return rows() * columns(); }
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

protected:
    ~AccessibleCalendar() override;

private:
    QTableView *view() const { return qobject_cast<QTableView *>(object()); }
    int rows() const { return calendarOf(view()) ? view()->model()->rowCount() + 1 : 0; }
    int columns() const { return calendarOf(view()) ? view()->model()->columnCount() + 1 : 1; }
    QAccessibleInterface *cellAt(const QModelIndex &index) const
    {
        return index.isValid() ? child((index.row() + 1) * columns() + index.column() + 1)
                               : nullptr;
    }

    // By row and column, since a column comes and goes with the numbers of the weeks.
    mutable QHash<QPair<int, int>, QAccessible::Id> m_cells;
};

AccessibleCalendar::~AccessibleCalendar()
{
    for (const QAccessible::Id id : qAsConst(m_cells))
        QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface *AccessibleCalendar::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    const QPair<int, int> place(index / columns() - 1, index % columns() - 1);
    const auto known = m_cells.constFind(place);
    if (known != m_cells.constEnd())
        return QAccessible::accessibleInterface(*known);
    auto *const cell = new AccessibleCalendarCell(view(), place.first, place.second);
    m_cells.insert(place, QAccessible::registerAccessibleInterface(cell));
    return cell;
}

int AccessibleCalendar::indexOfChild(const QAccessibleInterface *child) const
{
    const int count = childCount();
    for (int index = 0; index < count; ++index) {
        const QPair<int, int> place(index / columns() - 1, index % columns() - 1);
        const auto known = m_cells.constFind(place);
        if (known != m_cells.constEnd() && QAccessible::accessibleInterface(*known) == child)
            return index;
    }
    return -1;
}

QAccessibleInterface *AccessibleCalendar::childAt(int x, int y) const
{
    return calendarOf(view()) ? cellAt(view()->indexAt(view()->viewport()->mapFromGlobal({x, y})))
                              : nullptr;
}

QAccessibleInterface *AccessibleCalendar::focusChild() const
{
    return calendarOf(view()) && view()->hasFocus() ? cellAt(view()->currentIndex()) : nullptr;
}

} // namespace

QAccessibleInterface *createCalendarInterface(QObject *object)
{
    auto *const view = qobject_cast<QTableView *>(object);
    return calendarOf(view) ? new AccessibleCalendar(view) : nullptr;
}

} // namespace Zavo
