#include "workspace/ScheduleRouter.h"

#include "MainWidgetFixture.h"
#include "SceneMouse.h"
#include "SignalLog.h"

#include "timetable/ZvTimeTableTimeItem.h"

#include <QGraphicsView>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QUndoGroup>
#include <QUndoStack>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QString CreateSchedule = QStringLiteral("Action_Create_Schedule");
const QString DeleteSchedule = QStringLiteral("Action_Delete_Schedule");
const QDate Day(2031, 5, 6);

ZvTime band(int hour, const QString &stage)
{
    return {QTime(hour, 0), QTime(hour + 1, 0), stage};
}

// One channel with two bands, one without a default schedule, one plain.
void makeTabs(MainWidgetFixture &main)
{
    writeChannelFile(main.data, channelFileName(0),
                     {0,
                      0,
                      QStringLiteral("a"),
                      {band(8, QStringLiteral("x.xml")), band(10, QStringLiteral("y.xml"))}});
    writeChannelFile(main.data, channelFileName(1), {1, 1, QStringLiteral("b"), {}, false});
    writeChannelFile(main.data, channelFileName(2), {2, 2, QStringLiteral("c")});
    main.createTabs();
}

} // namespace

class tst_ScheduleRouter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingHappensWithoutTab();
    void tabShowsTheChosenSchedule_data();
    void tabShowsTheChosenSchedule();
    void orderAtTabChange();
    void switchSlots();
    void scheduleActionsFollowTheSchedule();
    void scheduleActionsFollowTheTab();
    void createAndRemoveSchedule();
    void createButtonOfThePage();
    void defaultStage();
    void enabledThroughPointer();
    void storesOnlyAnEnabledSchedule();
    void selection();
    void deletesSelection();
    void relays();
    void pressActivates();
    void asksWhetherActivated();
    void purgedSceneIsPassedOn();
};

void tst_ScheduleRouter::nothingHappensWithoutTab()
{
    MainWidgetFixture main({CreateSchedule, DeleteSchedule});
    ZvScheduleMainWidget &widget = *main.widget;
    widget.switchToDefaultSchedule();
    widget.switchToDayOfWeekSchedule(Qt::Monday);
    widget.switchToDateSchedule(Day);
    widget.createScheduleByCurrentInfo();
    widget.removeScheduleByCurrentInfo();
    widget.setDefaultStageToCurrentSchedule(QStringLiteral("x.xml"));
    widget.onItemPropertyChangedByPropertyWidget();
    widget.removeSelectedItems();
    widget.storeCurrentSchedule();
    widget.selectAllItems();
    widget.deselectAllItems();
    widget.onCurrentScheduleEnabledChanged(true);
    QCOMPARE(int(widget.hasSelectedItems()), 0);
    QVERIFY(!widget.copySelectedItems());
    QVERIFY(!widget.cutSelectedItems());
    QVERIFY(!widget.isPastingPossible());
    QVERIFY(!widget.pasteItems());
    QVERIFY(!widget.undoGroup()->activeStack());
    QVERIFY(main.actions[0]->isEnabled());
}

void tst_ScheduleRouter::tabShowsTheChosenSchedule_data()
{
    QTest::addColumn<ZvScheduleBasicInfo>("choice");
    QTest::newRow("default") << ZvScheduleBasicInfo(ZvSchedule::Default);
    QTest::newRow("date") << ZvScheduleBasicInfo(Day);
    QTest::newRow("day") << ZvScheduleBasicInfo(Weekday::Wednesday);
    QTest::newRow("none") << ZvScheduleBasicInfo();
}

void tst_ScheduleRouter::tabShowsTheChosenSchedule()
{
    QFETCH(ZvScheduleBasicInfo, choice);
    MainWidgetFixture main;
    main.choice = choice;
    makeTabs(main);
    QCOMPARE(main.area(0)->currentScheduleInfo(), choice);
    QCOMPARE(main.area(1)->currentScheduleInfo(), ZvScheduleBasicInfo());
    main.tabs()->setCurrentIndex(1);
    QCOMPARE(main.area(1)->currentScheduleInfo(), choice);
}

void tst_ScheduleRouter::orderAtTabChange()
{
    MainWidgetFixture main;
    makeTabs(main);
    SignalLog log;
    const QObject *widget = main.widget.get();
    log.watch(main.widget->undoGroup(), SIGNAL(activeStackChanged(QUndoStack*)));
    log.watch(widget, SIGNAL(requestCurrentScheduleType(ZvScheduleBasicInfo*)));
    log.watch(widget, SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)));
    log.watch(widget, SIGNAL(currentChannelChanged(const ZvChannel*)));
    connect(main.widget.get(), &ScheduleRouter::timeTableTimeItemsMoved, this,
            [&main](const QList<ZvTimeTableTimeItem *> &items, ZvScheduleWorkingArea *area) {
                QCOMPARE(items.size(), 0);
                QCOMPARE(area, main.area(2));
                QCOMPARE(main.widget->undoGroup()->activeStack(), area->undoStack());
            });
    main.tabs()->setCurrentIndex(2);
    QCOMPARE(log.names(), (QStringList{QStringLiteral("activeStackChanged"),
                                       QStringLiteral("requestCurrentScheduleType"),
                                       QStringLiteral("currentScheduleInfoChanged"),
                                       QStringLiteral("currentChannelChanged")}));
    QCOMPARE(log.arguments(3).first().value<const ZvChannel *>(), main.area(2)->channel());
}

void tst_ScheduleRouter::switchSlots()
{
    MainWidgetFixture main;
    makeTabs(main);
    main.widget->switchToDayOfWeekSchedule(Qt::Sunday);
    QCOMPARE(main.area(0)->currentScheduleInfo(), ZvScheduleBasicInfo(Weekday::Sunday));
    main.widget->switchToDateSchedule(Day);
    QCOMPARE(main.area(0)->currentScheduleInfo(), ZvScheduleBasicInfo(Day));
    main.widget->switchToDefaultSchedule();
    QCOMPARE(main.area(0)->currentScheduleInfo(), ZvScheduleBasicInfo(ZvSchedule::Default));
    QCOMPARE(main.area(0)->currentTimes().size(), 2);
    QCOMPARE(main.area(1)->currentScheduleInfo(), ZvScheduleBasicInfo());
}

void tst_ScheduleRouter::scheduleActionsFollowTheSchedule()
{
    MainWidgetFixture main({CreateSchedule, DeleteSchedule});
    const QAction *create = main.actions[0].get();
    const QAction *remove = main.actions[1].get();
    makeTabs(main);
    QVERIFY(!create->isEnabled());
    QVERIFY(!remove->isEnabled());
    main.widget->switchToDateSchedule(Day);
    QVERIFY(create->isEnabled());
    QVERIFY(!remove->isEnabled());
    main.widget->createScheduleByCurrentInfo();
    QVERIFY(!create->isEnabled());
    QVERIFY(remove->isEnabled());
    main.tabs()->setCurrentIndex(1);
    QVERIFY(create->isEnabled());
    QVERIFY(!remove->isEnabled());
}

// Each page shows the same day already, so none of them reports anything when it comes back.
void tst_ScheduleRouter::scheduleActionsFollowTheTab()
{
    MainWidgetFixture main({CreateSchedule, DeleteSchedule});
    makeTabs(main);
    main.choice = ZvScheduleBasicInfo(Day);
    main.tabs()->setCurrentIndex(2);
    main.widget->createScheduleByCurrentInfo();
    main.tabs()->setCurrentIndex(1);
    for (const int tab : {2, 1, 2}) {
        main.tabs()->setCurrentIndex(tab);
        QCOMPARE(main.actions[0]->isEnabled(), tab == 1);
        QCOMPARE(main.actions[1]->isEnabled(), tab == 2);
    }
    main.tabs()->setCurrentIndex(2);
    main.tabs()->moveTab(2, 1);
    QVERIFY(!main.actions[0]->isEnabled());
}

void tst_ScheduleRouter::createAndRemoveSchedule()
{
    MainWidgetFixture main;
    makeTabs(main);
    QSignalSpy created(main.widget.get(), SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)));
    QSignalSpy removed(main.widget.get(),
                       SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)));
    main.widget->switchToDateSchedule(Day);
    main.widget->createScheduleByCurrentInfo();
    QCOMPARE(created.count(), 1);
    QCOMPARE(created.first().at(0).value<QList<int>>(), QList<int>{1});
    QVERIFY(main.area(0)->hasSchedule(ZvScheduleBasicInfo(Day)));
    main.widget->removeScheduleByCurrentInfo();
    QCOMPARE(removed.count(), 1);
    QVERIFY(!main.area(0)->hasSchedule(ZvScheduleBasicInfo(Day)));
}

void tst_ScheduleRouter::createButtonOfThePage()
{
    MainWidgetFixture main;
    makeTabs(main);
    main.widget->resize(900, 600);
    main.widget->show();
    main.tabs()->setCurrentIndex(1);
    QVERIFY(!main.area(1)->isCurrentScheduleEnabled());
    QToolButton *button = nullptr;
    const auto buttons = main.area(1)->findChildren<QToolButton *>();
    for (QToolButton *candidate : buttons) {
        if (candidate->text() == QStringLiteral("You can create this schedule."))
            button = candidate;
    }
    QVERIFY(button && button->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(main.area(1)->isCurrentScheduleEnabled());
    QVERIFY(!button->isVisible());
}

void tst_ScheduleRouter::defaultStage()
{
    MainWidgetFixture main;
    makeTabs(main);
    QSignalSpy count(main.widget.get(), SIGNAL(scheduleStageCountChanged(ZvScheduleBasicInfo,int)));
    main.widget->setDefaultStageToCurrentSchedule(QStringLiteral("logo.xml"));
    QCOMPARE(main.area(0)->defaultStageName(), QStringLiteral("logo.xml"));
    QCOMPARE(count.count(), 1);
    QCOMPARE(count.first().at(0).value<ZvScheduleBasicInfo>(),
             ZvScheduleBasicInfo(ZvSchedule::Default));
    QCOMPARE(count.first().at(1).toInt(), 3);
}

void tst_ScheduleRouter::enabledThroughPointer()
{
    MainWidgetFixture main;
    bool enabled = true;
    main.widget->isCurrentScheduleEnabled(&enabled);
    QVERIFY(!enabled);
    makeTabs(main);
    main.widget->isCurrentScheduleEnabled(&enabled);
    QVERIFY(enabled);
    main.widget->switchToDateSchedule(Day);
    main.widget->isCurrentScheduleEnabled(&enabled);
    QVERIFY(!enabled);
    main.widget->isCurrentScheduleEnabled(nullptr);
}

void tst_ScheduleRouter::storesOnlyAnEnabledSchedule()
{
    MainWidgetFixture main;
    makeTabs(main);
    main.area(0)->setDefaultStageName(QStringLiteral("logo.xml"));
    QVERIFY(!main.area(0)->isChannelChanged());
    main.widget->storeCurrentSchedule();
    QVERIFY(main.area(0)->isChannelChanged());
    main.tabs()->setCurrentIndex(2);
    main.widget->switchToDateSchedule(Day);
    main.widget->storeCurrentSchedule();
    QVERIFY(!main.area(2)->hasSchedule(ZvScheduleBasicInfo(Day)));
    QVERIFY(!main.area(2)->isChannelChanged());
}

void tst_ScheduleRouter::selection()
{
    MainWidgetFixture main;
    makeTabs(main);
    main.widget->deselectAllItems();
    QCOMPARE(int(main.widget->hasSelectedItems()), 8);
    main.widget->selectAllItems();
    QCOMPARE(int(main.widget->hasSelectedItems()), 23);
    QCOMPARE(main.area(0)->selectedTimeItems().size(), 2);
    main.tabs()->setCurrentIndex(2);
    QCOMPARE(int(main.widget->hasSelectedItems()), 8);
    std::vector<std::unique_ptr<QGraphicsScene>> scenes;
    for (QGraphicsScene *scene : main.widget->takeGraphicsScenes())
        scenes.emplace_back(scene);
    QCOMPARE(int(main.widget->hasSelectedItems()), 0);
}

void tst_ScheduleRouter::deletesSelection()
{
    MainWidgetFixture main;
    makeTabs(main);
    main.widget->selectAllItems();
    main.widget->removeSelectedItems();
    QVERIFY(main.area(0)->currentTimes().isEmpty());
    QCOMPARE(int(main.widget->hasSelectedItems()), 8);
}

void tst_ScheduleRouter::relays()
{
    MainWidgetFixture main;
    makeTabs(main);
    QCoreApplication::processEvents();
    SignalLog log;
    const QObject *widget = main.widget.get();
    log.watch(widget, SIGNAL(timeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*)));
    log.watch(widget,
              SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)));
    main.widget->deselectAllItems();
    QCoreApplication::processEvents();
    QCOMPARE(log.count(QStringLiteral("timeTableTimeItemHasNotSelected")), 1);
    QCOMPARE(log.arguments(0).first().value<ZvScheduleWorkingArea *>(), main.area(0));
    main.widget->selectAllItems();
    QCoreApplication::processEvents();
    QVERIFY(log.count(QStringLiteral("timeTableTimeItemsMoved")) > 0);
}

void tst_ScheduleRouter::pressActivates()
{
    MainWidgetFixture main;
    makeTabs(main);
    main.widget->resize(900, 600);
    main.widget->show();
    QSignalSpy activated(main.widget.get(), SIGNAL(activated(QWidget*)));
    SceneMouse mouse(main.area(0)->findChild<QGraphicsView *>());
    mouse.click(QPointF(50, 100));
    QCOMPARE(activated.count(), 1);
    QCOMPARE(activated.first().first().value<QWidget *>(), main.widget.get());
    QTest::mousePress(main.widget.get(), Qt::LeftButton);
    QCOMPARE(activated.count(), 2);
    QCOMPARE(activated.last().first().value<QWidget *>(), main.widget.get());
}

void tst_ScheduleRouter::asksWhetherActivated()
{
    MainWidgetFixture main;
    const QWidget *asked = nullptr;
    connect(main.widget.get(), &ScheduleRouter::requestIsActivatedWidget, this,
            [&asked](const QWidget *widget, bool *activated) {
                asked = widget;
                *activated = true;
            });
    bool activated = false;
    Q_EMIT main.tabs()->requestIsActivatedWidget(&activated);
    QVERIFY(activated);
    QCOMPARE(asked, static_cast<const QWidget *>(main.widget.get()));
}

void tst_ScheduleRouter::purgedSceneIsPassedOn()
{
    MainWidgetFixture main;
    makeTabs(main);
    delete main.area(1);
    QCOMPARE(int(main.purgedScenes.size()), 1);
    QCOMPARE(main.tabs()->count(), 2);
    main.widget->saveCurrentChannel();
}

QTEST_MAIN(tst_ScheduleRouter)
#include "tst_schedulerouter.moc"
