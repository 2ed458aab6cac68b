#include "CalendarMouse.h"

#include <QCalendarWidget>
#include <QMouseEvent>
#include <QTableView>
#include <QtTest>

namespace ZavoTest {

namespace {

template<typename Event>
void sendSpontaneous(QWidget *widget, Event *event)
{
    QSpontaneKeyEvent::setSpontaneous(event);
    qApp->notify(widget, event);
}

} // namespace

CalendarMouse::CalendarMouse(QCalendarWidget *calendar)
    : m_calendar(calendar)
    , m_view(calendar->findChild<QTableView *>())
{
}

QTableView *CalendarMouse::view() const
{
    return m_view;
}

// A page keeps at least one cell for the month before, so one that would begin with the first day
// begins with a row of that month.
QDate CalendarMouse::firstDate() const
{
    const QDate first(m_calendar->yearShown(), m_calendar->monthShown(), 1);
    const int column = (first.dayOfWeek() - m_calendar->firstDayOfWeek() + 7) % 7;
    return first.addDays(column == 0 ? -7 : -column);
}

QModelIndex CalendarMouse::index(const QDate &date) const
{
    const int headerRows =
        m_calendar->horizontalHeaderFormat() == QCalendarWidget::NoHorizontalHeader ? 0 : 1;
    const int headerColumns =
        m_calendar->verticalHeaderFormat() == QCalendarWidget::NoVerticalHeader ? 0 : 1;
    const int place = static_cast<int>(firstDate().daysTo(date));
    const QModelIndex index =
        m_view->model()->index(place / 7 + headerRows, place % 7 + headerColumns);
    if (place < 0 || index.data().toInt() != date.day())
        QTest::qFail(qPrintable(date.toString(Qt::ISODate) + QStringLiteral(" is not on the page")),
                     __FILE__, __LINE__);
    return index;
}

QRect CalendarMouse::cell(const QDate &date) const
{
    return m_view->visualRect(index(date));
}

void CalendarMouse::click(const QDate &date, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, modifiers, cell(date).center());
}

void CalendarMouse::hover(const QDate &date)
{
    hover(cell(date).center());
}

void CalendarMouse::hover(const QPoint &viewportPosition)
{
    QMouseEvent move(QEvent::MouseMove, viewportPosition,
                     m_view->viewport()->mapToGlobal(viewportPosition), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    sendSpontaneous(m_view->viewport(), &move);
}

void CalendarMouse::leave()
{
    for (QWidget *widget : {m_view->viewport(), static_cast<QWidget *>(m_view)}) {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(widget, &leave);
    }
}

void CalendarMouse::holdKeys(Qt::KeyboardModifiers modifiers)
{
    const int key = modifiers == Qt::ShiftModifier ? Qt::Key_Shift : Qt::Key_Control;
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    sendSpontaneous(m_view, &press);
}

void CalendarMouse::releaseKeys()
{
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Control, Qt::NoModifier);
    sendSpontaneous(m_view, &release);
}

} // namespace ZavoTest
