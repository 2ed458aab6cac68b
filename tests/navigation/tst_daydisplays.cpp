#include "SignalLog.h"

#include "navigation/NavigationNames.h"
#include "navigation/ZvDayOfWeekWidget.h"
#include "navigation/ZvTodayWidget.h"
#include "navigation/ZvWeekWidget.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QtTest>

using namespace Zavo;
using ZavoTest::SignalLog;

namespace {

const QColor scheduledFrame(153, 153, 204);
const QColor selectedFill(204, 204, 255);

QList<ZvDayOfWeekWidget *> cellsOf(const QWidget &row)
{
    return row.findChildren<ZvDayOfWeekWidget *>();
}

ZvDayOfWeekWidget *cellOf(const QWidget &row, int day)
{
    const QList<ZvDayOfWeekWidget *> cells = cellsOf(row);
    for (ZvDayOfWeekWidget *cell : cells) {
        if (cell->dayOfWeek() == day)
            return cell;
    }
    return nullptr;
}

QList<int> scheduledDaysOf(const ZvWeekWidget &row)
{
    QList<int> days;
    for (int day = 1; day <= 7; ++day) {
        if (row.hasScheduledDay(day))
            days.append(day);
    }
    return days;
}

int selectedCountOf(const ZvWeekWidget &row)
{
    int count = 0;
    const QList<ZvDayOfWeekWidget *> cells = cellsOf(row);
    for (const ZvDayOfWeekWidget *cell : cells)
        count += cell->isSelected() ? 1 : 0;
    return count;
}

// What the screen shows of a widget, not what a fresh painting of it would show.
QImage screenOf(const QWidget &widget)
{
    return widget.screen()
        ->grabWindow(widget.window()->winId())
        .toImage()
        .copy(QRect(widget.mapTo(widget.window(), QPoint()), widget.size()));
}

QColor fillOf(const ZvDayOfWeekWidget &cell)
{
    return screenOf(cell).pixelColor(4, 4);
}

QString longDate(const QDate &date)
{
    return QLocale::system().toString(date, QLocale::LongFormat);
}

} // namespace

/// The widgets that name days: the week row with its cells, and the line of today.
class tst_DayDisplays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cellIsSquareUntilHighEnough();
    void cellNamesItsDay_data();
    void cellNamesItsDay();
    void cellSelectsOnRelease();
    void cellForgetsAPressDraggedOut();
    void cellKeepsItsPressToItself();
    void cellShowsItsState();

    void rowRunsFromSunday();
    void rowMarksSundayAtFirst();
    void rowSelectsOneDay();
    void rowSelectsByClick();
    void rowMarksDays();
    void rowRotates_data();
    void rowRotates();
    void rowShowsItsMenu();
    void rowSelectsTheDayThatAMenuIsOpenedOn();
    void rowStandsADeadMenu();
    void rowRepaintsWhatChanges();

    void todayShowsTheDate();
    void todayReportsPressAndRelease();
    void todayShowsThePress();
};

// A day of the week

void tst_DayDisplays::cellIsSquareUntilHighEnough()
{
    ZvDayOfWeekWidget cell;
    QCOMPARE(cell.minimumSize(), QSize(24, 24));
    QCOMPARE(cell.sizeHint(), QSize(QWIDGETSIZE_MAX, 48));
    QCOMPARE(cell.alignment(), Qt::AlignCenter);
    QVERIFY(cell.sizePolicy().hasHeightForWidth());
    QCOMPARE(cell.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(cell.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    cell.show();
    cell.resize(100, 100);
    QCOMPARE(cell.size(), QSize(100, 48));
    cell.resize(30, 100);
    QCOMPARE(cell.size(), QSize(30, 30));
    cell.resize(100, 100);
    QCOMPARE(cell.size(), QSize(100, 30));
    cell.resize(100, 100);
    QCOMPARE(cell.size(), QSize(100, 48));
    cell.resize(1, 1);
    QCOMPARE(cell.size(), QSize(24, 24));
    QVERIFY(QMetaObject::invokeMethod(&cell, "delayedResize"));
    QCOMPARE(cell.size(), QSize(24, 24));
}

void tst_DayDisplays::cellNamesItsDay_data()
{
    QTest::addColumn<int>("day");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("color");
    QTest::newRow("none") << 0 << QStringLiteral("NON") << QString();
    const auto nameOf = [](int day) {
        return QLocale::system().dayName(day, QLocale::ShortFormat);
    };
    QTest::newRow("Monday") << 1 << nameOf(1) << QString();
    QTest::newRow("Friday") << 5 << nameOf(5) << QString();
    QTest::newRow("Saturday") << 6 << nameOf(6) << QStringLiteral("blue");
    QTest::newRow("Sunday") << 7 << nameOf(7) << QStringLiteral("red");
}

void tst_DayDisplays::cellNamesItsDay()
{
    QFETCH(int, day);
    QFETCH(QString, color);
    ZvDayOfWeekWidget cell;
    const QString style = cell.styleSheet();
    QVERIFY(style.startsWith(
        QStringLiteral("QLabel{background-color: rgb(255, 255, 255);border-width: 1px;")));
    QCOMPARE(cell.dayOfWeek(), 0);
    cell.setDayOfWeek(day);
    QCOMPARE(cell.dayOfWeek(), day);
    QTEST(cell.text(), "text");
    QCOMPARE(cell.styleSheet(),
             color.isEmpty() ? style : style + QStringLiteral("QLabel{color:%1;}").arg(color));
    cell.ensurePolished();
    if (!color.isEmpty())
        QCOMPARE(cell.palette().color(QPalette::WindowText), QColor(color));
}

void tst_DayDisplays::cellSelectsOnRelease()
{
    ZvDayOfWeekWidget cell;
    cell.setDayOfWeek(3);
    cell.resize(40, 40);
    SignalLog log;
    log.watch(&cell, SIGNAL(clicked(ZvDayOfWeekWidget*)));
    QTest::mousePress(&cell, Qt::LeftButton);
    QVERIFY(cell.property(NavigationName::PressedProperty).toBool());
    QVERIFY(!cell.isSelected());
    QCOMPARE(log.names(), QStringList());
    QTest::mouseRelease(&cell, Qt::LeftButton);
    QVERIFY(!cell.property(NavigationName::PressedProperty).toBool());
    QVERIFY(cell.isSelected());
    QCOMPARE(log.names(), QStringList(QStringLiteral("clicked")));
    QCOMPARE(log.arguments(0).first().value<ZvDayOfWeekWidget *>(), &cell);
    QTest::mouseClick(&cell, Qt::LeftButton);
    QVERIFY(cell.isSelected());
    QCOMPARE(log.count(QStringLiteral("clicked")), 2);
}

void tst_DayDisplays::cellForgetsAPressDraggedOut()
{
    ZvDayOfWeekWidget cell;
    cell.resize(40, 40);
    SignalLog log;
    log.watch(&cell, SIGNAL(clicked(ZvDayOfWeekWidget*)));
    for (const QPoint &outside : {QPoint(cell.width(), 10), QPoint(-1, 10), QPoint(10, -1),
                                  QPoint(10, cell.height()), QPoint(5000, 5000)}) {
        QTest::mousePress(&cell, Qt::LeftButton);
        QTest::mouseRelease(&cell, Qt::LeftButton, Qt::NoModifier, outside);
        QVERIFY(!cell.property(NavigationName::PressedProperty).toBool());
        QVERIFY(!cell.isSelected());
    }
    QCOMPARE(log.names(), QStringList());
    QTest::mousePress(&cell, Qt::LeftButton);
    const QPoint corner(cell.width() - 1, cell.height() - 1);
    QTest::mouseRelease(&cell, Qt::LeftButton, Qt::NoModifier, corner);
    QVERIFY(cell.isSelected());
}

void tst_DayDisplays::cellKeepsItsPressToItself()
{
    class Frame final : public QFrame
    {
    public:
        int presses = 0;

    protected:
        void mousePressEvent(QMouseEvent *) override { ++presses; }
    };
    Frame frame;
    auto *layout = new QHBoxLayout(&frame);
    auto *row = new ZvWeekWidget;
    layout->addWidget(row);
    frame.show();
    QTest::mouseClick(cellOf(*row, 2), Qt::LeftButton);
    QCOMPARE(frame.presses, 0);
    QTest::mouseClick(row, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QCOMPARE(frame.presses, 1);
}

void tst_DayDisplays::cellShowsItsState()
{
    QWidget window;
    ZvDayOfWeekWidget cell(&window);
    cell.setDayOfWeek(4);
    cell.resize(40, 40);
    window.resize(200, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseMove(&window, QPoint(150, 80));
    QTRY_COMPARE(fillOf(cell), QColor(Qt::white));
    QCOMPARE(screenOf(cell).pixelColor(0, 20), QColor(0xd3, 0xd3, 0xd3));
    cell.setSelected(true);
    cell.update();
    QTRY_COMPARE(fillOf(cell), selectedFill);
    cell.setScheduled(true);
    cell.update();
    QTRY_COMPARE(screenOf(cell).pixelColor(1, 20), scheduledFrame);
    QCOMPARE(screenOf(cell).pixelColor(0, 20), scheduledFrame);
    QCOMPARE(fillOf(cell), selectedFill);
    cell.setScheduled(false);
    cell.setSelected(false);
    cell.update();
    QTRY_COMPARE(screenOf(cell).pixelColor(1, 20), QColor(Qt::white));
}

// The row

void tst_DayDisplays::rowRunsFromSunday()
{
    const ZvWeekWidget row;
    QCOMPARE(row.days(), (QList<int>{7, 1, 2, 3, 4, 5, 6}));
    QCOMPARE(row.selectedDayOfWeek(), 8);
    auto *title = qobject_cast<QLabel *>(row.layout()->itemAt(0)->widget());
    QVERIFY(title);
    QCOMPARE(title->text(), QStringLiteral("Schedule for Each Day of Week"));
    QCOMPARE(title->styleSheet(), QStringLiteral("font-weight: bold;"));
    auto *cells = qobject_cast<QHBoxLayout *>(row.layout()->itemAt(1)->layout());
    QVERIFY(cells);
    QCOMPARE(cells->count(), 7);
    QCOMPARE(cells->itemAt(0)->widget(), cellOf(row, 7));
    QCOMPARE(cells->itemAt(6)->widget(), cellOf(row, 6));
}

void tst_DayDisplays::rowMarksSundayAtFirst()
{
    ZvWeekWidget row;
    QCOMPARE(scheduledDaysOf(row), QList<int>{7});
    row.clearAllScheduledDays();
    QCOMPARE(scheduledDaysOf(row), QList<int>());
    QVERIFY(!row.hasScheduledDay(0));
    QVERIFY(!row.hasScheduledDay(8));
    QVERIFY(!row.hasScheduledDay(-1));
}

void tst_DayDisplays::rowSelectsOneDay()
{
    ZvWeekWidget row;
    SignalLog log;
    log.watch(&row, SIGNAL(clicked(QObject*)));
    for (int day = 1; day <= 7; ++day) {
        row.selectDayOfWeek(static_cast<Qt::DayOfWeek>(day));
        QCOMPARE(row.selectedDayOfWeek(), day);
        QCOMPARE(selectedCountOf(row), 1);
    }
    row.selectDayOfWeek(static_cast<Qt::DayOfWeek>(0));
    QCOMPARE(row.selectedDayOfWeek(), 8);
    QCOMPARE(log.names(), QStringList());
}

void tst_DayDisplays::rowSelectsByClick()
{
    ZvWeekWidget row;
    row.show();
    SignalLog log;
    log.watch(&row, SIGNAL(clicked(QObject*)));
    for (int day : {3, 7, 7, 1}) {
        log.clear();
        QTest::mouseClick(cellOf(row, day), Qt::LeftButton);
        QCOMPARE(row.selectedDayOfWeek(), day);
        QCOMPARE(selectedCountOf(row), 1);
        QCOMPARE(log.names(), QStringList(QStringLiteral("clicked")));
        QCOMPARE(log.arguments(0).first().value<QObject *>(), &row);
    }
    log.clear();
    ZvDayOfWeekWidget *friday = cellOf(row, 5);
    QTest::mousePress(friday, Qt::LeftButton);
    QTest::mouseRelease(friday, Qt::LeftButton, Qt::NoModifier, QPoint(-5, 5));
    QCOMPARE(row.selectedDayOfWeek(), 1);
    QCOMPARE(log.names(), QStringList());
}

void tst_DayDisplays::rowMarksDays()
{
    ZvWeekWidget row;
    row.clearAllScheduledDays();
    row.setDaysScheduled({1, 3});
    row.setDaysScheduled({5, 0, 9, 5});
    QCOMPARE(scheduledDaysOf(row), (QList<int>{1, 3, 5}));
    row.setDayScheduled(7);
    row.setDayScheduled(12);
    QCOMPARE(scheduledDaysOf(row), (QList<int>{1, 3, 5, 7}));
    row.clearDayScheduled(3);
    row.clearDayScheduled(0);
    row.clearDayScheduled(9);
    QCOMPARE(scheduledDaysOf(row), (QList<int>{1, 5, 7}));
    QCOMPARE(row.selectedDayOfWeek(), 8);
}

void tst_DayDisplays::rowRotates_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<QList<int>>("days");
    QTest::newRow("Monday") << 1 << QList<int>{1, 2, 3, 4, 5, 6, 7};
    QTest::newRow("Saturday") << 6 << QList<int>{6, 7, 1, 2, 3, 4, 5};
    QTest::newRow("Sunday") << 7 << QList<int>{7, 1, 2, 3, 4, 5, 6};
    QTest::newRow("no day") << 9 << QList<int>{7, 1, 2, 3, 4, 5, 6};
}

void tst_DayDisplays::rowRotates()
{
    QFETCH(int, first);
    ZvWeekWidget row;
    row.resize(400, 100);
    row.selectDayOfWeek(Qt::Tuesday);
    row.setFirstDayOfWeek(static_cast<Qt::DayOfWeek>(first));
    row.setFirstDayOfWeek(first);
    QTEST(row.days(), "days");
    QCOMPARE(row.selectedDayOfWeek(), 2);
    QCOMPARE(scheduledDaysOf(row), QList<int>{7});
    row.show();
    const QList<int> days = row.days();
    for (int i = 1; i < days.size(); ++i)
        QVERIFY(cellOf(row, days.at(i - 1))->x() < cellOf(row, days.at(i))->x());
    row.setFirstDayOfWeek(7);
    QCOMPARE(row.days(), (QList<int>{7, 1, 2, 3, 4, 5, 6}));
}

void tst_DayDisplays::rowShowsItsMenu()
{
    ZvWeekWidget row;
    row.show();
    QMenu menu;
    menu.addAction(QStringLiteral("Copy"));
    int shown = 0;
    QPoint position;
    connect(&menu, &QMenu::aboutToShow, &menu, [&] {
        ++shown;
        QTimer::singleShot(0, &menu, [&] {
            position = menu.pos();
            menu.close();
        });
    });
    const QPoint pos(4, 4);
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, row.mapToGlobal(pos));
    QCoreApplication::sendEvent(&row, &event);
    QCOMPARE(shown, 0);
    row.setEditMenu(&menu);
    QCoreApplication::sendEvent(&row, &event);
    QCOMPARE(shown, 1);
    QCOMPARE(position, row.mapToGlobal(pos));
    QCOMPARE(row.selectedDayOfWeek(), 8);
    row.setEditMenu(nullptr);
    QCoreApplication::sendEvent(&row, &event);
    QCOMPARE(shown, 1);
}

void tst_DayDisplays::rowSelectsTheDayThatAMenuIsOpenedOn()
{
    ZvWeekWidget row;
    row.show();
    row.selectDayOfWeek(Qt::Monday);
    QMenu menu;
    int dayAtMenu = 0;
    connect(&menu, &QMenu::aboutToShow, &menu, [&] {
        dayAtMenu = row.selectedDayOfWeek();
        QTimer::singleShot(0, &menu, [&] { menu.close(); });
    });
    menu.addAction(QStringLiteral("Delete"));
    row.setEditMenu(&menu);
    SignalLog log;
    log.watch(&row, SIGNAL(clicked(QObject*)));
    ZvDayOfWeekWidget *thursday = cellOf(row, 4);
    QTest::mousePress(thursday, Qt::RightButton);
    const QPoint pos = thursday->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, thursday->mapToGlobal(pos));
    QCoreApplication::sendEvent(thursday, &event);
    QCOMPARE(dayAtMenu, 4);
    QCOMPARE(selectedCountOf(row), 1);
    QVERIFY(!thursday->property(NavigationName::PressedProperty).toBool());
    QCOMPARE(log.count(QStringLiteral("clicked")), 1);
    // Where the menu comes with the release, the day was clicked before.
    ZvDayOfWeekWidget *friday = cellOf(row, 5);
    QTest::mouseClick(friday, Qt::RightButton);
    QCoreApplication::sendEvent(friday, &event);
    QCOMPARE(dayAtMenu, 5);
    QCOMPARE(log.count(QStringLiteral("clicked")), 2);
}

void tst_DayDisplays::rowStandsADeadMenu()
{
    ZvWeekWidget row;
    row.show();
    {
        QMenu menu;
        row.setEditMenu(&menu);
    }
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(4, 4), row.mapToGlobal(QPoint(4, 4)));
    QCoreApplication::sendEvent(&row, &event);
    QCOMPARE(row.selectedDayOfWeek(), 8);
}

void tst_DayDisplays::rowRepaintsWhatChanges()
{
    ZvWeekWidget row;
    row.resize(400, 120);
    row.show();
    QVERIFY(QTest::qWaitForWindowExposed(&row));
    QTest::mouseMove(&row, QPoint(2, 2));
    const ZvDayOfWeekWidget &tuesday = *cellOf(row, 2);
    QTRY_COMPARE(fillOf(tuesday), QColor(Qt::white));
    row.selectDayOfWeek(Qt::Tuesday);
    QTRY_COMPARE(fillOf(tuesday), selectedFill);
    QTest::mouseClick(cellOf(row, 6), Qt::LeftButton);
    QTRY_COMPARE(fillOf(tuesday), QColor(Qt::white));
    // Above the name, which is as wide as the cell in some languages.
    const int above = tuesday.height() / 8;
    row.setDayScheduled(2);
    QTRY_COMPARE(screenOf(tuesday).pixelColor(1, above), scheduledFrame);
    row.clearDayScheduled(2);
    QTRY_COMPARE(screenOf(tuesday).pixelColor(1, above), QColor(Qt::white));
}

// Today

void tst_DayDisplays::todayShowsTheDate()
{
    const ZvTodayWidget line;
    const QDate today = QDate::currentDate();
    QCOMPARE(line.layout()->count(), 4);
    QStringList texts;
    for (int i = 0; i < 3; ++i)
        texts.append(qobject_cast<QLabel *>(line.layout()->itemAt(i)->widget())->text());
    QCOMPARE(texts,
             (QStringList{QStringLiteral("Today:"), longDate(today),
                          QLocale::system().dayName(today.dayOfWeek(), QLocale::LongFormat)}));
    QVERIFY(line.layout()->itemAt(3)->spacerItem());
    QCOMPARE(line.toolTip(), QStringLiteral("Move to Today"));
    QVERIFY(line.hasMouseTracking());
}

void tst_DayDisplays::todayReportsPressAndRelease()
{
    ZvTodayWidget line;
    line.show();
    SignalLog log;
    log.watch(&line, SIGNAL(mousePressed()));
    log.watch(&line, SIGNAL(mouseReleased()));
    QTest::mousePress(&line, Qt::LeftButton);
    QVERIFY(line.property(NavigationName::PressedProperty).toBool());
    QCOMPARE(log.names(), QStringList(QStringLiteral("mousePressed")));
    QTest::mouseRelease(&line, Qt::LeftButton, Qt::NoModifier, QPoint(-50, 900));
    QVERIFY(!line.property(NavigationName::PressedProperty).toBool());
    QCOMPARE(log.names(),
             (QStringList{QStringLiteral("mousePressed"), QStringLiteral("mouseReleased")}));
    log.clear();
    QTest::mouseClick(line.findChild<QLabel *>(), Qt::LeftButton);
    QCOMPARE(log.names(),
             (QStringList{QStringLiteral("mousePressed"), QStringLiteral("mouseReleased")}));
}

void tst_DayDisplays::todayShowsThePress()
{
    QWidget window;
    ZvTodayWidget line(&window);
    line.resize(300, 40);
    window.resize(320, 120);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseMove(&window, QPoint(10, 110));
    const QPoint probe(295, 20);
    const QColor resting = screenOf(line).pixelColor(probe);
    QTest::mousePress(&line, Qt::LeftButton, Qt::NoModifier, probe);
    QTRY_COMPARE(screenOf(line).pixelColor(probe), selectedFill);
    QTest::mouseRelease(&line, Qt::LeftButton, Qt::NoModifier, probe);
    QTRY_VERIFY(screenOf(line).pixelColor(probe) != selectedFill);
    QTest::mouseMove(&window, QPoint(10, 100));
    QTRY_COMPARE(screenOf(line).pixelColor(probe), resting);
}

QTEST_MAIN(tst_DayDisplays)
#include "tst_daydisplays.moc"
