#include "BandText.h"
#include "SignalLog.h"

#include <QFont>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsTextItem>
#include <QtTest>

using namespace Zavo;
using ZavoTest::at;
using ZavoTest::band;
using ZavoTest::markOf;
using ZavoTest::SignalLog;
using ZavoTest::textOf;
using ZavoTest::TimeTableFixture;
using ZavoTest::yOf;

namespace {

QStringList names(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

QList<ZvTime> threeBands()
{
    return {band("08:00:00", "09:00:00", "A"), band("10:00:00", "11:00:00", "B"),
            band("13:00:00", "14:00:00", "C")};
}

void watchAll(SignalLog &log, const ZvTimeTableScene *scene)
{
    log.watch(scene, SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem *>)), "moved");
    log.watch(scene, SIGNAL(timeTableTimeItemHasNotSelected()), "none");
    log.watch(scene, SIGNAL(mousePressed()), "pressed");
    log.watch(scene, SIGNAL(mousePressingMoved()), "released");
}

void sendMouse(ZvTimeTableScene *scene, QEvent::Type type, const QPointF &scenePos)
{
    QGraphicsSceneMouseEvent event(type);
    event.setButton(Qt::LeftButton);
    event.setButtons(type == QEvent::GraphicsSceneMouseRelease ? Qt::NoButton : Qt::LeftButton);
    event.setScenePos(scenePos);
    QCoreApplication::sendEvent(scene, &event);
}

bool handlesVisible(const ZvTimeTableTimeItem *item)
{
    return item->topHandle()->isVisible() && item->bottomHandle()->isVisible();
}

} // namespace

class tst_ZvTimeTableScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void construction();
    void withoutItems();
    void selectionIsReportedByIndex();
    void handlesShowForASingleSelection();
    void disabledSelectionIsIgnored();
    void disabledState();
    void bulkChangesGiveOnePass();
    void removalsReportNoMove();
    void removeSelected();
    void removeSelectedWhileDisabled();
    void itemsInRange_data();
    void itemsInRange();
    void itemsInRangeOfAnOddOrder();
    void scalesReachTheItems();
    void moveSignals();
    void moveOfASingleBand();
    void moveOfAGroup_data();
    void moveOfAGroup();
    void moveAtTheEndOfTheDay();
    void handleHitAreas_data();
    void handleHitAreas();
    void shortBandsHaveNoHitArea();
    void releaseIsComparedWithThePress_data();
    void releaseIsComparedWithThePress();
    void diesQuietly();
};

void tst_ZvTimeTableScene::initTestCase()
{
    qRegisterMetaType<QList<ZvTimeTableTimeItem *>>("QList<ZvTimeTableTimeItem*>");
}

void tst_ZvTimeTableScene::construction()
{
    ZvTimeTableScene scene;
    QCOMPARE(scene.font().family(), QStringLiteral("Yu Gothic UI"));
    QCOMPARE(scene.font().pointSizeF(), 9.0);
    QCOMPARE(scene.backgroundBrush(), QBrush(QColor(250, 250, 250, 255)));
    QCOMPARE(scene.verticalScale(), 1.0);
    QVERIFY(!scene.baseItem());
    QVERIFY(!scene.timeZoneItem());
    QVERIFY(scene.selectedTimeItems().isEmpty());
    QVERIFY(!scene.isDesabeleSelectionChanged());

    auto *base = new ZvTimeTableBaseItem;
    scene.setBaseItem(base);
    QCOMPARE(scene.baseItem(), base);
    QCOMPARE(base->scene(), &scene);
}

void tst_ZvTimeTableScene::withoutItems()
{
    ZvTimeTableScene scene;
    SignalLog log;
    watchAll(log, &scene);
    QVERIFY(!scene.insertTimeItems(threeBands()));
    scene.removeAllTimeItems();
    scene.removeTimeItems(threeBands());
    QVERIFY(scene.removeSelectedTimeItems().isEmpty());
    QVERIFY(scene.timeItemsInRange(at("00:00:00"), at("24:00:00")).isEmpty());
    QVERIFY(!scene.moveSelectedTimeItems(QPointF(0.0, 5.0), QPointF()));
    QCOMPARE(scene.resizeHandleAt(QPointF(100.0, 100.0)), ZvTimeTableScene::NoDrag);
    scene.setVerticalScale(2.0);
    scene.setHorizontalScale(2.0);
    QCOMPARE(scene.verticalScale(), 2.0);
    QVERIFY(log.names().isEmpty());
    scene.onSelectionChanged();
    QCOMPARE(log.names(), names("none"));
}

void tst_ZvTimeTableScene::selectionIsReportedByIndex()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    SignalLog log;
    watchAll(log, table.scene());
    table.item(2)->setSelected(true);
    table.item(0)->setSelected(true);
    table.item(1)->setSelected(true);
    QCOMPARE(table.scene()->selectedTimeItems(), table.strip()->timeItems());
    QCOMPARE(log.names(), names("moved moved moved"));
    const auto reported = log.arguments(1).first().value<QList<ZvTimeTableTimeItem *>>();
    QCOMPARE(reported, QList<ZvTimeTableTimeItem *>({table.item(0), table.item(2)}));

    log.clear();
    table.scene()->clearSelection();
    QCOMPARE(log.names(), names("none"));
    QVERIFY(table.scene()->selectedTimeItems().isEmpty());
}

void tst_ZvTimeTableScene::handlesShowForASingleSelection()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.item(0)->setSelected(true);
    QVERIFY(handlesVisible(table.item(0)));
    table.item(2)->setSelected(true);
    QVERIFY(!handlesVisible(table.item(0)));
    QVERIFY(!handlesVisible(table.item(2)));
    table.item(0)->setSelected(false);
    QVERIFY(!handlesVisible(table.item(0)));
    QVERIFY(handlesVisible(table.item(2)));
    table.scene()->clearSelection();
    QVERIFY(!handlesVisible(table.item(2)));
}

void tst_ZvTimeTableScene::disabledSelectionIsIgnored()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    SignalLog log;
    watchAll(log, table.scene());
    table.scene()->setDisableSelectionChanged(true);
    table.item(0)->setSelected(true);
    table.item(1)->setSelected(true);
    QVERIFY(log.names().isEmpty());
    QVERIFY(table.scene()->selectedTimeItems().isEmpty());
    QVERIFY(!handlesVisible(table.item(0)));
    table.scene()->setDisableSelectionChanged(false);
    QVERIFY(log.names().isEmpty());
    table.scene()->onSelectionChanged();
    QCOMPARE(log.names(), names("moved"));
    QCOMPARE(table.scene()->selectedTimeItems().size(), 2);
}

void tst_ZvTimeTableScene::disabledState()
{
    ZvTimeTableScene scene;
    bool state = true;
    QVERIFY(!scene.isDesabeleSelectionChanged(&state));
    QVERIFY(!state);
    scene.setDisableSelectionChanged(true);
    QVERIFY(scene.isDesabeleSelectionChanged(&state));
    QVERIFY(state);
    QVERIFY(scene.isDesabeleSelectionChanged(nullptr));
    // Reachable by name, as the signals of the strip and of the page reach it.
    bool answered = false;
    QVERIFY(QMetaObject::invokeMethod(&scene, "isDesabeleSelectionChanged", Qt::DirectConnection,
                                      Q_RETURN_ARG(bool, answered)));
    QVERIFY(answered);
}

void tst_ZvTimeTableScene::bulkChangesGiveOnePass()
{
    TimeTableFixture table;
    SignalLog log;
    watchAll(log, table.scene());
    QVERIFY(table.scene()->insertTimeItems(threeBands()));
    QCOMPARE(log.names(), names("moved"));
    QCOMPARE(log.arguments(0).first().value<QList<ZvTimeTableTimeItem *>>(),
             table.strip()->timeItems());
    table.scene()->clearSelection();
    log.clear();
    table.strip()->selectAllTimeItems();
    QCOMPARE(log.names(), names("moved"));
    QVERIFY(!handlesVisible(table.item(0)));
}

void tst_ZvTimeTableScene::removalsReportNoMove()
{
    TimeTableFixture table;
    QVERIFY(table.scene()->insertTimeItems(threeBands()));
    SignalLog log;
    watchAll(log, table.scene());
    table.scene()->removeTimeItems({threeBands().at(1)});
    QVERIFY(log.names().isEmpty());
    QCOMPARE(table.scene()->selectedTimeItems(), table.strip()->timeItems());
    table.scene()->removeAllTimeItems();
    QCOMPARE(log.names(), names("none"));
    QVERIFY(table.scene()->selectedTimeItems().isEmpty());
    // The block is over afterwards.
    QVERIFY(table.scene()->insertTimeItems(threeBands()));
    QCOMPARE(log.names(), names("none moved"));
}

void tst_ZvTimeTableScene::removeSelected()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    QVERIFY(table.scene()->removeSelectedTimeItems().isEmpty());
    QCOMPARE(table.count(), 3);
    table.item(2)->setSelected(true);
    table.item(0)->setSelected(true);
    SignalLog log;
    watchAll(log, table.scene());
    const QList<ZvTime> removed = table.scene()->removeSelectedTimeItems();
    QCOMPARE(removed, QList<ZvTime>({threeBands().at(0), threeBands().at(2)}));
    QCOMPARE(log.names(), names("none"));
    QCOMPARE(table.strip()->times(), QList<ZvTime>{threeBands().at(1)});
    QVERIFY(table.scene()->removeSelectedTimeItems().isEmpty());
}

void tst_ZvTimeTableScene::removeSelectedWhileDisabled()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({0});
    table.scene()->setDisableSelectionChanged(true);
    table.item(1)->setSelected(true);
    // What the last pass over the selection left counts.
    QCOMPARE(table.scene()->removeSelectedTimeItems(), QList<ZvTime>{threeBands().at(0)});
    QCOMPARE(table.count(), 2);
}

void tst_ZvTimeTableScene::itemsInRange_data()
{
    QTest::addColumn<QTime>("start");
    QTest::addColumn<QTime>("end");
    QTest::addColumn<QString>("found");
    QTest::newRow("whole day") << at("00:00:00") << at("24:00:00") << QStringLiteral("ABC");
    QTest::newRow("a gap") << at("09:00:00") << at("10:00:00") << QString();
    QTest::newRow("before all") << at("00:00:00") << at("08:00:00") << QString();
    QTest::newRow("after all") << at("14:00:00") << at("24:00:00") << QString();
    QTest::newRow("from an end") << at("09:00:00") << at("10:00:01") << QStringLiteral("B");
    QTest::newRow("inside one") << at("10:20:00") << at("10:30:00") << QStringLiteral("B");
    QTest::newRow("exactly one") << at("10:00:00") << at("11:00:00") << QStringLiteral("B");
    QTest::newRow("two in part") << at("08:59:59") << at("10:00:01") << QStringLiteral("AB");
    QTest::newRow("no length inside") << at("10:30:00") << at("10:30:00") << QStringLiteral("B");
    QTest::newRow("no length at a start") << at("10:00:00") << at("10:00:00") << QString();
}

void tst_ZvTimeTableScene::itemsInRange()
{
    QFETCH(QTime, start);
    QFETCH(QTime, end);
    QFETCH(QString, found);
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    QString stages;
    const QList<ZvTime> times = table.scene()->timeItemsInRange(start, end);
    for (const ZvTime &time : times)
        stages += time.stageName();
    QCOMPARE(stages, found);
}

void tst_ZvTimeTableScene::itemsInRangeOfAnOddOrder()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.strip()->setTimeItemTimes(
        {{1, band("20:00:00", "21:00:00", "B")}, {2, band("08:30:00", "09:00:00", "C")}});
    // The walk stops at the first band behind the range, whatever the list has after it.
    QCOMPARE(table.scene()->timeItemsInRange(at("08:00:00"), at("10:00:00")),
             QList<ZvTime>{threeBands().at(0)});
    // Before the first match bands behind the range are walked over.
    table.strip()->setTimeItemTimes({{0, band("22:00:00", "23:00:00", "A")}});
    QCOMPARE(table.scene()->timeItemsInRange(at("08:00:00"), at("10:00:00")),
             QList<ZvTime>{band("08:30:00", "09:00:00", "C")});
}

void tst_ZvTimeTableScene::scalesReachTheItems()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.scene()->setVerticalScale(3.0);
    table.scene()->setHorizontalScale(2.0);
    for (int i = 0; i < table.count(); ++i)
        QCOMPARE(markOf(table.item(i))->rect(), QRectF(0.0, 0.0, 480.0, 180.0));
    // New bands come with both.
    QVERIFY(table.scene()->insertTimeItems({band("20:00:00", "20:30:00")}));
    QCOMPARE(markOf(table.item(3))->rect(), QRectF(0.0, 0.0, 480.0, 90.0));
}

void tst_ZvTimeTableScene::moveSignals()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    SignalLog log;
    watchAll(log, table.scene());
    QVERIFY(!table.scene()->moveSelectedTimeItems(QPointF(0.0, 5.0), QPointF()));
    QVERIFY(log.names().isEmpty());

    table.select({1});
    log.clear();
    QVERIFY(!table.scene()->moveSelectedTimeItems(QPointF(9.0, 5.0), QPointF(1.0, 5.0)));
    QVERIFY(log.names().isEmpty());
    QVERIFY(table.scene()->moveSelectedTimeItems(QPointF(0.0, 5.0), QPointF()));
    QCOMPARE(log.names(), names("moved"));
    QCOMPARE(log.arguments(0).first().value<QList<ZvTimeTableTimeItem *>>(),
             QList<ZvTimeTableTimeItem *>{table.item(1)});

    table.select({0, 1});
    log.clear();
    QVERIFY(table.scene()->moveSelectedTimeItems(QPointF(0.0, 500.0), QPointF()));
    QCOMPARE(log.names(), names("moved"));
    // A group that stands at its obstacle has taken the move, but reports nothing.
    QVERIFY(table.scene()->moveSelectedTimeItems(QPointF(0.0, 5.0), QPointF()));
    QCOMPARE(log.names(), names("moved"));
}

void tst_ZvTimeTableScene::moveOfASingleBand()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({1});
    table.scene()->moveSelectedTimeItems(QPointF(0.0, 0.0), QPointF(0.0, 30.0));
    QCOMPARE(table.item(1)->timeInfo(), band("09:30:00", "10:30:00", "B"));
    table.scene()->moveSelectedTimeItems(QPointF(0.0, -300.0), QPointF());
    QCOMPARE(table.item(1)->timeInfo(), band("09:00:00", "10:00:00", "B"));
    table.scene()->moveSelectedTimeItems(QPointF(0.0, 300.0), QPointF());
    QCOMPARE(table.item(1)->timeInfo(), band("12:00:00", "13:00:00", "B"));
    QCOMPARE(table.item(1)->x(), 10.0);
}

void tst_ZvTimeTableScene::moveOfAGroup_data()
{
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<double>("dy");
    QTest::addColumn<double>("distance");
    QTest::newRow("A, C down: the gap to B limits") << QList<int>{0, 2} << 500.0 << 60.0;
    QTest::newRow("A, C up: the gap to B limits") << QList<int>{0, 2} << -500.0 << -120.0;
    QTest::newRow("A, B up to midnight") << QList<int>{0, 1} << -5000.0 << -480.0;
    QTest::newRow("B, C down to 24 o'clock") << QList<int>{1, 2} << 5000.0 << 600.0;
    QTest::newRow("all, a little") << QList<int>{0, 1, 2} << 7.0 << 7.0;
}

void tst_ZvTimeTableScene::moveOfAGroup()
{
    QFETCH(QList<int>, selected);
    QFETCH(double, dy);
    QFETCH(double, distance);
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select(selected);
    table.scene()->moveSelectedTimeItems(QPointF(0.0, dy), QPointF());
    for (int i = 0; i < table.count(); ++i) {
        const ZvTime before = threeBands().at(i);
        const double expected = TimeAxis::dayTop + TimeAxis::unitsOf(before.startTime()) +
                                (selected.contains(i) ? distance : 0.0);
        QCOMPARE(table.item(i)->y(), expected);
        QCOMPARE(table.item(i)->itemHeight(), 60.0);
    }
}

void tst_ZvTimeTableScene::moveAtTheEndOfTheDay()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({1, 2});
    table.scene()->moveSelectedTimeItems(QPointF(0.0, 5000.0), QPointF());
    QCOMPARE(table.item(2)->endTime(), at("23:59:59.999"));
    QCOMPARE(table.item(2)->startTime(), at("23:00:00"));
    table.scene()->moveSelectedTimeItems(QPointF(0.0, -1.0), QPointF());
    QCOMPARE(table.item(2)->startTime(), at("22:59:00"));
    QCOMPARE(table.item(2)->endTime(), at("23:59:00"));
}

void tst_ZvTimeTableScene::handleHitAreas_data()
{
    QTest::addColumn<double>("verticalScale");
    QTest::addColumn<double>("horizontalScale");
    for (double scale : ZavoTest::timeTableScales) {
        QTest::addRow("%g by 1", scale) << scale << 1.0;
        QTest::addRow("%g by 1.5", scale) << scale << 1.5;
    }
}

void tst_ZvTimeTableScene::handleHitAreas()
{
    QFETCH(double, verticalScale);
    QFETCH(double, horizontalScale);
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.setScale(verticalScale);
    table.scene()->setHorizontalScale(horizontalScale);
    table.select({1});
    const ZvTimeTableScene &scene = *table.scene();
    const double top = yOf("10:00:00");
    const double bottom = yOf("11:00:00");
    const double pixel = 1.0 / verticalScale;
    QCOMPARE(scene.resizeHandleAt(QPointF(180.0, top + pixel)), ZvTimeTableScene::DragTopHandle);
    QCOMPARE(scene.resizeHandleAt(QPointF(180.0, top + 4.9 * pixel)),
             ZvTimeTableScene::DragTopHandle);
    QCOMPARE(scene.resizeHandleAt(QPointF(180.0, bottom - pixel)),
             ZvTimeTableScene::DragBottomHandle);
    QCOMPARE(scene.resizeHandleAt(QPointF(180.0, top - pixel)), ZvTimeTableScene::NoDrag);
    QCOMPARE(scene.resizeHandleAt(QPointF(180.0, bottom + pixel)), ZvTimeTableScene::NoDrag);
    QCOMPARE(scene.resizeHandleAt(QPointF(180.0, (top + bottom) / 2.0)), ZvTimeTableScene::NoDrag);
    QCOMPARE(scene.resizeHandleAt(QPointF(59.0, top + pixel)), ZvTimeTableScene::NoDrag);
    QCOMPARE(scene.resizeHandleAt(QPointF(301.0, top + pixel)), ZvTimeTableScene::NoDrag);
    table.item(0)->setSelected(true);
    QCOMPARE(scene.resizeHandleAt(QPointF(180.0, top + pixel)), ZvTimeTableScene::NoDrag);
}

void tst_ZvTimeTableScene::shortBandsHaveNoHitArea()
{
    TimeTableFixture table;
    QVERIFY(table.fill({band("10:00:00", "10:01:50"), band("12:00:00", "12:02:00")}));
    table.setScale(60.0);
    table.select({0});
    QCOMPARE(table.scene()->resizeHandleAt(QPointF(180.0, yOf("10:00:01"))),
             ZvTimeTableScene::NoDrag);
    table.select({1});
    QCOMPARE(table.scene()->resizeHandleAt(QPointF(180.0, yOf("12:00:00") + 0.5 / 60.0)),
             ZvTimeTableScene::DragTopHandle);
}

void tst_ZvTimeTableScene::releaseIsComparedWithThePress_data()
{
    QTest::addColumn<QPointF>("release");
    QTest::addColumn<int>("reports");
    QTest::newRow("in place") << QPointF(20.0, 40.0) << 0;
    QTest::newRow("below") << QPointF(20.0, 41.0) << 1;
    QTest::newRow("beside") << QPointF(21.0, 40.0) << 1;
}

// Not every sender says where in the scene the button went down.
void tst_ZvTimeTableScene::releaseIsComparedWithThePress()
{
    QFETCH(QPointF, release);
    TimeTableFixture table;
    QSignalSpy spy(table.scene(), SIGNAL(mousePressingMoved()));
    sendMouse(table.scene(), QEvent::GraphicsSceneMousePress, {20.0, 40.0});
    sendMouse(table.scene(), QEvent::GraphicsSceneMouseRelease, release);
    QTEST(spy.count(), "reports");
}

void tst_ZvTimeTableScene::diesQuietly()
{
    auto table = std::make_unique<TimeTableFixture>();
    QVERIFY(table->scene()->insertTimeItems(threeBands()));
    SignalLog log;
    watchAll(log, table->scene());
    table.reset();
    QVERIFY(log.names().isEmpty());
}

QTEST_MAIN(tst_ZvTimeTableScene)
#include "tst_zvtimetablescene.moc"
