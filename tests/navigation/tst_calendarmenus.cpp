#include "CalendarMouse.h"
#include "SignalLog.h"
#include "ZvSystemInfo.h"
#include "domain/ToolButtonStyle.h"
#include "navigation/CalendarMenu.h"
#include "navigation/CalendarNavigationBar.h"
#include "navigation/ZvCalendarWidget.h"

#include <QBoxLayout>
#include <QContextMenuEvent>
#include <QProcess>
#include <QSpinBox>
#include <QTextStream>
#include <QToolButton>
#include <QtTest>

using namespace Zavo;
using ZavoTest::CalendarMouse;
using ZavoTest::SignalLog;

namespace {

/// Makes this program tell how the bar looks in the locale of its environment.
constexpr char BarArgument[] = "--bar";

QStringList textsOf(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        texts.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    return texts;
}

QStringList checkedTexts(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions) {
        if (action->isCheckable() && action->isChecked())
            texts.append(action->text());
    }
    return texts;
}

QAction *entry(const QMenu *menu, const char *text)
{
    return menu->actions().value(textsOf(menu).indexOf(QLatin1String(text)));
}

const QStringList calendarTexts{
    QStringLiteral("Move to &Today"),     QStringLiteral("-"),
    QStringLiteral("Select &Week"),       QStringLiteral("Select &Month"),
    QStringLiteral("Clear &Selections"),  QStringLiteral("-"),
    QStringLiteral("&First Day of Week"), QStringLiteral("Show Week &Number")};

/// Names of the bar's widgets from left to right.
QStringList barOrder(const QWidget *calendar)
{
    const auto *bar = calendar->findChild<QWidget *>(QStringLiteral("qt_calendar_navigationbar"));
    QStringList names;
    for (int i = 0; i < bar->layout()->count(); ++i) {
        if (const QWidget *widget = bar->layout()->itemAt(i)->widget())
            names.append(widget->objectName().section(QLatin1Char('_'), -1));
    }
    return names;
}

void printBar()
{
    ZvCalendarWidget calendar;
    calendar.show();
    const auto *year = calendar.findChild<QToolButton *>(QStringLiteral("qt_calendar_yearbutton"));
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    calendar.setCurrentPage(2031, 5);
    calendar.grab();
    QCoreApplication::processEvents();
    out << year->text() << '\n' << barOrder(&calendar).join(QLatin1Char(' ')) << '\n';
}

} // namespace

class tst_CalendarMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hasItsEntries();
    void entriesDoTheirWork();
    void firstDayOfWeek();
    void firstDayIgnoresOthers();
    void weekNumbers();
    void keepsBothMenusInStep();
    void clearsOnlyASelectionOfMany();
    void asksForTheEditMenuBeforeEitherIsShown();
    void standsTheDeathOfTheOtherMenu();

    void showsTheEditMenuFirst();
    void exchangesTheEditMenu();
    void addsEditActionsToAnEmptyMenu();
    void opensAtTheMouse();

    void barIsDressed();
    void barButtonsClickTheCalendar();
    void monthMenuChecksTheMonthShown();
    void yearBeingTypedKeepsOtherPresses();
    void iconsFollowTheScreen();
    void arrowsFollowTheDirection();
    void doesWithoutABar();

    void yearName_data();
    void yearName();
    void yearFirst_data();
    void yearFirst();

private:
    QMenu *menu() const { return button("zv_calendar_menubutton")->menu(); }
    QMenu *daysOf(const QMenu *menu) const;
    QToolButton *button(const char *name) const
    {
        return m_calendar->findChild<QToolButton *>(QLatin1String(name));
    }

    QScopedPointer<ZvCalendarWidget> m_calendar;
    QScopedPointer<CalendarMouse> m_mouse;
    QScopedPointer<SignalLog> m_log;
};

void tst_CalendarMenus::init()
{
    m_calendar.reset(new ZvCalendarWidget);
    m_calendar->resize(400, 300);
    m_calendar->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_calendar.data()));
    m_calendar->setSelectedDate(QDate(2025, 7, 10));
    m_calendar->setFirstDayOfWeek(Qt::Sunday);
    m_mouse.reset(new CalendarMouse(m_calendar.data()));
    m_log.reset(new SignalLog);
    m_log->watch(m_calendar.data(), SIGNAL(clicked(QObject*)));
    m_log->watch(m_calendar.data(), SIGNAL(requestEditMenuAboutToShow()));
    m_log->watch(m_calendar.data(), SIGNAL(dpiRatioChanged(double)));
}

void tst_CalendarMenus::cleanup()
{
    m_log.reset();
    m_mouse.reset();
    m_calendar.reset();
    ZvSystemInfo::setDpiRatioOverride(0);
}

QMenu *tst_CalendarMenus::daysOf(const QMenu *menu) const
{
    return menu->findChild<QMenu *>(QStringLiteral("Menu_First_Day_Of_Week"));
}

void tst_CalendarMenus::hasItsEntries()
{
    QScopedPointer<QMenu> second(m_calendar->createMenu());
    for (const QMenu *each : {menu(), second.data()}) {
        QCOMPARE(each->title(), QStringLiteral("C&alendar"));
        QCOMPARE(each->objectName(), QStringLiteral("Menu_Calendar"));
        QCOMPARE(textsOf(each), calendarTexts);
        QCOMPARE(entry(each, "Clear &Selections")->objectName(),
                 QStringLiteral("Action_ClearSelections"));
        QCOMPARE(entry(each, "Show Week &Number")->objectName(),
                 QStringLiteral("Action_ShowWeekNumber"));
        QVERIFY(entry(each, "Show Week &Number")->isChecked());
        QCOMPARE(entry(each, "&First Day of Week")->menu(), daysOf(each));
        QCOMPARE(textsOf(daysOf(each)),
                 QStringLiteral("Mon Tue Wed Thu Fri Sat Sun").split(QLatin1Char(' ')));
        QCOMPARE(daysOf(each)->actions().at(2)->objectName(),
                 QStringLiteral("Action_FirstDayOfWeek_3"));
    }
    QCOMPARE(checkedTexts(daysOf(second.data())), QStringList{QStringLiteral("Sun")});
    QVERIFY(second.data() != menu());
}

void tst_CalendarMenus::entriesDoTheirWork()
{
    entry(menu(), "Select &Week")->trigger();
    QCOMPARE(m_calendar->selectedDates().size(), 7);
    entry(menu(), "Select &Month")->trigger();
    QCOMPARE(m_calendar->selectedDates().size(), 31);
    entry(menu(), "Clear &Selections")->trigger();
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>{QDate(2025, 7, 10)});
    QCOMPARE(m_log->names(), QStringList());
    entry(menu(), "Move to &Today")->trigger();
    QCOMPARE(m_calendar->selectedDate(), QDate::currentDate());
    QCOMPARE(m_log->names(), QStringList{QStringLiteral("clicked")});
}

void tst_CalendarMenus::firstDayOfWeek()
{
    const QList<QAction *> actions = daysOf(menu())->actions();
    QMetaObject::invokeMethod(menu(), "aboutToShow");
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        actions.at(day - 1)->trigger();
        QCOMPARE(static_cast<int>(m_calendar->firstDayOfWeek()), day);
        QCOMPARE(checkedTexts(daysOf(menu())), QStringList{actions.at(day - 1)->text()});
    }
    // Chosen once more it stays.
    actions.at(6)->trigger();
    QCOMPARE(checkedTexts(daysOf(menu())), QStringList{QStringLiteral("Sun")});
    QCOMPARE(m_calendar->firstDayOfWeek(), Qt::Sunday);
}

void tst_CalendarMenus::firstDayIgnoresOthers()
{
    const auto choose = [this](QAction *action) {
        QMetaObject::invokeMethod(m_calendar.data(), "onActionFirstDayOfWeekTriggerd",
                                  Q_ARG(QAction*, action));
    };
    choose(nullptr);
    QAction homeless;
    homeless.setObjectName(QStringLiteral("Action_FirstDayOfWeek_3"));
    choose(&homeless);
    QMenu other;
    for (const char *name : {"", "Action", "Action_FirstDayOfWeek_", "Day_0", "Day_8", "Day_9"}) {
        QAction *action = other.addAction(QLatin1String(name));
        action->setObjectName(QLatin1String(name));
        choose(action);
    }
    QCOMPARE(m_calendar->firstDayOfWeek(), Qt::Sunday);
    QAction *plain = other.addAction(QStringLiteral("plain"));
    plain->setObjectName(QStringLiteral("Other"));
    plain->setCheckable(true);
    plain->setChecked(true);
    QAction *wednesday = other.addAction(QStringLiteral("Wednesday"));
    wednesday->setObjectName(QStringLiteral("Day_3"));
    wednesday->setCheckable(true);
    choose(wednesday);
    QCOMPARE(m_calendar->firstDayOfWeek(), Qt::Wednesday);
    QVERIFY(wednesday->isChecked());
    QVERIFY(plain->isChecked());
}

void tst_CalendarMenus::weekNumbers()
{
    QAction *action = entry(menu(), "Show Week &Number");
    action->trigger();
    QCOMPARE(m_calendar->verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
    m_mouse->click(m_mouse->firstDate());
    QCOMPARE(m_calendar->selectedDate(), QDate(2025, 6, 29));
    action->trigger();
    QCOMPARE(m_calendar->verticalHeaderFormat(), QCalendarWidget::ISOWeekNumbers);
    QVERIFY(action->isChecked());
}

void tst_CalendarMenus::keepsBothMenusInStep()
{
    const QMenu *second = m_calendar->createMenu();
    daysOf(second)->actions().at(3)->trigger();
    entry(second, "Show Week &Number")->trigger();
    menu()->popup(QPoint());
    QCOMPARE(checkedTexts(daysOf(menu())), QStringList{QStringLiteral("Thu")});
    QCOMPARE(checkedTexts(menu()), QStringList());
    menu()->hide();
    daysOf(menu())->actions().at(4)->trigger();
    entry(menu(), "Show Week &Number")->trigger();
    menu()->popup(QPoint());
    menu()->hide();
    QCOMPARE(checkedTexts(daysOf(second)), QStringList{QStringLiteral("Fri")});
    QCOMPARE(checkedTexts(second), QStringList{QStringLiteral("Show Week &Number")});
}

void tst_CalendarMenus::clearsOnlyASelectionOfMany()
{
    const QMenu *second = m_calendar->createMenu();
    const auto isEnabled = [this, second] {
        menu()->popup(QPoint());
        menu()->hide();
        return entry(menu(), "Clear &Selections")->isEnabled() &&
               entry(second, "Clear &Selections")->isEnabled();
    };
    QVERIFY(!isEnabled());
    m_mouse->click(QDate(2025, 7, 11), Qt::ControlModifier);
    QVERIFY(isEnabled());
    m_mouse->click(QDate(2025, 7, 11));
    QVERIFY(!isEnabled());
    m_mouse->click(QDate(2025, 7, 11), Qt::ControlModifier);
    QCOMPARE(m_calendar->selectedDates(), QList<QDate>());
    QVERIFY(!isEnabled());
    m_mouse->releaseKeys();
}

void tst_CalendarMenus::asksForTheEditMenuBeforeEitherIsShown()
{
    QMenu *second = m_calendar->createMenu();
    for (QMenu *each : {menu(), second}) {
        m_log->clear();
        each->popup(QPoint());
        each->hide();
        QCOMPARE(m_log->names(), QStringList{QStringLiteral("requestEditMenuAboutToShow")});
    }
}

void tst_CalendarMenus::standsTheDeathOfTheOtherMenu()
{
    delete m_calendar->createMenu();
    menu()->popup(QPoint());
    menu()->hide();
    QCOMPARE(m_log->names(), QStringList{QStringLiteral("requestEditMenuAboutToShow")});
    const QPointer<QMenu> owned(m_calendar->createMenu());
    m_log.reset();
    m_mouse.reset();
    m_calendar.reset();
    QVERIFY(!owned);
    init();
}

void tst_CalendarMenus::showsTheEditMenuFirst()
{
    QMenu *second = m_calendar->createMenu();
    QMenu edit;
    edit.addAction(QStringLiteral("Cut"));
    edit.addSeparator();
    edit.addAction(QStringLiteral("Delete"));
    m_calendar->setEditMenu(&edit);
    const QStringList withEdit = QStringList{QStringLiteral("Cut"), QStringLiteral("-"),
                                             QStringLiteral("Delete"), QStringLiteral("-")} +
                                 calendarTexts;
    QCOMPARE(textsOf(menu()), withEdit);
    QCOMPARE(textsOf(second), calendarTexts);
    QCOMPARE(menu()->actions().constFirst(), edit.actions().constFirst());
    m_calendar->setEditMenu(&edit);
    QCOMPARE(textsOf(menu()), withEdit);
    m_calendar->setEditMenu(nullptr);
    QCOMPARE(textsOf(menu()), calendarTexts);
    QCOMPARE(edit.actions().size(), 3);
}

void tst_CalendarMenus::exchangesTheEditMenu()
{
    QMenu first;
    first.addAction(QStringLiteral("Cut"));
    QMenu other;
    other.addAction(QStringLiteral("Copy"));
    const QStringList withOther =
        QStringList{QStringLiteral("Copy"), QStringLiteral("-")} + calendarTexts;
    m_calendar->setEditMenu(&first);
    m_calendar->setEditMenu(&other);
    QCOMPARE(textsOf(menu()), withOther);
    // The one before may be dead.
    auto *dying = new QMenu;
    dying->addAction(QStringLiteral("Cut"));
    m_calendar->setEditMenu(dying);
    delete dying;
    m_calendar->setEditMenu(&other);
    QCOMPARE(textsOf(menu()), withOther);
}

void tst_CalendarMenus::addsEditActionsToAnEmptyMenu()
{
    QMenu empty;
    QMenu edit;
    edit.addAction(QStringLiteral("Cut"));
    exchangeEditActions(&empty, nullptr, &edit);
    QCOMPARE(textsOf(&empty), QStringList{QStringLiteral("Cut")});
    exchangeEditActions(&empty, &edit, nullptr);
    QCOMPARE(textsOf(&empty), QStringList());
}

void tst_CalendarMenus::opensAtTheMouse()
{
    QWidget *viewport = m_mouse->view()->viewport();
    const QPoint position = m_mouse->cell(QDate(2025, 7, 16)).center();
    QPoint shownAt;
    QTimer::singleShot(0, this, [this, &shownAt] {
        shownAt = menu()->pos();
        QTest::keyClick(menu(), Qt::Key_Escape);
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, viewport->mapToGlobal(position));
    QCoreApplication::sendEvent(viewport, &event);
    QCOMPARE(shownAt, viewport->mapToGlobal(position));
    QCOMPARE(m_log->names(), QStringList{QStringLiteral("requestEditMenuAboutToShow")});
}

void tst_CalendarMenus::barIsDressed()
{
    auto *bar = m_calendar->findChild<QWidget *>(QStringLiteral("qt_calendar_navigationbar"));
    QCOMPARE(bar->styleSheet(),
             QStringLiteral("QWidget#qt_calendar_navigationbar{color: black;font-weight: bold;"
                            "background-color: lightgray;}") +
                 QLatin1String(ToolButtonStyle));
    QCOMPARE(barOrder(m_calendar.data()),
             QStringLiteral("prevmonth monthbutton yearbutton menubutton nextmonth")
                 .split(QLatin1Char(' ')));
    const QToolButton *menuButton = button("zv_calendar_menubutton");
    QCOMPARE(menuButton->minimumWidth(), 32);
    QCOMPARE(menuButton->popupMode(), QToolButton::InstantPopup);
    QCOMPARE(menuButton->autoRaise(), button("qt_calendar_nextmonth")->autoRaise());
    QVERIFY(!menuButton->icon().isNull());
    const auto imageOf = [](const QIcon &icon) { return icon.pixmap(16, 16).toImage(); };
    QCOMPARE(imageOf(button("qt_calendar_prevmonth")->icon()),
             imageOf(QIcon(QStringLiteral(":/images/arrow_simple_left.svg"))));
    QCOMPARE(imageOf(button("qt_calendar_nextmonth")->icon()),
             imageOf(QIcon(QStringLiteral(":/images/arrow_simple_right.svg"))));
    QImage image(bar->size(), QImage::Format_RGB32);
    bar->render(&image);
    QCOMPARE(image.pixelColor(bar->width() / 4, 1), QColor(QStringLiteral("lightgray")));
}

void tst_CalendarMenus::barButtonsClickTheCalendar()
{
    const auto closeMenu = [this](const char *name) {
        QTimer::singleShot(0, this, [this, name] { button(name)->menu()->hide(); });
    };
    const QStringList once{QStringLiteral("clicked")};
    for (const char *name : {"qt_calendar_prevmonth", "qt_calendar_nextmonth"}) {
        m_log->clear();
        QTest::mouseClick(button(name), Qt::LeftButton);
        QCOMPARE(m_log->names(), once);
    }
    m_log->clear();
    closeMenu("qt_calendar_monthbutton");
    QTest::mouseClick(button("qt_calendar_monthbutton"), Qt::LeftButton);
    QCOMPARE(m_log->names(), once);
    m_log->clear();
    closeMenu("zv_calendar_menubutton");
    QTest::mouseClick(button("zv_calendar_menubutton"), Qt::LeftButton);
    QCOMPARE(m_log->names(), once + QStringList{QStringLiteral("requestEditMenuAboutToShow")});
    m_log->clear();
    QTest::mousePress(button("qt_calendar_yearbutton"), Qt::LeftButton);
    QCOMPARE(m_log->names(), once);
    QTest::mouseRelease(button("qt_calendar_yearbutton"), Qt::LeftButton);
    QCOMPARE(m_log->names(), once);
    for (const char *slot : {"onWidgetClicked()", "onWidgetClicked(QPoint)"})
        QVERIFY(m_calendar->metaObject()->indexOfSlot(slot) >= 0);
    m_log->clear();
    m_calendar->onWidgetClicked(QPoint(3, 4));
    QCOMPARE(m_log->names(), once);
    QCOMPARE(m_log->arguments(0).value(0).value<QObject *>(),
             static_cast<QObject *>(m_calendar.data()));
}

void tst_CalendarMenus::monthMenuChecksTheMonthShown()
{
    QMenu *months = button("qt_calendar_monthbutton")->menu();
    const auto checked = [this, months] {
        months->popup(QPoint());
        months->hide();
        return checkedTexts(months);
    };
    QCOMPARE(checked(), QStringList{months->actions().at(6)->text()});
    months->actions().at(1)->trigger();
    QCOMPARE(m_calendar->monthShown(), 2);
    QCOMPARE(checked(), QStringList{months->actions().at(1)->text()});
    months->actions().at(1)->trigger();
    QCOMPARE(checked(), QStringList{months->actions().at(1)->text()});
    QCOMPARE(m_calendar->selectedDate(), QDate(2025, 7, 10));
}

// The base class then filters every object of the program.
void tst_CalendarMenus::yearBeingTypedKeepsOtherPresses()
{
    QWidget other;
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    m_calendar->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_calendar.data()));
    QTest::mouseClick(button("qt_calendar_yearbutton"), Qt::LeftButton);
    auto *edit = m_calendar->findChild<QSpinBox *>(QStringLiteral("qt_calendar_yearedit"));
    QVERIFY(edit->isVisible());
    m_log->clear();
    QTest::mouseClick(&other, Qt::LeftButton);
    QCOMPARE(m_log->names(), QStringList());
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("2027"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(m_calendar->yearShown(), 2027);
    QVERIFY(!edit->isVisible());
}

void tst_CalendarMenus::iconsFollowTheScreen()
{
    const char *const names[] = {"qt_calendar_prevmonth", "zv_calendar_menubutton",
                                 "qt_calendar_nextmonth"};
    const QSize usual = button("qt_calendar_prevmonth")->iconSize();
    ZvSystemInfo::setDpiRatioOverride(1.5);
    m_calendar->resize(401, 300);
    QCOMPARE(m_log->names(), QStringList{QStringLiteral("dpiRatioChanged")});
    QCOMPARE(m_log->arguments(0), QVariantList{1.5});
    QCOMPARE(button("qt_calendar_prevmonth")->iconSize(), usual);
    QCoreApplication::processEvents();
    for (const char *name : names)
        QCOMPARE(button(name)->iconSize(), QSize(24, 24));
    m_calendar->resize(402, 300);
    QCOMPARE(m_log->names().size(), 1);
    m_calendar->hide();
    ZvSystemInfo::setDpiRatioOverride(2.0);
    m_calendar->show();
    QCoreApplication::processEvents();
    for (const char *name : names)
        QCOMPARE(button(name)->iconSize(), QSize(32, 32));
    QCOMPARE(m_log->names().size(), 2);
}

void tst_CalendarMenus::arrowsFollowTheDirection()
{
    const auto previous = [this] {
        return button("qt_calendar_prevmonth")->icon().pixmap(16, 16).toImage();
    };
    const auto image = [](const QString &path) { return QIcon(path).pixmap(16, 16).toImage(); };
    m_calendar->setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(previous(), image(QStringLiteral(":/images/arrow_simple_right.svg")));
    m_calendar->setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(previous(), image(QStringLiteral(":/images/arrow_simple_left.svg")));
}

void tst_CalendarMenus::doesWithoutABar()
{
    const QWidget plain;
    CalendarNavigationBar bar(&plain);
    QMenu none;
    bar.addMenuButton(&none);
    bar.placeYear(QStringLiteral("2031年5月"), 2031);
    bar.completeYearText();
    bar.setIconRatio(2.0);
    QVERIFY(!bar.menuButton() && !bar.yearButton() && !bar.monthButton());
    delete m_calendar->findChild<QWidget *>(QStringLiteral("qt_calendar_navigationbar"));
    ZvSystemInfo::setDpiRatioOverride(2.0);
    m_calendar->resize(420, 300);
    QCoreApplication::processEvents();
    m_mouse->hover(QDate(2025, 7, 9));
}

void tst_CalendarMenus::yearName_data()
{
    QTest::addColumn<QString>("longDate");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QString &longDate, const QString &expected) {
        QTest::newRow(name) << longDate << expected;
    };
    row("Japanese", QStringLiteral("2031年5月4日日曜日"), QStringLiteral("年"));
    row("Korean", QStringLiteral("2031년 5월 4일 일요일"), QStringLiteral("년 "));
    row("day first", QStringLiteral("Sunday, 4 May 2031"), QString());
    row("digits alone", QStringLiteral("20310504"), QString());
    row("nothing behind", QStringLiteral("2031"), QString());
    row("no digit behind", QStringLiteral("2031 AD"), QStringLiteral(" AD"));
    row("another year", QStringLiteral("2032年5月4日"), QString());
    row("nothing", QString(), QString());
}

void tst_CalendarMenus::yearName()
{
    QFETCH(QString, longDate);
    QTEST(CalendarNavigationBar::yearName(longDate, 2031), "expected");
}

void tst_CalendarMenus::yearFirst_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("year");
    QTest::addColumn<bool>("first");
    const auto row = [](const char *language, const QString &year, bool first) {
        QTest::newRow(language) << QString::fromLatin1(language) << year << first;
    };
    row("ja_JP.UTF-8", QStringLiteral("2031年"), true);
    row("zh_CN.UTF-8", QStringLiteral("2031年"), true);
    row("en_US.UTF-8", QStringLiteral("2031"), false);
    row("de_DE.UTF-8", QStringLiteral("2031"), false);
}

void tst_CalendarMenus::yearFirst()
{
    QFETCH(QString, language);
    QFETCH(bool, first);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), language);
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {QLatin1String(BarArgument)});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    const QStringList lines =
        QString::fromUtf8(program.readAllStandardOutput()).split(QLatin1Char('\n'));
    QTEST(lines.value(0), "year");
    QCOMPARE(lines.value(1), first ? QStringLiteral("prevmonth yearbutton monthbutton menubutton "
                                                    "nextmonth")
                                   : QStringLiteral("prevmonth monthbutton yearbutton menubutton "
                                                    "nextmonth"));
}

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], BarArgument) == 0) {
        printBar();
        return 0;
    }
    tst_CalendarMenus test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_calendarmenus.moc"
