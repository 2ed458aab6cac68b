#include "navigation/ZvCalendarWidget.h"

#include "CalendarMouse.h"
#include "SignalLog.h"

#include <QContextMenuEvent>
#include <QTextCharFormat>
#include <QToolButton>
#include <QWheelEvent>
#include <QtTest>

using namespace Zavo;
using ZavoTest::CalendarMouse;
using ZavoTest::SignalLog;

namespace {

// A month that begins on a Tuesday and ends on a Wednesday, far from today.
constexpr int year = 2025;
constexpr int month = 7;

QDate day(int number)
{
    return QDate(year, month, 1).addDays(number - 1);
}

QList<QDate> days(int first, int last)
{
    QList<QDate> result;
    for (int number = first; number <= last; ++number)
        result.append(day(number));
    return result;
}

/// "12" is a click on that day, "c12" one with Ctrl, "s12" with Shift, "x12" with both, "a12" with
/// Alt.
Qt::KeyboardModifiers modifiersOf(QChar sign)
{
    switch (sign.toLatin1()) {
    case 'c':
        return Qt::ControlModifier;
    case 's':
        return Qt::ShiftModifier;
    case 'x':
        return Qt::ControlModifier | Qt::ShiftModifier;
    case 'a':
        return Qt::AltModifier;
    default:
        return Qt::NoModifier;
    }
}

} // namespace

class tst_ZvCalendarWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isBareAtFirst();
    void clicks_data();
    void clicks();
    void tellsOnceOfAClick_data();
    void tellsOnceOfAClick();
    void everyCellOfThePage_data();
    void everyCellOfThePage();
    void rangeOverTheMonthsBorder();
    void takesOutADateOfAnotherMonth();
    void rangeOfManyYears();
    void pressesThatChooseNoDate();

    void selectionFromOutsideIsHandled();
    void clickAfterASelectionFromOutsideKeepsTheSelection();
    void selectionFromOutsideWithKeysHeld();

    void keys();
    void typedDate();

    void selectsTheWeek_data();
    void selectsTheWeek();
    void selectsTheMonth_data();
    void selectsTheMonth();
    void selectsNothingAroundNoDate();
    void clearsTheSelection();

    void movesToToday();
    void movesToTodayWhereItIsSelected();
    void movesToTodayFromAnotherPage();

    void pagingKeepsTheSelection();
    void standsItsDeathUnderItsMenu();

private:
    void clickAll(const QString &clicks);

    QScopedPointer<ZvCalendarWidget> m_calendar;
    QScopedPointer<CalendarMouse> m_mouse;
    QScopedPointer<SignalLog> m_log;
};

void tst_ZvCalendarWidget::init()
{
    m_calendar.reset(new ZvCalendarWidget);
    m_calendar->resize(320, 260);
    m_calendar->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_calendar.data()));
    m_mouse.reset(new CalendarMouse(m_calendar.data()));
    m_mouse->releaseKeys();
    m_calendar->setSelectedDate(day(1));
    m_mouse->click(day(1));
    m_log.reset(new SignalLog);
    m_log->watch(m_calendar.data(), SIGNAL(selectionChanged()));
    m_log->watch(m_calendar.data(), SIGNAL(clicked(QObject*)), "clicked");
    m_log->watch(m_calendar.data(), SIGNAL(clicked(QDate)), "clickedDate");
}

void tst_ZvCalendarWidget::cleanup()
{
    m_mouse->releaseKeys();
    m_log.reset();
    m_mouse.reset();
    m_calendar.reset();
}

void tst_ZvCalendarWidget::clickAll(const QString &clicks)
{
    const QStringList list = clicks.split(QLatin1Char(' '));
    for (const QString &click : list) {
        const bool plain = click.at(0).isDigit();
        m_mouse->click(day((plain ? click : click.mid(1)).toInt()), modifiersOf(click.at(0)));
    }
}

void tst_ZvCalendarWidget::isBareAtFirst()
{
    ZvCalendarWidget calendar;
    QCOMPARE(calendar.selectedDates(), QList<QDate>());
    QCOMPARE(calendar.selectedDate(), QDate::currentDate());
    QVERIFY(calendar.scheduledDates().isEmpty());
    QVERIFY(!calendar.selectionHasScheduledDate());
    QVERIFY(calendar.isGridVisible());
    QCOMPARE(calendar.selectionMode(), QCalendarWidget::SingleSelection);
    const auto color = [&calendar](Qt::DayOfWeek weekday) {
        return calendar.weekdayTextFormat(weekday).foreground().color();
    };
    QCOMPARE(color(Qt::Saturday), QColor(0, 0, 255));
    QCOMPARE(color(Qt::Sunday), QColor(Qt::red));
    QCOMPARE(color(Qt::Friday), QColor(Qt::black));
}

void tst_ZvCalendarWidget::clicks_data()
{
    QTest::addColumn<QString>("clicks");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<int>("selected");

    const auto row = [](const char *clicks, const char *selection, int selected) {
        QTest::newRow(clicks) << QString::fromLatin1(clicks) << QString::fromLatin1(selection)
                              << selected;
    };
    row("10", "10", 10);
    row("10 12", "12", 12);
    row("10 c12 c20", "10 12 20", 20);
    row("10 c12 c20 12", "12", 12);
    row("10 c12 c20 20", "20", 20);
    row("10 x15", "15", 15);
    row("10 a15", "15", 15);

    row("10 c10", "", 10);
    row("10 c10 10", "10", 10);
    row("10 c10 c10", "10", 10);
    row("10 c10 c12", "12", 12);
    row("10 c10 s15", "15", 15);
    row("10 c10 c10 c10", "", 10);

    // The neighbour on the side of the last click takes over.
    row("10 c12 c20 c12", "10 20", 10);
    row("20 c12 c10 c12", "10 20", 20);
    row("10 c12 c20 c20", "10 12", 12);
    row("10 c12 c20 c10", "12 20", 12);
    row("12 c10 c12", "10", 10);
    row("10 c12 c10", "12", 12);
    row("10 c12 c20 c12 c20", "10", 10);
    row("10 c11 c12 c13 c12 c12", "10 11 12 13", 12);
    row("10 c11 c12 c13 c12 c13", "10 11", 11);
    row("20 c10 c15 c18 c15 c10", "18 20", 18);
    row("10 c11 c12 c14 c16 c12 c11", "10 14 16", 14);

    row("10 c12 c20 s15", "10 11 12 13 14 15", 15);
    row("10 c12 c20 s5", "5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20", 5);
    row("10 c12 c20 s10", "10", 10);
    row("10 c12 c20 s12", "10 11 12", 12);
    row("10 c12 c20 s20", "10 11 12 13 14 15 16 17 18 19 20", 20);
    row("10 c12 c20 s22", "10 11 12 13 14 15 16 17 18 19 20 21 22", 22);
    row("10 s13 s11", "10 11", 11);
    row("10 s7 s12", "7 8 9 10 11 12", 12);
    row("10 s10", "10", 10);
    row("10 s12 c11", "10 12", 10);
    row("12 s10 c11", "10 12", 12);
    row("10 s12 c20 c12", "10 11 20", 11);
}

void tst_ZvCalendarWidget::clicks()
{
    QFETCH(QString, clicks);
    QFETCH(int, selected);
    clickAll(clicks);
    QStringList numbers;
    const QList<QDate> dates = m_calendar->selectedDates();
    for (const QDate &date : dates)
        numbers.append(QString::number(day(1).daysTo(date) + 1));
    QTEST(numbers.join(QLatin1Char(' ')), "selection");
    QCOMPARE(m_calendar->selectedDate(), day(selected));
    QCOMPARE(m_log->count(QStringLiteral("clicked")), clicks.count(QLatin1Char(' ')) + 1);
}

void tst_ZvCalendarWidget::tellsOnceOfAClick_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("click");
    QTest::addColumn<int>("selectionChanges");
    QTest::newRow("another date") << "10"
                                  << "12" << 1;
    QTest::newRow("the same date") << "10"
                                   << "10" << 0;
    QTest::newRow("one more") << "10"
                              << "c12" << 1;
    QTest::newRow("the only one out") << "10"
                                      << "c10" << 0;
    QTest::newRow("the selected one out") << "10 c12"
                                          << "c12" << 1;
    // To the date under the mouse and from there to its neighbour.
    QTest::newRow("another one out") << "10 c12 c20"
                                     << "c10" << 2;
    QTest::newRow("range") << "10"
                           << "s12" << 1;
}

void tst_ZvCalendarWidget::tellsOnceOfAClick()
{
    QFETCH(QString, before);
    QFETCH(QString, click);
    clickAll(before);
    m_log->clear();
    clickAll(click);
    QCOMPARE(m_log->count(QStringLiteral("clickedDate")), 1);
    QCOMPARE(m_log->count(QStringLiteral("clicked")), 1);
    QCOMPARE(m_log->names().constLast(), QStringLiteral("clickedDate"));
    QTEST(m_log->count(QStringLiteral("selectionChanged")), "selectionChanges");
    const int index = m_log->names().indexOf(QStringLiteral("clicked"));
    QCOMPARE(m_log->arguments(index).value(0).value<QObject *>(),
             static_cast<QObject *>(m_calendar.data()));
}

void tst_ZvCalendarWidget::everyCellOfThePage_data()
{
    QTest::addColumn<int>("firstDay");
    QTest::addColumn<bool>("weekNumbers");
    for (int firstDay = Qt::Monday; firstDay <= Qt::Sunday; ++firstDay) {
        for (const bool weekNumbers : {true, false})
            QTest::addRow("from day %d, week numbers %d", firstDay, weekNumbers)
                << firstDay << weekNumbers;
    }
}

void tst_ZvCalendarWidget::everyCellOfThePage()
{
    QFETCH(int, firstDay);
    QFETCH(bool, weekNumbers);
    m_calendar->setFirstDayOfWeek(static_cast<Qt::DayOfWeek>(firstDay));
    m_calendar->setVerticalHeaderFormat(weekNumbers ? QCalendarWidget::ISOWeekNumbers
                                                    : QCalendarWidget::NoVerticalHeader);
    const QDate first = m_mouse->firstDate();
    QCOMPARE(first.dayOfWeek(), firstDay);
    for (int i = 0; i < 42; ++i) {
        const QDate date = first.addDays(i);
        m_calendar->setCurrentPage(year, month);
        m_mouse->click(date);
        QCOMPARE(m_calendar->selectedDate(), date);
        QCOMPARE(m_calendar->selectedDates(), QList<QDate>{date});
        QCOMPARE(m_calendar->monthShown(), date.month());
    }
}

void tst_ZvCalendarWidget::rangeOverTheMonthsBorder()
{
    m_mouse->click(day(28));
    m_mouse->click(day(33), Qt::ShiftModifier);
    QCOMPARE(m_calendar->selectedDates(), days(28, 33));
    QCOMPARE(m_calendar->monthShown(), month + 1);
    QCOMPARE(m_calendar->selectedDate(), day(33));
    m_mouse->click(day(30), Qt::ShiftModifier);
    QCOMPARE(m_calendar->selectedDates(), days(28, 30));
    QCOMPARE(m_calendar->monthShown(), month);
    m_mouse->click(day(0), Qt::ShiftModifier);
    QCOMPARE(m_calendar->selectedDates(), days(0, 30));
    QCOMPARE(m_calendar->monthShown(), month - 1);
}

void tst_ZvCalendarWidget::takesOutADateOfAnotherMonth()
{
    clickAll(QStringLiteral("10 c32"));
    QCOMPARE(m_calendar->monthShown(), month + 1);
    m_calendar->setCurrentPage(year, month);
    m_mouse->click(day(32), Qt::ControlModifier);
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{day(10)});
    QCOMPARE(m_calendar->selectedDate(), day(10));
    QCOMPARE(m_calendar->monthShown(), month);
}

void tst_ZvCalendarWidget::rangeOfManyYears()
{
    m_mouse->click(day(1));
    const QDate far(2125, 7, 10);
    m_calendar->setCurrentPage(far.year(), far.month());
    m_mouse->click(far, Qt::ShiftModifier);
    const QList<QDate> dates = m_calendar->selectedDates();
    QCOMPARE(dates.size(), static_cast<int>(day(1).daysTo(far)) + 1);
    QCOMPARE(dates.constFirst(), day(1));
    QCOMPARE(dates.constLast(), far);
    QVERIFY(std::is_sorted(dates.cbegin(), dates.cend()));
    m_calendar->setScheduledDate(QDate(2100, 2, 28));
    QVERIFY(m_calendar->selectionHasScheduledDate());
}

void tst_ZvCalendarWidget::pressesThatChooseNoDate()
{
    clickAll(QStringLiteral("10 c12"));
    m_log->clear();
    // The names of the days are no date, but they are the calendar.
    const QTableView *view = m_mouse->view();
    const QRect header = view->visualRect(view->model()->index(0, 3));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, header.center());
    QCOMPARE(m_log->names(), QStringList{QStringLiteral("clicked")});
    m_log->clear();
    QTest::mouseClick(view->viewport(), Qt::RightButton, Qt::NoModifier,
                      m_mouse->cell(day(20)).center());
    QCOMPARE(m_log->names(), QStringList());
    // Pressed on a date and released outside.
    QTest::mousePress(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                      m_mouse->cell(day(20)).center());
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, Qt::NoModifier, header.center());
    QCOMPARE(m_log->names(), QStringList());
    QCOMPARE(m_calendar->selectedDates(), (QList<QDate>{day(10), day(12)}));
}

void tst_ZvCalendarWidget::selectionFromOutsideIsHandled()
{
    clickAll(QStringLiteral("10 c12"));
    m_mouse->releaseKeys();
    m_log->clear();
    m_calendar->setSelectedDate(day(20));
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{day(20)});
    QCOMPARE(m_log->names(), QStringList{QStringLiteral("selectionChanged")});
}

void tst_ZvCalendarWidget::clickAfterASelectionFromOutsideKeepsTheSelection()
{
    m_calendar->setSelectedDate(day(15));
    m_calendar->selectMonth();
    QCOMPARE(m_calendar->selectedDates(), days(1, 31));
    m_mouse->click(day(15));
    QCOMPARE(m_calendar->selectedDates(), days(1, 31));
    m_mouse->click(day(15));
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{day(15)});
    QCOMPARE(m_log->count(QStringLiteral("clicked")), 2);
}

void tst_ZvCalendarWidget::selectionFromOutsideWithKeysHeld()
{
    clickAll(QStringLiteral("10"));
    m_mouse->holdKeys(Qt::ControlModifier);
    m_calendar->setSelectedDate(day(20));
    QCOMPARE(m_calendar->selectedDates(), (QList<QDate>{day(10), day(20)}));
    m_calendar->setSelectedDate(day(10));
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{day(20)});
    QCOMPARE(m_calendar->selectedDate(), day(20));
    m_mouse->holdKeys(Qt::ShiftModifier);
    m_calendar->setSelectedDate(day(18));
    QCOMPARE(m_calendar->selectedDates(), days(18, 20));
}

void tst_ZvCalendarWidget::keys()
{
    clickAll(QStringLiteral("10 c20"));
    m_log->clear();
    QTableView *view = m_mouse->view();
    QTest::keyClick(view, Qt::Key_Right);
    QCOMPARE(m_calendar->selectedDate(), day(21));
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{day(21)});
    QTest::keyClick(view, Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(m_calendar->selectedDates(), days(21, 22));
    QTest::keyClick(view, Qt::Key_Left);
    QTest::keyClick(view, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(m_calendar->selectedDates(), days(21, 28));
    QTest::keyClick(view, Qt::Key_Down);
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{day(35)});
    QCOMPARE(m_calendar->monthShown(), month + 1);
    QTest::keyClick(view, Qt::Key_PageUp);
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{day(4)});
    QTest::keyClick(view, Qt::Key_Home);
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{day(1)});
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{day(1)});
    QCOMPARE(m_log->count(QStringLiteral("clicked")), 0);
    // The first click on a date that the keys chose finds its change handled.
    m_mouse->click(day(1));
    QCOMPARE(m_log->count(QStringLiteral("clicked")), 1);
}

void tst_ZvCalendarWidget::typedDate()
{
    clickAll(QStringLiteral("10 c20"));
    m_calendar->setLocale(QLocale::c());
    QTableView *view = m_mouse->view();
    QTest::keyClicks(view, QStringLiteral("25"));
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(m_calendar->selectedDate(), day(25));
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{day(25)});
}

void tst_ZvCalendarWidget::selectsTheWeek_data()
{
    QTest::addColumn<int>("firstDay");
    QTest::addColumn<int>("first");
    // The 31st is a Thursday.
    QTest::newRow("from Monday") << 1 << 28;
    QTest::newRow("from Tuesday") << 2 << 29;
    QTest::newRow("from Wednesday") << 3 << 30;
    QTest::newRow("from Thursday") << 4 << 31;
    QTest::newRow("from Friday") << 5 << 25;
    QTest::newRow("from Saturday") << 6 << 26;
    QTest::newRow("from Sunday") << 7 << 27;
}

void tst_ZvCalendarWidget::selectsTheWeek()
{
    QFETCH(int, firstDay);
    QFETCH(int, first);
    m_calendar->setFirstDayOfWeek(static_cast<Qt::DayOfWeek>(firstDay));
    clickAll(QStringLiteral("10 c31"));
    m_mouse->releaseKeys();
    m_log->clear();
    m_calendar->selectWeek();
    QCOMPARE(m_calendar->selectedDates(), days(first, first + 6));
    QCOMPARE(m_calendar->selectedDate(), day(31));
    QCOMPARE(m_log->names(), QStringList());
    m_calendar->selectWeek(day(38));
    QCOMPARE(m_calendar->selectedDates(), days(first + 7, first + 13));
    QCOMPARE(m_calendar->selectedDate(), day(38));
    QCOMPARE(m_log->names(), QStringList{QStringLiteral("selectionChanged")});
}

void tst_ZvCalendarWidget::selectsTheMonth_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("count");
    QTest::newRow("31 days") << QDate(2025, 12, 31) << 31;
    QTest::newRow("30 days") << QDate(2025, 6, 1) << 30;
    QTest::newRow("February") << QDate(2025, 2, 14) << 28;
    QTest::newRow("February of a leap year") << QDate(2024, 2, 29) << 29;
}

void tst_ZvCalendarWidget::selectsTheMonth()
{
    QFETCH(QDate, date);
    m_calendar->selectMonth(date);
    const QList<QDate> dates = m_calendar->selectedDates();
    QTEST(dates.size(), "count");
    QCOMPARE(dates.constFirst(), QDate(date.year(), date.month(), 1));
    QCOMPARE(dates.constLast().addDays(1), dates.constFirst().addMonths(1));
    QCOMPARE(m_calendar->selectedDate(), date);
    QCOMPARE(m_log->count(QStringLiteral("clicked")), 0);
    m_calendar->setSelectedDate(day(1));
    m_calendar->setSelectedDate(date);
    m_calendar->selectMonth();
    QCOMPARE(m_calendar->selectedDates(), dates);
}

void tst_ZvCalendarWidget::selectsNothingAroundNoDate()
{
    clickAll(QStringLiteral("10 c12"));
    m_calendar->selectWeek(QDate());
    m_calendar->selectMonth(QDate());
    QCOMPARE(m_calendar->selectedDates(), (QList<QDate>{day(10), day(12)}));
}

void tst_ZvCalendarWidget::clearsTheSelection()
{
    clickAll(QStringLiteral("10 c12 c20"));
    m_calendar->clearMultiSelection();
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{day(20)});
    clickAll(QStringLiteral("c20"));
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>());
    m_calendar->clearMultiSelection();
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{day(20)});
}

void tst_ZvCalendarWidget::movesToToday()
{
    clickAll(QStringLiteral("10 c12 c20"));
    m_mouse->releaseKeys();
    m_log->clear();
    m_calendar->selectToday();
    const QDate today = QDate::currentDate();
    QCOMPARE(m_calendar->selectedDate(), today);
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{today});
    QCOMPARE(m_calendar->monthShown(), today.month());
    QCOMPARE(m_calendar->yearShown(), today.year());
    QCOMPARE(m_calendar->selectionMode(), QCalendarWidget::SingleSelection);
    QCOMPARE(m_log->names(),
             QStringList({QStringLiteral("selectionChanged"), QStringLiteral("clicked")}));
}

void tst_ZvCalendarWidget::movesToTodayWhereItIsSelected()
{
    m_mouse->releaseKeys();
    m_calendar->selectToday();
    m_log->clear();
    m_calendar->selectToday();
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>());
    QCOMPARE(m_calendar->selectedDate(), QDate::currentDate());
    QCOMPARE(m_log->names(), QStringList{QStringLiteral("clicked")});
    // Until the next click.
    m_mouse->click(QDate::currentDate());
    m_mouse->click(QDate::currentDate());
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{QDate::currentDate()});
}

void tst_ZvCalendarWidget::movesToTodayFromAnotherPage()
{
    m_mouse->releaseKeys();
    m_calendar->selectToday();
    m_calendar->setCurrentPage(year, month);
    m_calendar->selectToday();
    QCOMPARE(m_calendar->monthShown(), QDate::currentDate().month());
    QCOMPARE(m_calendar->yearShown(), QDate::currentDate().year());
    QCOMPARE(m_calendar->selectedDate(), QDate::currentDate());
}

void tst_ZvCalendarWidget::pagingKeepsTheSelection()
{
    clickAll(QStringLiteral("10 c12"));
    m_log->clear();
    const auto button = [this](const char *name) {
        return m_calendar->findChild<QToolButton *>(QLatin1String(name));
    };
    QTest::mouseClick(button("qt_calendar_nextmonth"), Qt::LeftButton);
    QCOMPARE(m_calendar->monthShown(), month + 1);
    QTest::mouseClick(button("qt_calendar_prevmonth"), Qt::LeftButton);
    QTest::mouseClick(button("qt_calendar_prevmonth"), Qt::LeftButton);
    QCOMPARE(m_calendar->monthShown(), month - 1);
    QCOMPARE(m_log->names(), QStringList({QStringLiteral("clicked"), QStringLiteral("clicked"),
                                          QStringLiteral("clicked")}));
    m_log->clear();
    QWheelEvent wheel(QPointF(50, 50), QPointF(50, 50), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_mouse->view()->viewport(), &wheel);
    QCOMPARE(m_calendar->monthShown(), month);
    m_calendar->showNextYear();
    QCOMPARE(m_log->names(), QStringList());
    QCOMPARE(m_calendar->selectedDate(), day(12));
    QCOMPARE(m_calendar->selectedDates(), (QList<QDate>{day(10), day(12)}));
}

void tst_ZvCalendarWidget::standsItsDeathUnderItsMenu()
{
    QWidget *viewport = m_mouse->view()->viewport();
    const QPoint position = m_mouse->cell(day(16)).center();
    QTimer::singleShot(0, this, [this] {
        QVERIFY(QApplication::activePopupWidget());
        m_calendar.reset();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, viewport->mapToGlobal(position));
    QCoreApplication::sendEvent(viewport, &event);
    QVERIFY(!m_calendar);
    init();
}

QTEST_MAIN(tst_ZvCalendarWidget)
#include "tst_zvcalendarwidget.moc"
