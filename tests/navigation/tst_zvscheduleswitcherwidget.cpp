#include "SwitcherFixture.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QScreen>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QDate today = QDate::currentDate();

QString dateRequest(const QDate &date)
{
    return QStringLiteral("requestSwitchToDate ") + date.toString(Qt::ISODate);
}

QString dayRequest(int day)
{
    return QStringLiteral("requestSwitchToDayOfWeek ") + QString::number(day);
}

const QString defaultRequest = QStringLiteral("requestSwitchToDefault");
const QString activated = QStringLiteral("activated");

// Another date on the page of today.
QDate otherDate()
{
    return today.addDays(today.day() > 15 ? -3 : 3);
}

int otherDay(int day)
{
    return day % 7 + 1;
}

} // namespace

/// The frames of the switcher and what they ask for, driven by the mouse and by what it is told.
class tst_ZvScheduleSwitcherWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithToday();
    void startsWithTheDefaultSchedule();
    void isLaidOut();

    void clickOnADate();
    void clickOnTheSelectedDate();
    void pressesAroundTheCells();
    void arrowKeysAskForNothing();
    void todayLeadsToToday();
    void clickOnADay();
    void pressOnTheDefaultFrame();
    void objectsOfOtherNames();

    void changesToASchedule();
    void currentScheduleIsNoChange();
    void noScheduleSelectsAllFrames();
    void answersWithTheSelection();

    void activatesItself();
    void leavingEndsTheHighlight();
    void frameKnowsItsObjects();
    void frameShowsThatItIsSelected();
    void defaultFrameShowsItsMenu();
    void calendarMenuIsAnotherOne();
};

void tst_ZvScheduleSwitcherWidget::startsWithToday()
{
    SwitcherFixture host;
    QCOMPARE(host.selectedFrames(), QStringLiteral("C"));
    QCOMPARE(host.switcher->currentSelection(), SelectionType::Calendar);
    QCOMPARE(host.calendar()->selectedDate(), today);
    QCOMPARE(host.week()->selectedDayOfWeek(), today.dayOfWeek());
    QCOMPARE(host.executed(), executedDefault());
    QCOMPARE(host.executedTitle(), QStringLiteral("Scheduled to be executed on"));
    QVERIFY(host.week()->hasScheduledDay(7));
    QCOMPARE(host.countText(), QStringLiteral("Schedule of days: None"));
    QCOMPARE(host.taken(), QStringList());
}

void tst_ZvScheduleSwitcherWidget::startsWithTheDefaultSchedule()
{
    SwitcherFixture host(true);
    QCOMPARE(host.selectedFrames(), QStringLiteral("D"));
    QCOMPARE(host.switcher->currentSelection(), SelectionType::DefaultSchedule);
    QCOMPARE(host.calendar()->selectedDate(), today);
}

void tst_ZvScheduleSwitcherWidget::isLaidOut()
{
    const QFont before = QApplication::font();
    const auto restore = qScopeGuard([&before] { QApplication::setFont(before); });
    QFont font = before;
    font.setPointSize(9);
    QApplication::setFont(font);
    SwitcherFixture host;
    QVERIFY(host.switcher->widgetResizable());
    QCOMPARE(host.switcher->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(host.switcher->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    auto *layout = qobject_cast<QVBoxLayout *>(host.switcher->widget()->layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 6);
    QCOMPARE(layout->itemAt(0)->widget(), host.today());
    QCOMPARE(layout->itemAt(1)->widget(), host.frame(NavigationName::CalendarFrame));
    QVERIFY(qobject_cast<ZvScheduledToBeExecutedWidget *>(layout->itemAt(2)->widget()));
    QCOMPARE(layout->itemAt(3)->widget(), host.frame(NavigationName::WeekFrame));
    QCOMPARE(layout->itemAt(4)->widget(), host.frame(NavigationName::DefaultFrame));
    QCOMPARE(layout->itemAt(5)->spacerItem()->sizeHint(), QSize(24, 24));
    QCOMPARE(host.calendar()->objectName(), QStringLiteral("CalendarWidget"));
    QCOMPARE(host.week()->objectName(), QStringLiteral("WeekWidget"));
    QCOMPARE(host.defaults()->objectName(), QStringLiteral("DefaultScheduleWidget"));
    auto *outer = host.switcher->findChild<QWidget *>(QStringLiteral("CalendarOuterWidget"));
    QCOMPARE(host.calendar()->parentWidget(), outer);
    QCOMPARE(outer->layout()->contentsMargins(), QMargins());
    QCOMPARE(outer->layout()->spacing(), 0);
    const QLayout *frameLayout = host.frame(NavigationName::CalendarFrame)->layout();
    QCOMPARE(frameLayout->itemAt(0)->layout()->contentsMargins(), QMargins(9, 9, 9, 9));
    QVERIFY(host.frame(NavigationName::WeekFrame)
                ->styleSheet()
                .startsWith(QStringLiteral("[selected=false]{border-top-color: rgb(64, 64, 64);")));
    // A dock of the usual width shows everything without scrolling.
    host.switcher->resize(330, 800);
    QVERIFY(!host.switcher->horizontalScrollBar()->isVisible());
}

// The mouse

void tst_ZvScheduleSwitcherWidget::clickOnADate()
{
    SwitcherFixture host(true);
    CalendarMouse mouse(host.calendar());
    mouse.click(otherDate());
    QCOMPARE(host.taken(), (QStringList{dateRequest(otherDate()), activated}));
    QCOMPARE(host.selectedFrames(), QStringLiteral("C"));
    QCOMPARE(host.current(), ZvScheduleBasicInfo(otherDate()));
}

void tst_ZvScheduleSwitcherWidget::clickOnTheSelectedDate()
{
    SwitcherFixture host;
    CalendarMouse mouse(host.calendar());
    mouse.click(otherDate());
    mouse.click(otherDate().addDays(1), Qt::ShiftModifier);
    QCOMPARE(host.calendar()->selectedDates().size(), 2);
    host.log.clear();
    mouse.click(otherDate().addDays(1));
    QCOMPARE(host.taken(), (QStringList{dateRequest(otherDate().addDays(1)), activated}));
    QCOMPARE(host.calendar()->selectedDates(), QList<QDate>{otherDate().addDays(1)});
}

void tst_ZvScheduleSwitcherWidget::pressesAroundTheCells()
{
    SwitcherFixture host(true);
    const auto button = [&host](const char *name) {
        return host.calendar()->findChild<QToolButton *>(QLatin1String(name));
    };
    const auto ask = [&host](const char *what) {
        const QStringList entries = host.taken();
        QVERIFY2(entries.count(dateRequest(today)) == 1,
                 qPrintable(QLatin1String(what) + entries.join(QLatin1Char(','))));
        QVERIFY2(entries.contains(activated), what);
        QVERIFY2(entries.filter(QStringLiteral("requestSwitch")).size() == 1, what);
        QCOMPARE(host.selectedFrames(), QStringLiteral("C"));
        host.switcher->setSelection(SelectionType::DefaultSchedule);
    };
    using namespace NavigationName;
    QTest::mouseClick(host.frame(CalendarFrame), Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    ask("frame");
    QTest::mouseClick(button(CalendarPreviousMonth), Qt::LeftButton);
    ask("previous month");
    QTest::mouseClick(button(CalendarNextMonth), Qt::LeftButton);
    ask("next month");
    for (const char *name : {CalendarMonthButton, CalendarMenuButton}) {
        QTimer::singleShot(0, host.switcher.get(), [] {
            if (QWidget *popup = QApplication::activePopupWidget())
                popup->close();
        });
        QTest::mousePress(button(name), Qt::LeftButton);
        QTest::mouseRelease(button(name), Qt::LeftButton);
        QStringList entries = host.taken();
        entries.removeAll(QStringLiteral("requestEditMenuAboutToShow"));
        QCOMPARE(entries, (QStringList{dateRequest(today), activated}));
        QCOMPARE(host.selectedFrames(), QStringLiteral("C"));
        host.switcher->setSelection(SelectionType::DefaultSchedule);
    }
    // Between the buttons of the bar nothing takes the press before the calendar does.
    auto *bar =
        host.calendar()->findChild<QWidget *>(QLatin1String(NavigationName::CalendarNavigationBar));
    QTest::mouseClick(
        bar, Qt::LeftButton, Qt::NoModifier,
        QPoint(button(CalendarPreviousMonth)->geometry().right() + 6, bar->height() / 2));
    ask("bar");
    QTest::mousePress(button(CalendarYearButton), Qt::LeftButton);
    ask("year");
    QTest::mouseRelease(button(CalendarYearButton), Qt::LeftButton);
    QCOMPARE(host.calendar()->selectedDate(), today);
}

void tst_ZvScheduleSwitcherWidget::arrowKeysAskForNothing()
{
    SwitcherFixture host(true);
    CalendarMouse mouse(host.calendar());
    mouse.click(otherDate());
    host.switcher->setSelection(SelectionType::DefaultSchedule);
    host.log.clear();
    QTest::keyClick(mouse.view(), Qt::Key_Left);
    const QDate moved = otherDate().addDays(-1);
    QCOMPARE(host.calendar()->selectedDate(), moved);
    QCOMPARE(host.calendar()->selectedDates(), QList<QDate>{moved});
    QVERIFY(host.executedTitle().contains(QLocale::system().toString(moved, QLocale::LongFormat)));
    QCOMPARE(host.taken(), QStringList());
    QCOMPARE(host.selectedFrames(), QStringLiteral("D"));
}

void tst_ZvScheduleSwitcherWidget::todayLeadsToToday()
{
    SwitcherFixture host;
    CalendarMouse mouse(host.calendar());
    mouse.click(otherDate());
    mouse.click(otherDate().addDays(2), Qt::ShiftModifier);
    host.calendar()->setCurrentPage(today.year() - 1, today.month());
    host.switcher->setSelection(SelectionType::Week);
    host.log.clear();
    QTest::mousePress(host.today(), Qt::LeftButton);
    QCOMPARE(host.taken(), QStringList{activated});
    QTest::mouseRelease(host.today(), Qt::LeftButton);
    QCOMPARE(host.taken(), (QStringList{dateRequest(today), activated}));
    QCOMPARE(host.selectedFrames(), QStringLiteral("C"));
    QCOMPARE(host.calendar()->selectedDates(), QList<QDate>{today});
    QCOMPARE(host.calendar()->yearShown(), today.year());
    QTest::mouseClick(host.today(), Qt::LeftButton);
    QCOMPARE(host.taken(), (QStringList{activated, dateRequest(today), activated}));
    QCOMPARE(host.calendar()->selectedDates(), QList<QDate>());
}

void tst_ZvScheduleSwitcherWidget::clickOnADay()
{
    SwitcherFixture host;
    const int day = otherDay(today.dayOfWeek());
    QTest::mouseClick(host.cell(day), Qt::LeftButton);
    QCOMPARE(host.taken(), (QStringList{dayRequest(day), activated}));
    QCOMPARE(host.selectedFrames(), QStringLiteral("W"));
    QCOMPARE(host.current(), ZvScheduleBasicInfo(static_cast<Weekday::Days>(day)));
    host.switcher->setSelection(SelectionType::Calendar);
    QTest::mouseClick(host.week(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QCOMPARE(host.taken(), (QStringList{dayRequest(day), activated}));
    QCOMPARE(host.selectedFrames(), QStringLiteral("W"));
    host.switcher->setSelection(SelectionType::Calendar);
    QTest::mousePress(host.cell(otherDay(day)), Qt::LeftButton);
    QTest::mouseRelease(host.cell(otherDay(day)), Qt::LeftButton, Qt::NoModifier, QPoint(-9, 5));
    QCOMPARE(host.taken(), QStringList());
    QCOMPARE(host.selectedFrames(), QStringLiteral("C"));
}

void tst_ZvScheduleSwitcherWidget::pressOnTheDefaultFrame()
{
    SwitcherFixture host;
    for (QWidget *target : {static_cast<QWidget *>(host.frame(NavigationName::DefaultFrame)),
                            static_cast<QWidget *>(host.defaults()),
                            static_cast<QWidget *>(host.defaults()->findChild<QLabel *>())}) {
        host.switcher->setSelection(SelectionType::Calendar);
        QTest::mouseClick(target, Qt::LeftButton);
        QCOMPARE(host.taken(), (QStringList{defaultRequest, activated}));
        QCOMPARE(host.selectedFrames(), QStringLiteral("D"));
    }
    QCOMPARE(host.current(), ZvScheduleBasicInfo(ZvSchedule::Default));
}

void tst_ZvScheduleSwitcherWidget::objectsOfOtherNames()
{
    SwitcherFixture host;
    QObject stranger;
    host.switcher->onObjectSelected(&stranger);
    QCOMPARE(host.taken(), QStringList{activated});
    QCOMPARE(host.selectedFrames(), QString());
    QCOMPARE(host.switcher->currentSelection(), SelectionType::None);
    QCOMPARE(host.switcher->currentScheduleType(), 1);
    QCOMPARE(host.current(), ZvScheduleBasicInfo());
    QCOMPARE(int(host.switcher->hasSelectedItems()), 0);
    QVERIFY(!host.switcher->isPastingPossible());
    stranger.setObjectName(QStringLiteral("calendarwidget"));
    host.switcher->onObjectSelected(&stranger);
    QCOMPARE(host.taken(), QStringList{activated});
    stranger.setObjectName(QStringLiteral("Week of mine"));
    host.switcher->onObjectSelected(&stranger);
    QCOMPARE(host.taken(), (QStringList{dayRequest(today.dayOfWeek()), activated}));
    host.switcher->onObjectSelected(nullptr);
    QCOMPARE(host.taken(), QStringList{activated});
}

// The way back

void tst_ZvScheduleSwitcherWidget::changesToASchedule()
{
    SwitcherFixture host;
    host.switcher->changeCurrentScheduleSelection(ZvScheduleBasicInfo(ZvSchedule::Default));
    QCOMPARE(host.taken(), QStringList{defaultRequest});
    QCOMPARE(host.selectedFrames(), QStringLiteral("D"));
    QCOMPARE(host.switcher->currentScheduleType(), 1);
    host.switcher->changeCurrentScheduleSelection(ZvScheduleBasicInfo(Weekday::Wednesday));
    QCOMPARE(host.taken(), QStringList{dayRequest(3)});
    QCOMPARE(host.selectedFrames(), QStringLiteral("W"));
    QCOMPARE(host.switcher->currentScheduleType(), 3);
    host.switcher->changeCurrentScheduleSelection(ZvScheduleBasicInfo(Weekday::Sunday));
    QCOMPARE(host.taken(), QStringList{dayRequest(7)});
    const QDate date(2031, 5, 9);
    host.switcher->changeCurrentScheduleSelection(ZvScheduleBasicInfo(date));
    QCOMPARE(host.taken(), QStringList{dateRequest(date)});
    QCOMPARE(host.selectedFrames(), QStringLiteral("C"));
    QCOMPARE(host.calendar()->selectedDates(), QList<QDate>{date});
    QCOMPARE(host.switcher->currentScheduleType(), 2);
    QVERIFY(host.executedTitle().contains(QLocale::system().toString(date, QLocale::LongFormat)));
}

void tst_ZvScheduleSwitcherWidget::currentScheduleIsNoChange()
{
    SwitcherFixture host;
    for (const auto &info :
         {ZvScheduleBasicInfo(QDate(2031, 5, 9)), ZvScheduleBasicInfo(Weekday::Friday),
          ZvScheduleBasicInfo(ZvSchedule::Default)}) {
        host.switcher->changeCurrentScheduleSelection(info);
        host.log.clear();
        host.switcher->changeCurrentScheduleSelection(info);
        QCOMPARE(host.taken(), QStringList());
        QCOMPARE(host.current(), info);
    }
}

void tst_ZvScheduleSwitcherWidget::noScheduleSelectsAllFrames()
{
    SwitcherFixture host(true);
    host.switcher->changeCurrentScheduleSelection(ZvScheduleBasicInfo());
    QCOMPARE(host.selectedFrames(), QStringLiteral("CWD"));
    QCOMPARE(host.switcher->currentSelection(), SelectionType::Calendar);
    QCOMPARE(host.taken(), QStringList());
    host.switcher->setSelection(static_cast<SelectionType>(9));
    QCOMPARE(host.selectedFrames(), QStringLiteral("CWD"));
    QTest::mouseClick(host.defaults(), Qt::LeftButton);
    QCOMPARE(host.selectedFrames(), QStringLiteral("D"));
}

void tst_ZvScheduleSwitcherWidget::answersWithTheSelection()
{
    SwitcherFixture host;
    host.switcher->getCurrentScheduleInfo(nullptr);
    CalendarMouse mouse(host.calendar());
    mouse.click(otherDate());
    mouse.click(otherDate().addDays(2), Qt::ShiftModifier);
    QCOMPARE(host.calendar()->selectedDates().size(), 3);
    QCOMPARE(host.current(), ZvScheduleBasicInfo(otherDate().addDays(2)));
}

// The rest

void tst_ZvScheduleSwitcherWidget::activatesItself()
{
    SwitcherFixture host;
    host.switcher->setActivated(false);
    QCOMPARE(host.taken(), QStringList());
    host.switcher->setActivated(true);
    host.switcher->setActivated();
    QCOMPARE(host.log.arguments(1).first().value<QWidget *>(), host.switcher.get());
    QCOMPARE(host.taken(), (QStringList{activated, activated}));
    // A press on what stands for no schedule.
    auto *executed = host.switcher->findChild<ZvScheduledToBeExecutedWidget *>();
    QTest::mouseClick(executed, Qt::LeftButton);
    QCOMPARE(host.taken(), QStringList{activated});
    QWidget *content = host.switcher->widget();
    QTest::mouseClick(content, Qt::LeftButton, Qt::NoModifier,
                      QPoint(content->width() / 2, content->height() - 2));
    QCOMPARE(host.taken(), QStringList{activated});
    QCOMPARE(host.selectedFrames(), QStringLiteral("C"));
    host.switcher->storeCurrentSchedule();
    host.switcher->onEditMenuAboutToShow();
    QCOMPARE(host.taken(), (QStringList{QStringLiteral("requestStoreCurrentSchedule"),
                                        QStringLiteral("requestEditMenuAboutToShow")}));
}

void tst_ZvScheduleSwitcherWidget::leavingEndsTheHighlight()
{
    SwitcherFixture host;
    CalendarMouse mouse(host.calendar());
    mouse.hover(otherDate());
    const QRect cell = mouse.cell(otherDate());
    const auto corner = [&mouse, &cell] {
        return mouse.view()->viewport()->grab(cell).toImage().pixelColor(4, 4);
    };
    const QColor hovered = corner();
    QVERIFY(hovered != QColor(Qt::white));
    auto *outer = host.switcher->findChild<QWidget *>(QStringLiteral("CalendarOuterWidget"));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(outer, &leave);
    QVERIFY(corner() != hovered);
    // The calendar leaves no room for a press there; what comes all the same goes to the frame.
    QTest::mousePress(outer, Qt::LeftButton);
    QCOMPARE(host.taken(), (QStringList{activated, dateRequest(today), activated}));
}

void tst_ZvScheduleSwitcherWidget::frameKnowsItsObjects()
{
    ZvScheduleSwitcherSelectedWidget frame;
    QVERIFY(!frame.isSelected());
    QVERIFY(frame.property("selected").isValid());
    QVERIFY(!frame.containsObject(nullptr));
    auto *label = new QLabel;
    frame.addChildWidget(label);
    QVERIFY(frame.containsObject(label));
    QCOMPARE(frame.layout()->count(), 1);
    auto *inner = new QVBoxLayout;
    auto *deep = new QLabel;
    inner->addWidget(deep);
    frame.addChildLayout(inner);
    QVERIFY(!frame.containsObject(deep));
    frame.addManagedObject(deep);
    frame.addManagedObject(deep);
    QVERIFY(frame.containsObject(deep));
    delete deep;
    QVERIFY(!frame.containsObject(nullptr));
    frame.setSelected(true);
    frame.setSelected(true);
    QVERIFY(frame.property("selected").toBool());
    SignalLog log;
    log.watch(&frame, SIGNAL(clicked(QObject*)));
    QTest::mousePress(&frame, Qt::RightButton);
    QCOMPARE(log.names(), QStringList(QStringLiteral("clicked")));
    QCOMPARE(log.arguments(0).first().value<QObject *>(), &frame);
}

void tst_ZvScheduleSwitcherWidget::frameShowsThatItIsSelected()
{
    SwitcherFixture host;
    QVERIFY(QTest::qWaitForWindowExposed(host.switcher.get()));
    const auto *frame = host.frame(NavigationName::DefaultFrame);
    // What the screen shows, not what a fresh painting would show.
    const auto pixel = [&host, frame](int x, int y) {
        const QPoint place = frame->mapTo(host.switcher.get(), QPoint(x, y));
        return host.switcher->screen()
            ->grabWindow(host.switcher->winId())
            .toImage()
            .pixelColor(place);
    };
    const int middle = frame->height() / 2;
    const QColor resting = pixel(5, middle);
    QCOMPARE(pixel(frame->width() / 2, 0), QColor(64, 64, 64));
    host.switcher->setSelection(SelectionType::DefaultSchedule);
    QTRY_COMPARE(pixel(5, middle), QColor(230, 230, 230));
    for (int x = 0; x < 3; ++x)
        QCOMPARE(pixel(x, middle), QColor(51, 51, 204));
    QCOMPARE(pixel(frame->width() / 2, 0), QColor(128, 128, 128));
    host.switcher->setSelection(SelectionType::Week);
    QTRY_COMPARE(pixel(5, middle), resting);
    QCOMPARE(pixel(1, middle), resting);
}

void tst_ZvScheduleSwitcherWidget::defaultFrameShowsItsMenu()
{
    SwitcherFixture host;
    QMenu menu;
    QAction *copy = menu.addAction(QStringLiteral("Copy"));
    int shown = 0;
    connect(&menu, &QMenu::aboutToShow, &menu, [&] {
        ++shown;
        QTimer::singleShot(0, &menu, [&] { menu.close(); });
    });
    const auto openOn = [](QWidget *widget) {
        const QPoint pos(5, 5);
        QContextMenuEvent event(QContextMenuEvent::Mouse, pos, widget->mapToGlobal(pos));
        QCoreApplication::sendEvent(widget, &event);
    };
    openOn(host.defaults());
    QCOMPARE(shown, 0);
    host.switcher->setEditMenu(&menu);
    openOn(host.defaults()->findChild<QLabel *>());
    QCOMPARE(shown, 1);
    openOn(host.week());
    QCOMPARE(shown, 2);
    const auto menus = host.calendar()->findChildren<QMenu *>(QStringLiteral("Menu_Calendar"));
    QCOMPARE(menus.size(), 1);
    QCOMPARE(menus.first()->actions().first(), copy);
    host.switcher->setEditMenu(nullptr);
    openOn(host.defaults());
    openOn(host.week());
    QCOMPARE(shown, 2);
    QVERIFY(!menus.first()->actions().contains(copy));
}

void tst_ZvScheduleSwitcherWidget::calendarMenuIsAnotherOne()
{
    SwitcherFixture host;
    QMenu *menu = host.switcher->createCalendarMenu();
    QVERIFY(menu);
    QCOMPARE(menu->title(), QStringLiteral("C&alendar"));
    QCOMPARE(menu->objectName(), QStringLiteral("Menu_Calendar"));
    CalendarMouse mouse(host.calendar());
    mouse.click(otherDate());
    host.log.clear();
    menu->actions().first()->trigger();
    QCOMPARE(host.taken(), (QStringList{dateRequest(today), activated}));
}

QTEST_MAIN(tst_ZvScheduleSwitcherWidget)
#include "tst_zvscheduleswitcherwidget.moc"
