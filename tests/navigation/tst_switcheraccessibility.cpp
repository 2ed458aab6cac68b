#include "SwitcherFixture.h"

#include <QAccessible>
#include <QTableView>

using namespace Zavo;
using ZavoTest::SwitcherFixture;

namespace {

QAccessibleInterface *interfaceOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString nameOf(const QAccessibleInterface *interface)
{
    return interface ? interface->text(QAccessible::Name) : QStringLiteral("nothing");
}

void press(QAccessibleInterface *interface)
{
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

QString textOf(const QDate &date)
{
    return QLocale::system().toString(date, QLocale::LongFormat);
}

QTableView *viewOf(const ZvCalendarWidget *calendar)
{
    return calendar->findChild<QTableView *>(QLatin1String(NavigationName::CalendarView));
}

// The cell of that name on the page, or null.
QAccessibleInterface *cellOf(const ZvCalendarWidget *calendar, const QDate &date)
{
    QAccessibleInterface *const page = interfaceOf(viewOf(calendar));
    for (int i = 0; i < page->childCount(); ++i) {
        if (nameOf(page->child(i)).startsWith(textOf(date)))
            return page->child(i);
    }
    return nullptr;
}

} // namespace

class tst_SwitcherAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageShowsWholeDates_data();
    void pageShowsWholeDates();
    void cellsAreWhereTheyArePainted();
    void marksAndSelection();
    void pressingACellChoosesItsDate();
    void focusIsOnTheCurrentCell();
    void cellsOfACalendarThatGoes();
    void weekNumbersComeAndGo();
    void popupCalendarsStayAsTheyAre();
    void daysOfTheWeek();
    void frames();
    void today();

private:
    const QDate m_date{2026, 12, 23}; // a Wednesday: no week begins with the day behind it
};

void tst_SwitcherAccessibility::pageShowsWholeDates_data()
{
    QTest::addColumn<QDate>("month");
    QTest::addColumn<int>("firstDay");
    // Beginning in the middle of a row, with a row of the month before, and with two of the next.
    QTest::newRow("December") << QDate(2026, 12, 1) << int(Qt::Monday);
    QTest::newRow("begins with its week") << QDate(2026, 6, 1) << int(Qt::Monday);
    QTest::newRow("four weeks alone") << QDate(2027, 2, 1) << int(Qt::Monday);
    QTest::newRow("Sunday first") << QDate(2026, 11, 1) << int(Qt::Sunday);
    QTest::newRow("leap day") << QDate(2028, 2, 1) << int(Qt::Saturday);
}

void tst_SwitcherAccessibility::pageShowsWholeDates()
{
    QFETCH(QDate, month);
    QFETCH(int, firstDay);
    const SwitcherFixture fixture;
    ZvCalendarWidget *const calendar = fixture.calendar();
    calendar->setFirstDayOfWeek(Qt::DayOfWeek(firstDay));
    calendar->setCurrentPage(month.year(), month.month());
    QAccessibleInterface *const page = interfaceOf(viewOf(calendar));
    QCOMPARE(page->role(), QAccessible::List);
    QCOMPARE(nameOf(page), QStringLiteral("Calendar"));
    QDate last;
    int days = 0;
    for (int i = 0; i < page->childCount(); ++i) {
        QAccessibleInterface *const cell = page->child(i);
        QVERIFY(cell && cell->isValid());
        QCOMPARE(page->indexOfChild(cell), i);
        QCOMPARE(cell->parent(), page);
        if (cell->role() != QAccessible::ListItem)
            continue;
        ++days;
        const QDate date = last.isValid()
                               ? last.addDays(1)
                               : QLocale::system().toDate(nameOf(cell), QLocale::LongFormat);
        QVERIFY(date.isValid());
        QCOMPARE(nameOf(cell), textOf(date));
        // The number that a person sees in it.
        const QModelIndex index = viewOf(calendar)->indexAt(
            viewOf(calendar)->viewport()->mapFromGlobal(cell->rect().center()));
        QCOMPARE(index.data().toInt(), date.day());
        last = date;
    }
    QCOMPARE(days, 42);
    QVERIFY(cellOf(calendar, month));
}

void tst_SwitcherAccessibility::cellsAreWhereTheyArePainted()
{
    const SwitcherFixture fixture;
    ZvCalendarWidget *const calendar = fixture.calendar();
    calendar->setCurrentPage(m_date.year(), m_date.month());
    QAccessibleInterface *const cell = cellOf(calendar, m_date);
    const QPoint centre = cell->rect().center();
    QCOMPARE(interfaceOf(viewOf(calendar))->childAt(centre.x(), centre.y()), cell);
    const ZavoTest::CalendarMouse mouse(calendar);
    QCOMPARE(viewOf(calendar)->viewport()->mapFromGlobal(centre).x() / 8,
             mouse.cell(m_date).center().x() / 8);
}

void tst_SwitcherAccessibility::marksAndSelection()
{
    const SwitcherFixture fixture;
    ZvCalendarWidget *const calendar = fixture.calendar();
    calendar->setSelectedDate(m_date);
    const QAccessibleInterface *const cell = cellOf(calendar, m_date);
    QVERIFY(cell->state().selectable);
    QVERIFY(cell->state().selected);
    QVERIFY(!cellOf(calendar, m_date.addDays(1))->state().selected);
    calendar->selectWeek();
    QVERIFY(cellOf(calendar, m_date.addDays(1))->state().selected);
    QCOMPARE(nameOf(cell), textOf(m_date));
    calendar->setScheduledDate(m_date);
    QCOMPARE(nameOf(cell), textOf(m_date) + QStringLiteral(", has a schedule"));
}

void tst_SwitcherAccessibility::pressingACellChoosesItsDate()
{
    SwitcherFixture fixture;
    fixture.calendar()->setCurrentPage(m_date.year(), m_date.month());
    fixture.taken();
    press(cellOf(fixture.calendar(), m_date));
    QCOMPARE(fixture.calendar()->selectedDate(), m_date);
    QVERIFY(fixture.taken().contains(QStringLiteral("requestSwitchToDate 2026-12-23")));
    QCOMPARE(fixture.selectedFrames(), QStringLiteral("C"));
    // The header of the column is not to be pressed.
    QAccessibleInterface *const page = interfaceOf(viewOf(fixture.calendar()));
    for (int i = 0; i < page->childCount(); ++i) {
        if (page->child(i)->role() != QAccessible::ListItem)
            QVERIFY(page->child(i)->actionInterface()->actionNames().isEmpty());
    }
}

void tst_SwitcherAccessibility::focusIsOnTheCurrentCell()
{
    const SwitcherFixture fixture;
    ZvCalendarWidget *const calendar = fixture.calendar();
    fixture.switcher->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(fixture.switcher.get()));
    calendar->setSelectedDate(m_date);
    viewOf(calendar)->setFocus();
    QCOMPARE(nameOf(interfaceOf(viewOf(calendar))->focusChild()), textOf(m_date));
    QVERIFY(cellOf(calendar, m_date)->state().focused);
    QTest::keyClick(viewOf(calendar), Qt::Key_Right);
    QCOMPARE(nameOf(interfaceOf(viewOf(calendar))->focusChild()), textOf(m_date.addDays(1)));
    QVERIFY(!cellOf(calendar, m_date)->state().focused);
}

void tst_SwitcherAccessibility::cellsOfACalendarThatGoes()
{
    const SwitcherFixture installer;
    auto calendar = std::make_unique<ZvCalendarWidget>();
    calendar->setCurrentPage(m_date.year(), m_date.month());
    const QAccessible::Id cell = QAccessible::uniqueId(cellOf(calendar.get(), m_date));
    QVERIFY(QAccessible::accessibleInterface(cell));
    calendar.reset();
    QVERIFY(!QAccessible::accessibleInterface(cell));
}

void tst_SwitcherAccessibility::weekNumbersComeAndGo()
{
    const SwitcherFixture fixture;
    ZvCalendarWidget *const calendar = fixture.calendar();
    calendar->setCurrentPage(m_date.year(), m_date.month());
    for (const auto format : {QCalendarWidget::NoVerticalHeader, QCalendarWidget::ISOWeekNumbers,
                              QCalendarWidget::NoVerticalHeader}) {
        calendar->setVerticalHeaderFormat(format);
        const QAccessibleInterface *const cell = cellOf(calendar, m_date);
        QVERIFY(cell);
        const QModelIndex index = viewOf(calendar)->indexAt(
            viewOf(calendar)->viewport()->mapFromGlobal(cell->rect().center()));
        QCOMPARE(index.data().toInt(), m_date.day());
    }
}

void tst_SwitcherAccessibility::popupCalendarsStayAsTheyAre()
{
    const SwitcherFixture installer;
    QCalendarWidget plain;
    auto *const view = plain.findChild<QTableView *>(QLatin1String(NavigationName::CalendarView));
    QVERIFY(view);
    QCOMPARE(interfaceOf(view)->role(), QAccessible::Table);
}

void tst_SwitcherAccessibility::daysOfTheWeek()
{
    SwitcherFixture fixture;
    fixture.week()->clearAllScheduledDays();
    fixture.week()->selectDayOfWeek(Qt::Monday);
    const QString tuesday = QLocale::system().dayName(Qt::Tuesday, QLocale::LongFormat);
    QAccessibleInterface *const cell = interfaceOf(fixture.cell(Qt::Tuesday));
    QCOMPARE(cell->role(), QAccessible::RadioButton);
    QCOMPARE(nameOf(cell), tuesday);
    QVERIFY(cell->state().checkable);
    QVERIFY(!cell->state().checked);
    QVERIFY(interfaceOf(fixture.cell(Qt::Monday))->state().checked);
    fixture.week()->setDayScheduled(Qt::Tuesday);
    QCOMPARE(nameOf(cell), tuesday + QStringLiteral(", has a schedule"));
    fixture.taken();
    press(cell);
    QVERIFY(fixture.taken().contains(QStringLiteral("requestSwitchToDayOfWeek 2")));
    QVERIFY(cell->state().checked);
    QVERIFY(!interfaceOf(fixture.cell(Qt::Monday))->state().checked);
    QCOMPARE(fixture.selectedFrames(), QStringLiteral("W"));
}

void tst_SwitcherAccessibility::frames()
{
    SwitcherFixture fixture;
    using namespace NavigationName;
    QStringList names;
    for (const char *name : {CalendarFrame, WeekFrame, DefaultFrame}) {
        QAccessibleInterface *const frame = interfaceOf(fixture.frame(name));
        names.append(nameOf(frame));
        press(frame);
        QVERIFY(frame->state().selected);
        QCOMPARE(fixture.selectedFrames(), QString(QLatin1Char(name[0])));
    }
    QCOMPARE(names, (QStringList{QStringLiteral("Schedule of a date"),
                                 QStringLiteral("Schedule for Each Day of Week"),
                                 QStringLiteral("Schedule of Default")}));
    QVERIFY(fixture.taken().contains(QStringLiteral("requestSwitchToDefault")));
}

void tst_SwitcherAccessibility::today()
{
    SwitcherFixture fixture;
    fixture.calendar()->setSelectedDate(m_date);
    QAccessibleInterface *const line = interfaceOf(fixture.today());
    QCOMPARE(line->role(), QAccessible::Button);
    QCOMPARE(nameOf(line), QStringLiteral("Move to Today"));
    press(line);
    QCOMPARE(fixture.calendar()->selectedDate(), QDate::currentDate());
}

QTEST_MAIN(tst_SwitcherAccessibility)

#include "tst_switcheraccessibility.moc"
