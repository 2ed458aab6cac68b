#include "CalendarMouse.h"
#include "navigation/CalendarPage.h"
#include "navigation/ZvCalendarWidget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTableView>
#include <QtTest>

using namespace Zavo;
using ZavoTest::CalendarMouse;

namespace {

// July 2025 begins on a Tuesday, February 2027 and March 2027 on a Monday.
const QDate shown(2025, 7, 1);
const QColor selectedFill(204, 204, 255);
const QColor scheduleFrame(153, 153, 204);
const QColor todayTint(0, 255, 0, 32);
const QColor hoverTint(240, 240, 250, 128);

/// Notes which cells are painted.
class NotingCalendar final : public ZvCalendarWidget
{
public:
    QList<QDate> takePainted()
    {
        const QList<QDate> painted = m_painted;
        m_painted.clear();
        return painted;
    }

protected:
    void paintCell(QPainter *painter, const QRect &rect, const QDate &date) const override
    {
        m_painted.append(date);
        ZvCalendarWidget::paintCell(painter, rect, date);
    }

private:
    mutable QList<QDate> m_painted;
};

int blended(int below, int above, int alpha)
{
    return (below * (255 - alpha) + above * alpha) / 255;
}

QColor over(const QColor &below, const QColor &tint)
{
    return {blended(below.red(), tint.red(), tint.alpha()),
            blended(below.green(), tint.green(), tint.alpha()),
            blended(below.blue(), tint.blue(), tint.alpha())};
}

bool isLike(const QColor &color, const QColor &expected)
{
    constexpr int slack = 3;
    return qAbs(color.red() - expected.red()) <= slack &&
           qAbs(color.green() - expected.green()) <= slack &&
           qAbs(color.blue() - expected.blue()) <= slack;
}

} // namespace

class tst_CalendarCells : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void marksDates();
    void marksNoInvalidDate();
    void countsMarkedDates();
    void standsTheDeathOfItsLabel();
    void knowsWhetherASelectedDateIsMarked();

    void look_data();
    void look();
    void staysSelectedWhenTakenOut();
    void numbersHaveTheColorOfTheirDay_data();
    void numbersHaveTheColorOfTheirDay();
    void numbersOfScheduledDatesAreBold();
    void pagesAreStill();

    void highlightsEveryCell_data();
    void highlightsEveryCell();
    void wholeWeeksOfOtherMonthsCountAsTheMonthShown();
    void readsPagesWithoutHeader();
    void highlightsNoHeader();
    void hoverPaintsTwoCells();
    void highlightStaysUntilTheFrameIsLeft();
    void highlightFollowsThePage();
    void dragDoesNotHover();
    void standsTheEndsOfTime_data();
    void standsTheEndsOfTime();

private:
    QImage grab(double ratio) const;
    QColor colorAt(const QImage &image, const QPoint &position) const;
    int countOfColor(const QRect &cell, const QColor &color) const;
    QDate highlighted() const;

    QScopedPointer<NotingCalendar> m_calendar;
    QScopedPointer<CalendarMouse> m_mouse;
};

void tst_CalendarCells::init()
{
    m_calendar.reset(new NotingCalendar);
    m_calendar->setFirstDayOfWeek(Qt::Monday);
    m_calendar->resize(400, 320);
    m_calendar->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_calendar.data()));
    m_mouse.reset(new CalendarMouse(m_calendar.data()));
    m_mouse->releaseKeys();
    m_calendar->setSelectedDate(shown);
    m_mouse->click(shown);
    QCoreApplication::processEvents();
}

void tst_CalendarCells::cleanup()
{
    m_mouse->releaseKeys();
    m_mouse.reset();
    m_calendar.reset();
}

void tst_CalendarCells::marksDates()
{
    QVERIFY(QMetaObject::invokeMethod(m_calendar.data(), "setScheduledDate",
                                      Q_ARG(QDate, shown.addDays(2))));
    m_calendar->setScheduledDate(shown);
    m_calendar->setScheduledDate(shown.addDays(2));
    QCOMPARE(m_calendar->scheduledDates().keys(), (QList<QDate>{shown, shown.addDays(2)}));
    QCOMPARE(m_calendar->scheduledDates().values(), (QList<bool>{true, true}));
    QVERIFY(m_calendar->isScheduledDate(shown.addDays(2)));
    m_calendar->clearScheduledDate(shown.addDays(2));
    QVERIFY(!m_calendar->isScheduledDate(shown.addDays(2)));
    m_calendar->clearScheduledDate(shown.addDays(3));
    QCOMPARE(m_calendar->scheduledDates().size(), 1);
    m_calendar->clearAllScheduledDates();
    QVERIFY(m_calendar->scheduledDates().isEmpty());
}

void tst_CalendarCells::marksNoInvalidDate()
{
    m_calendar->setScheduledDate(QDate());
    m_calendar->setScheduledDate(QDate(2025, 2, 30));
    QVERIFY(m_calendar->scheduledDates().isEmpty());
    m_calendar->clearScheduledDate(QDate());
}

void tst_CalendarCells::countsMarkedDates()
{
    QLabel label(QStringLiteral("as it was"));
    m_calendar->setScheduleCountLabel(&label);
    QCOMPARE(label.text(), QStringLiteral("as it was"));
    m_calendar->clearAllScheduledDates();
    QCOMPARE(label.text(), QStringLiteral("Schedule of days: None"));
    m_calendar->setScheduledDate(shown);
    QCOMPARE(label.text(), QStringLiteral("Schedule of days: 1 day"));
    m_calendar->setScheduledDate(shown.addDays(1));
    QCOMPARE(label.text(), QStringLiteral("Schedule of days: 2 days"));
    m_calendar->setScheduledDate(shown.addDays(1));
    QCOMPARE(label.text(), QStringLiteral("Schedule of days: 2 days"));
    m_calendar->clearScheduledDate(shown);
    QCOMPARE(label.text(), QStringLiteral("Schedule of days: 1 day"));
    m_calendar->clearAllScheduledDates();
    QCOMPARE(label.text(), QStringLiteral("Schedule of days: None"));
    m_calendar->setScheduleCountLabel(nullptr);
    m_calendar->setScheduledDate(shown);
    QCOMPARE(label.text(), QStringLiteral("Schedule of days: None"));
}

void tst_CalendarCells::standsTheDeathOfItsLabel()
{
    auto *label = new QLabel;
    m_calendar->setScheduleCountLabel(label);
    delete label;
    m_calendar->setScheduledDate(shown);
    QVERIFY(m_calendar->isScheduledDate(shown));
}

void tst_CalendarCells::knowsWhetherASelectedDateIsMarked()
{
    for (int number = 14; number <= 24; ++number)
        m_calendar->setScheduledDate(shown.addDays(number));
    m_mouse->click(shown.addDays(9));
    m_mouse->click(shown.addDays(11), Qt::ControlModifier);
    QVERIFY(!m_calendar->selectionHasScheduledDate());
    m_mouse->click(shown.addDays(14), Qt::ControlModifier);
    QVERIFY(m_calendar->selectionHasScheduledDate());
    m_mouse->click(shown.addDays(14), Qt::ControlModifier);
    QVERIFY(!m_calendar->selectionHasScheduledDate());
    // The selected date is not in the selection.
    m_mouse->click(shown.addDays(14));
    m_mouse->click(shown.addDays(14), Qt::ControlModifier);
    QCOMPARE(m_calendar->selectedDate(), shown.addDays(14));
    QVERIFY(!m_calendar->selectionHasScheduledDate());
}

/// The page as a screen of @p ratio shows it.
QImage tst_CalendarCells::grab(double ratio) const
{
    QWidget *viewport = m_mouse->view()->viewport();
    QImage image(viewport->size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    viewport->render(&image);
    return image;
}

QColor tst_CalendarCells::colorAt(const QImage &image, const QPoint &position) const
{
    return image.pixelColor(position * image.devicePixelRatio());
}

int tst_CalendarCells::countOfColor(const QRect &cell, const QColor &color) const
{
    const QImage image = grab(1.0);
    int count = 0;
    for (int y = cell.top(); y <= cell.bottom(); ++y) {
        for (int x = cell.left(); x <= cell.right(); ++x)
            count += isLike(image.pixelColor(x, y), color) ? 1 : 0;
    }
    return count;
}

void tst_CalendarCells::look_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<bool>("scheduled");
    QTest::addColumn<bool>("today");
    QTest::addColumn<bool>("hovered");
    for (const double ratio : {1.0, 2.0}) {
        for (int state = 0; state < 16; ++state) {
            const bool selected = (state & 1) != 0;
            const bool scheduled = (state & 2) != 0;
            const bool today = (state & 4) != 0;
            const bool hovered = (state & 8) != 0;
            QTest::addRow("ratio %g%s%s%s%s", ratio, selected ? " selected" : "",
                          scheduled ? " scheduled" : "", today ? " today" : "",
                          hovered ? " hovered" : "")
                << ratio << selected << scheduled << today << hovered;
        }
    }
}

void tst_CalendarCells::look()
{
    QFETCH(double, ratio);
    QFETCH(bool, selected);
    QFETCH(bool, scheduled);
    QFETCH(bool, today);
    QFETCH(bool, hovered);
    const QDate date = today ? QDate::currentDate() : shown.addDays(9);
    // The base class fills the cell of the selected date itself, so another one is that here.
    m_calendar->setSelectedDate(today ? date.addDays(date.day() > 15 ? -1 : 1) : shown);
    if (selected)
        m_mouse->click(date, Qt::ControlModifier);
    if (scheduled)
        m_calendar->setScheduledDate(date);
    if (hovered)
        m_mouse->hover(date);

    QColor fill = selected ? selectedFill : m_calendar->palette().color(QPalette::Base);
    QColor frame = scheduled ? scheduleFrame : fill;
    for (const auto &tint : {qMakePair(today, todayTint), qMakePair(hovered, hoverTint)}) {
        fill = tint.first ? over(fill, tint.second) : fill;
        frame = tint.first ? over(frame, tint.second) : frame;
    }
    const QImage image = grab(ratio);
    const QRect cell = m_mouse->cell(date);
    for (const QPoint &corner :
         {cell.topLeft(), cell.topRight(), cell.bottomLeft(), cell.bottomRight(),
          QPoint(cell.left() + 1, cell.center().y()), QPoint(cell.center().x(), cell.top() + 1)})
        QVERIFY2(isLike(colorAt(image, corner), frame), qPrintable(colorAt(image, corner).name()));
    for (const QPoint &inner : {cell.topLeft() + QPoint(2, 2), cell.bottomRight() - QPoint(2, 2)})
        QVERIFY2(isLike(colorAt(image, inner), fill), qPrintable(colorAt(image, inner).name()));
    // The marks stay inside of their cell.
    const QRect neighbour = m_mouse->cell(date.addDays(date.day() > 15 ? -7 : 7));
    QVERIFY(!isLike(colorAt(image, neighbour.topLeft()), scheduleFrame));
}

void tst_CalendarCells::staysSelectedWhenTakenOut()
{
    m_mouse->click(shown, Qt::ControlModifier);
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>());
    QVERIFY(isLike(colorAt(grab(1.0), m_mouse->cell(shown).topLeft()), selectedFill));
}

void tst_CalendarCells::numbersHaveTheColorOfTheirDay_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QColor>("color");
    QTest::newRow("Friday") << QDate(2025, 7, 11) << QColor(Qt::black);
    QTest::newRow("Saturday") << QDate(2025, 7, 12) << QColor(0, 0, 255);
    QTest::newRow("Sunday") << QDate(2025, 7, 13) << QColor(255, 0, 0);
    QTest::newRow("Saturday of the next month") << QDate(2025, 8, 2) << QColor(0, 0, 255);
    QTest::newRow("Sunday of the next month") << QDate(2025, 8, 10) << QColor(255, 0, 0);
    QTest::newRow("Monday of the month before") << QDate(2025, 6, 30) << QColor(Qt::black);
}

void tst_CalendarCells::numbersHaveTheColorOfTheirDay()
{
    QFETCH(QDate, date);
    QFETCH(QColor, color);
    const QRect cell = m_mouse->cell(date);
    QVERIFY(countOfColor(cell, color) > 3);
    m_calendar->setScheduledDate(date);
    QVERIFY(countOfColor(cell, color) > 3);
    m_mouse->hover(date);
    QVERIFY(countOfColor(cell, color) > 3);
    m_mouse->click(date, Qt::ControlModifier);
    m_calendar->setCurrentPage(shown.year(), shown.month());
    QVERIFY(countOfColor(cell, color) > 3);
}

void tst_CalendarCells::numbersOfScheduledDatesAreBold()
{
    const QDate date(2025, 7, 8);
    m_mouse->click(date);
    const QRect inner = m_mouse->cell(date).adjusted(3, 3, -3, -3);
    const int usual = inner.width() * inner.height() - countOfColor(inner, selectedFill);
    m_calendar->setScheduledDate(date);
    const int bold = inner.width() * inner.height() - countOfColor(inner, selectedFill);
    QVERIFY2(bold > usual, qPrintable(QStringLiteral("%1 against %2").arg(bold).arg(usual)));
}

// The bar's style sheet and the year's word must not make one painting the cause of the next.
void tst_CalendarCells::pagesAreStill()
{
    m_calendar->setScheduledDate(shown);
    QTest::qWait(100);
    m_calendar->takePainted();
    QTest::qWait(200);
    QCOMPARE(m_calendar->takePainted(), QList<QDate>());
}

/// The date in whose cell the highlight is; null without one.
QDate tst_CalendarCells::highlighted() const
{
    const QImage image = grab(1.0);
    const QColor base = m_calendar->palette().color(QPalette::Base);
    QDate found;
    for (int i = 0; i < 42; ++i) {
        const QDate date = m_mouse->firstDate().addDays(i);
        const QColor plain = date == m_calendar->selectedDate() ? selectedFill : base;
        const QColor tinted =
            over(date == QDate::currentDate() ? over(plain, todayTint) : plain, hoverTint);
        if (image.pixelColor(m_mouse->cell(date).topLeft() + QPoint(1, 1)) == tinted ||
            isLike(image.pixelColor(m_mouse->cell(date).topLeft() + QPoint(1, 1)), tinted))
            found = date;
    }
    return found;
}

void tst_CalendarCells::highlightsEveryCell_data()
{
    QTest::addColumn<int>("firstDay");
    QTest::addColumn<bool>("weekNumbers");
    QTest::addColumn<QDate>("month");
    const auto row = [](int firstDay, bool weekNumbers, const QDate &month) {
        QTest::addRow("from day %d, month %d, week numbers %d", firstDay, month.month(),
                      weekNumbers)
            << firstDay << weekNumbers << month;
    };
    for (int firstDay = Qt::Monday; firstDay <= Qt::Sunday; ++firstDay)
        row(firstDay, firstDay % 2 == 0, QDate(2025, 7, 1));
    for (const QDate &month : {QDate(2025, 12, 1), QDate(2025, 1, 1)}) {
        row(Qt::Monday, true, month);
        row(Qt::Sunday, false, month);
    }
}

void tst_CalendarCells::highlightsEveryCell()
{
    QFETCH(int, firstDay);
    QFETCH(bool, weekNumbers);
    QFETCH(QDate, month);
    m_calendar->setFirstDayOfWeek(static_cast<Qt::DayOfWeek>(firstDay));
    m_calendar->setVerticalHeaderFormat(weekNumbers ? QCalendarWidget::ISOWeekNumbers
                                                    : QCalendarWidget::NoVerticalHeader);
    m_calendar->setSelectedDate(month.addDays(14));
    const QDate first = m_mouse->firstDate();
    const QDate last = month.addMonths(1).addDays(-1);
    const bool firstWeekIsWhole = first.addDays(7) == month;
    const bool lastWeekIsWhole = last.dayOfWeek() % 7 == (firstDay + 6) % 7;
    for (int i = 0; i < 42; ++i) {
        const QDate date = first.addDays(i);
        if (firstWeekIsWhole && date < month)
            continue;
        if (lastWeekIsWhole && date > last && date <= last.addDays(7))
            continue;
        m_mouse->hover(date);
        QCOMPARE(highlighted(), date);
    }
}

void tst_CalendarCells::wholeWeeksOfOtherMonthsCountAsTheMonthShown()
{
    m_calendar->setCurrentPage(2027, 2);
    QCOMPARE(m_mouse->firstDate(), QDate(2027, 1, 25));
    m_mouse->hover(QDate(2027, 1, 26));
    QCOMPARE(highlighted(), QDate(2027, 2, 26));
    // No month has such a day.
    m_mouse->hover(QDate(2027, 1, 31));
    QCOMPARE(highlighted(), QDate());
    m_mouse->hover(QDate(2027, 3, 3));
    QCOMPARE(highlighted(), QDate(2027, 2, 3));
}

void tst_CalendarCells::readsPagesWithoutHeader()
{
    m_calendar->setHorizontalHeaderFormat(QCalendarWidget::NoHorizontalHeader);
    m_calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    const QAbstractItemModel *model = m_mouse->view()->model();
    const CalendarPage page(*m_calendar, *model);
    QCOMPARE(page.dateAt(model->index(0, 0)), QDate(2025, 6, 30));
    QCOMPARE(page.dateAt(model->index(0, 1)), QDate(2025, 7, 1));
    QCOMPARE(page.dateAt(model->index(4, 3)), QDate(2025, 7, 31));
    QCOMPARE(page.dateAt(model->index(4, 4)), QDate(2025, 8, 1));
    QCOMPARE(page.dateAt(model->index(5, 6)), QDate(2025, 8, 10));
    QCOMPARE(page.dateAt(QModelIndex()), QDate());
}

void tst_CalendarCells::highlightsNoHeader()
{
    const QTableView *view = m_mouse->view();
    m_mouse->hover(shown.addDays(9));
    QCOMPARE(highlighted(), shown.addDays(9));
    m_mouse->hover(view->visualRect(view->model()->index(0, 3)).center());
    QCOMPARE(highlighted(), QDate());
    m_mouse->hover(shown.addDays(9));
    m_mouse->hover(view->visualRect(view->model()->index(3, 0)).center());
    QCOMPARE(highlighted(), QDate());
    m_mouse->hover(shown.addDays(9));
    m_mouse->hover(QPoint(-50, -50));
    QCOMPARE(highlighted(), QDate());
}

void tst_CalendarCells::hoverPaintsTwoCells()
{
    m_mouse->hover(shown.addDays(9));
    QCoreApplication::processEvents();
    m_calendar->takePainted();
    for (const int next : {10, 3, 2, 23, 24, 31}) {
        m_mouse->hover(shown.addDays(next));
        // Within a cell nothing changes.
        m_mouse->hover(m_mouse->cell(shown.addDays(next)).center() + QPoint(3, 3));
        QCoreApplication::processEvents();
        const QList<QDate> painted = m_calendar->takePainted();
        QCOMPARE(painted.size(), 2);
        QVERIFY(painted.contains(shown.addDays(next)));
    }
    m_mouse->hover(m_mouse->cell(shown.addDays(31)).center() + QPoint(-3, 2));
    QCoreApplication::processEvents();
    QCOMPARE(m_calendar->takePainted(), QList<QDate>());
}

void tst_CalendarCells::highlightStaysUntilTheFrameIsLeft()
{
    m_mouse->hover(shown.addDays(8));
    m_mouse->hover(shown.addDays(9));
    QCoreApplication::processEvents();
    m_calendar->takePainted();
    m_mouse->leave();
    QCoreApplication::processEvents();
    QCOMPARE(m_calendar->takePainted(), QList<QDate>{shown.addDays(8)});
    QCOMPARE(highlighted(), shown.addDays(9));
    m_calendar->clearHovered();
    QCOMPARE(highlighted(), QDate());
    m_mouse->leave();
    // Back to the cell that was left.
    m_mouse->hover(shown.addDays(9));
    QCOMPARE(highlighted(), shown.addDays(9));
}

void tst_CalendarCells::highlightFollowsThePage()
{
    const QPoint position = m_mouse->cell(shown.addDays(9)).center();
    m_mouse->hover(position);
    m_calendar->showNextMonth();
    m_mouse->hover(position);
    QCOMPARE(highlighted(), m_mouse->firstDate().addDays(10));
}

void tst_CalendarCells::dragDoesNotHover()
{
    QWidget *viewport = m_mouse->view()->viewport();
    m_mouse->hover(shown.addDays(9));
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier,
                      m_mouse->cell(shown.addDays(9)).center());
    const QPoint end = m_mouse->cell(shown.addDays(16)).center();
    QMouseEvent drag(QEvent::MouseMove, end, viewport->mapToGlobal(end), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &drag);
    QCOMPARE(highlighted(), shown.addDays(9));
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, end);
    QCOMPARE(m_calendar->selectedDate(), shown.addDays(16));
    m_mouse->hover(shown.addDays(16));
    QCOMPARE(highlighted(), shown.addDays(16));
}

void tst_CalendarCells::standsTheEndsOfTime_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");
    QTest::newRow("last month") << 9999 << 12;
    QTest::newRow("first month of our era") << 1 << 1;
    QTest::newRow("first month") << -4713 << 1;
}

void tst_CalendarCells::standsTheEndsOfTime()
{
    QFETCH(int, year);
    QFETCH(int, month);
    m_calendar->setCurrentPage(year, month);
    const QTableView *view = m_mouse->view();
    for (int row = 0; row < view->model()->rowCount(); ++row) {
        for (int column = 0; column < view->model()->columnCount(); ++column) {
            m_mouse->hover(view->visualRect(view->model()->index(row, column)).center());
            QCoreApplication::processEvents();
        }
    }
    m_calendar->selectWeek();
    m_calendar->selectMonth();
    QVERIFY(m_calendar->selectedDates().contains(m_calendar->selectedDate()));
}

QTEST_MAIN(tst_CalendarCells)
#include "tst_calendarcells.moc"
