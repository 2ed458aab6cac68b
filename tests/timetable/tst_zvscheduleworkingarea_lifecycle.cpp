#include "WorkingAreaFixture.h"

#include "SceneMouse.h"
#include "SignalLog.h"

#include <QComboBox>
#include <QUndoStack>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QList<ZvTime> bands{band("08:00:00", "09:00:00"), band("10:00:00", "11:00:00", "b.xml")};

const char *const itemsMoved =
    SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*));
const char *const noneSelected = SIGNAL(timeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*));
const char *const scenePurged = SIGNAL(graphicsScenePurged(QGraphicsScene*));

} // namespace

/// What a page stands: giving up its scene, dying, and reports that come too late.
class tst_ZvScheduleWorkingAreaLifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsTheSelectionLater();
    void forgetsReportsOfDeadBands();
    void deliversReportsOfBandsThatLive();
    void givesUpTheScene();
    void standsTheLossOfItsScene();
    void takenSceneReportsNothing();
    void standsATakeoverInTheMiddleOfASwitch();
    void standsASceneThatIsDeleted();
    void purgesTheSceneWhenItDies();
    void purgesNothingTwice();
    void standsAReceiverThatDeletesTheSceneAtOnce();
    void diesWithReportsPending();
    void diesWithAKeyMovePending();
    void standsTheLackOfAChannel();
    void deletesItsChannels();
    void standsItsDeathUnderAMessage();
    void standsItsDeathWhileATableIsFilled();
};

void tst_ZvScheduleWorkingAreaLifecycle::reportsTheSelectionLater()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    page.area()->switchToDefaultSchedule();
    page.select({});
    SignalLog log;
    log.watch(page.area(), itemsMoved, "moved");
    log.watch(page.area(), noneSelected, "none");
    page.item(1)->setSelected(true);
    QCOMPARE(log.names(), QStringList());
    WorkingAreaFixture::settle();
    QCOMPARE(log.names(), QStringList(QStringLiteral("moved")));
    page.area()->deselectAllItems();
    QCOMPARE(log.names().size(), 1);
    WorkingAreaFixture::settle();
    QCOMPARE(log.names().last(), QStringLiteral("none"));
    QCOMPARE(log.arguments(1).first().value<ZvScheduleWorkingArea *>(), page.area());
}

void tst_ZvScheduleWorkingAreaLifecycle::forgetsReportsOfDeadBands()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    page.area()->switchToDefaultSchedule();
    page.select({});
    SignalLog log;
    log.watch(page.area(), itemsMoved, "moved");
    page.select({0, 1});
    log.clear();
    SceneMouse mouse(page.view());
    page.look(QStringLiteral("09:00:00"));
    const QPointF from = middleOf(page.item(0));
    mouse.press(from);
    mouse.moveTo(from + QPointF(0.0, 5.0));
    page.area()->removeTimeItems({page.area()->currentTimes().first()});
    mouse.release();
    log.clear();
    const QList<ZvTimeTableTimeItem *> items{page.item(0)};
    page.item(0)->setSelected(false);
    page.item(0)->setSelected(true);
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    WorkingAreaFixture::settle();
    QCOMPARE(log.names(), QStringList());
    page.area()->onTimeTableTimeItemsMoved(items);
    QCOMPARE(log.names(), QStringList());
}

void tst_ZvScheduleWorkingAreaLifecycle::deliversReportsOfBandsThatLive()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    page.area()->switchToDefaultSchedule();
    page.select({});
    SignalLog log;
    log.watch(page.area(), itemsMoved, "moved");
    const QList<ZvTimeTableTimeItem *> items{page.item(1)};
    page.item(1)->setSelected(true);
    page.area()->removeTimeItems({bands.first()});
    WorkingAreaFixture::settle();
    QVERIFY(log.count(QStringLiteral("moved")) >= 1);
    QCOMPARE(log.arguments(0).first().value<QList<ZvTimeTableTimeItem *>>(), items);
}

void tst_ZvScheduleWorkingAreaLifecycle::givesUpTheScene()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    page.area()->switchToDefaultSchedule();
    SignalLog log;
    log.watch(page.area(), scenePurged);
    ZvTimeTableScene *held = page.scene();
    const std::unique_ptr<QGraphicsScene> scene(page.area()->takeScene());
    QCOMPARE(scene.get(), held);
    QVERIFY(!scene->parent());
    QVERIFY(!page.area()->takeScene());
    page.destroy();
    QCOMPARE(log.names(), QStringList());
    QCOMPARE(held->timeZoneItem()->timeItemCount(), 2);
}

void tst_ZvScheduleWorkingAreaLifecycle::standsTheLossOfItsScene()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands), scheduleOf(mondayInfo)});
    page.area()->switchToDefaultSchedule();
    const std::unique_ptr<QGraphicsScene> scene(page.area()->takeScene());
    ZvScheduleWorkingArea *area = page.area();
    SignalLog log;
    log.watch(area, SIGNAL(timeTableTimeItemsMovingFinished(QMap<int,QRectF>,QMap<int,QRectF>)));
    log.watch(area, itemsMoved);

    QCOMPARE(area->currentTimes(), QList<ZvTime>());
    QCOMPARE(area->selectedTimeItems().size(), 0);
    QCOMPARE(area->timeItemsInRange(QTime(0, 0), QTime(23, 59)), QList<ZvTime>());
    QCOMPARE(int(area->hasSelectedItems()), 0);
    QCOMPARE(area->deleteSelectedItems(), QList<ZvTime>());
    QVERIFY(!area->switchSchedule(scheduleOf(mondayInfo, bands)));
    area->insertTimeItems(bands);
    area->removeTimeItems(bands);
    area->selectAllItems();
    area->deselectAllItems();
    area->selectNextTimeItem();
    area->selectPreviousTimeItem();
    area->moveTimeItems({{0, QRectF(10.0, 10.0, 240.0, 5.0)}});
    area->changeTimeItemTimes({{0, bands.first()}});
    area->onMousePressingMoved();
    area->onTimeTableTimeItemsMoved({});
    area->setDefaultStageName(QStringLiteral("d.xml"));
    page.child<QComboBox>()->setCurrentIndex(5);
    area->storeCurrentSchedule();
    area->switchToWeekDaySchedule(Qt::Monday);
    QVERIFY(!area->isCurrentScheduleEnabled());
    QCOMPARE(log.names(), QStringList());
    QCOMPARE(page.storedTexts(defaultInfo), textOf(bands));
    QVERIFY(!area->isChannelChanged());
}

void tst_ZvScheduleWorkingAreaLifecycle::takenSceneReportsNothing()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    page.area()->switchToDefaultSchedule();
    ZvTimeTableScene *held = page.scene();
    const std::unique_ptr<QGraphicsScene> scene(page.area()->takeScene());
    SignalLog log;
    log.watch(page.area(), itemsMoved);
    log.watch(page.area(), noneSelected);
    log.watch(page.area(), SIGNAL(activated()));
    log.watch(page.area(), SIGNAL(scheduleStageCountChanged(ZvScheduleBasicInfo,int)));
    SceneMouse mouse(page.view());
    mouse.click(QPointF(180.0, 100.0));
    held->removeAllTimeItems();
    WorkingAreaFixture::settle();
    QCOMPARE(log.names(), QStringList());
}

void tst_ZvScheduleWorkingAreaLifecycle::standsATakeoverInTheMiddleOfASwitch()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands), scheduleOf(mondayInfo, bands)});
    page.area()->switchToDefaultSchedule();
    std::unique_ptr<QGraphicsScene> scene;
    connect(page.area(), &ZvScheduleWorkingArea::scheduleStageCountChanged, page.area(),
            [&page, &scene] {
                if (!scene)
                    scene.reset(page.area()->takeScene());
            });
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    QVERIFY(scene);
    QVERIFY(!page.area()->isCurrentScheduleEnabled());
    QCOMPARE(page.storedTexts(mondayInfo), textOf(bands));
}

void tst_ZvScheduleWorkingAreaLifecycle::standsASceneThatIsDeleted()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    page.area()->switchToDefaultSchedule();
    delete page.scene();
    WorkingAreaFixture::settle();
    QVERIFY(!page.area()->takeScene());
    QCOMPARE(page.area()->currentTimes(), QList<ZvTime>());
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    QCOMPARE(page.storedTexts(defaultInfo), textOf(bands));
}

void tst_ZvScheduleWorkingAreaLifecycle::purgesTheSceneWhenItDies()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    page.area()->switchToDefaultSchedule();
    SignalLog log;
    log.watch(page.area(), scenePurged, "purged");
    const std::unique_ptr<ZvTimeTableScene> scene(page.scene());
    page.destroy();
    QCOMPARE(log.names(), QStringList(QStringLiteral("purged")));
    QCOMPARE(log.arguments(0).first().value<QGraphicsScene *>(), scene.get());
    QVERIFY(!scene->parent());
    QVERIFY(scene->views().isEmpty());
    QCOMPARE(scene->timeZoneItem()->timeItemCount(), 2);
}

void tst_ZvScheduleWorkingAreaLifecycle::purgesNothingTwice()
{
    WorkingAreaFixture page;
    SignalLog log;
    log.watch(page.area(), scenePurged);
    delete page.area()->takeScene();
    page.destroy();
    QCOMPARE(log.names(), QStringList());
}

void tst_ZvScheduleWorkingAreaLifecycle::standsAReceiverThatDeletesTheSceneAtOnce()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    page.area()->switchToDefaultSchedule();
    const QPointer<QGraphicsScene> scene = page.scene();
    QObject receiver;
    connect(page.area(), &ZvScheduleWorkingArea::graphicsScenePurged, &receiver,
            [](QGraphicsScene *purged) { delete purged; });
    page.destroy();
    QVERIFY(!scene);
}

void tst_ZvScheduleWorkingAreaLifecycle::diesWithReportsPending()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    page.area()->switchToDefaultSchedule();
    const std::unique_ptr<ZvTimeTableScene> scene(page.scene());
    page.item(0)->setSelected(false);
    page.area()->selectAllItems();
    page.area()->deselectAllItems();
    page.destroy();
    WorkingAreaFixture::settle();
    scene->timeZoneItem()->selectAllTimeItems();
    WorkingAreaFixture::settle();
    QCOMPARE(scene->timeZoneItem()->selectedTimeItemCount(), 2);
}

void tst_ZvScheduleWorkingAreaLifecycle::diesWithAKeyMovePending()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    page.area()->switchToDefaultSchedule();
    const std::unique_ptr<ZvTimeTableScene> scene(page.scene());
    QTest::keyClick(page.view(), Qt::Key_Down);
    page.destroy();
    QTest::qWait(150);
    QCOMPARE(scene->timeZoneItem()->times().first().startTime(), QTime(8, 1));
}

void tst_ZvScheduleWorkingAreaLifecycle::standsTheLackOfAChannel()
{
    TemporaryDataFolder folder;
    ZvScheduleWorkingArea area(nullptr);
    const std::unique_ptr<QGraphicsScene> scene(area.findChild<ZvTimeTableView *>()->scene());
    SignalLog log;
    log.watch(&area, SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)));
    log.watch(&area, SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)));
    log.watch(&area, SIGNAL(channelNameChanged(QString,ZvScheduleWorkingArea*)));
    QVERIFY(!area.channel());
    QCOMPARE(area.channelName(), QString());
    QVERIFY(!area.isChannelChanged());
    area.renewSavedChannel();
    area.setTabIndex(2);
    area.changeChannelName(QStringLiteral("x"));
    area.switchToDefaultSchedule();
    QVERIFY(!area.isCurrentScheduleEnabled());
    area.storeCurrentSchedule();
    area.createSchedule(defaultInfo);
    area.removeSchedule(defaultInfo);
    area.insertSchedule({scheduleOf(defaultInfo, bands)});
    QVERIFY(area.defaultSchedule().isEmpty());
    QCOMPARE(area.schedules({defaultInfo}), QList<ZvSchedule>());
    QCOMPARE(log.names(), QStringList());
    area.takeScene();
}

void tst_ZvScheduleWorkingAreaLifecycle::deletesItsChannels()
{
    // The sanitizers see a channel that is left behind or deleted twice; the stack goes as well.
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    const QPointer<QUndoStack> stack = page.area()->undoStack();
    page.area()->renewSavedChannel();
    delete page.area()->takeScene();
    page.destroy();
    QVERIFY(!stack);
}

void tst_ZvScheduleWorkingAreaLifecycle::standsItsDeathUnderAMessage()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    delete page.area()->takeScene();
    QTimer::singleShot(0, page.area(), [&page] { page.destroy(); });
    page.area()->onWarningErrorOccured(QStringLiteral("late"));
    QVERIFY(!page.area());
}

void tst_ZvScheduleWorkingAreaLifecycle::standsItsDeathWhileATableIsFilled()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, bands)});
    // A band without a place is told of by a message.
    page.channel()->scheduleList()[0].setTimeList(bands + bands);
    connect(page.area(), &TimeTablePage::graphicsScenePurged,
            [](const QGraphicsScene *scene) { delete scene; });
    QTimer::singleShot(0, page.area(), [&page] { page.destroy(); });
    page.area()->switchToDefaultSchedule();
    QVERIFY(!page.area());
}

QTEST_MAIN(tst_ZvScheduleWorkingAreaLifecycle)
#include "tst_zvscheduleworkingarea_lifecycle.moc"
