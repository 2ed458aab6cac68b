#include "BandText.h"
#include "SignalLog.h"

#include <QGraphicsLineItem>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QRandomGenerator>
#include <QtTest>

using namespace Zavo;
using ZavoTest::at;
using ZavoTest::band;
using ZavoTest::disorderOf;
using ZavoTest::markOf;
using ZavoTest::SignalLog;
using ZavoTest::TimeTableFixture;
using ZavoTest::yOf;

namespace {

QStringList names(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

void watchAll(SignalLog &log, const ZvTimeTableTimeZoneItem *strip)
{
    log.watch(strip, SIGNAL(requestDisableSelectionChanged(bool)), "disable");
    log.watch(strip, SIGNAL(requestSelectionChanged()), "look");
    log.watch(strip, SIGNAL(timeItemCountChanged(int)), "count");
    log.watch(strip, SIGNAL(timeItemInserted(QList<ZvTime>)), "inserted");
    log.watch(strip, SIGNAL(criticalErrorOccured(QString)), "critical");
    log.watch(strip, SIGNAL(warningErrorOccured(QString)), "warning");
    log.watch(strip, SIGNAL(timeStringChanged(QString)), "time");
}

QList<ZvTime> threeBands()
{
    return {band("08:00:00", "09:00:00", "A"), band("10:00:00", "11:00:00", "B"),
            band("13:00:00", "14:00:00", "C")};
}

QList<int> selectedIndices(const TimeTableFixture &table)
{
    QList<int> indices;
    const QList<ZvTimeTableTimeItem *> selected = table.strip()->selectedTimeItems();
    for (const ZvTimeTableTimeItem *item : selected)
        indices.append(item->index());
    return indices;
}

} // namespace

class tst_ZvTimeTableTimeZoneItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void setRectGrowsByTheMargin();
    void placeInTheTable();
    void timeAtY_data();
    void timeAtY();
    void insertBracketsAndCounts();
    void insertPlacesBands();
    void insertSelectsTheNewBandsOnly();
    void insertKeepsGoingAfterAFailure();
    void insertAcceptsAStartInsideAnEarlierBand();
    void insertNothing();
    void insertHandsOverTheScales();
    void insertWithoutScene();
    void whatWasShownCanBeShownAgain();
    void removeBracketsAndCountsOnce();
    void removeWithoutMatch();
    void removeEqualRecords();
    void removeWithTolerance();
    void removeDeletesTheBands();
    void removeAll();
    void setTimesByIndex();
    void insertAndRemoveInOddOrder();
    void selectAllAndNone();
    void selectNext();
    void selectPrevious();
    void selectNextBringsIntoSight();
    void selectionCount();
    void containsAll();
    void paintsItsEdges();
    void diesWithItsBands();
};

void tst_ZvTimeTableTimeZoneItem::construction()
{
    ZvTimeTableTimeZoneItem strip;
    QCOMPARE(strip.margin(), 10.0);
    QCOMPARE(strip.boundingRect(), QRectF(0.0, 0.0, 260.0, 86420.0));
    QCOMPARE(strip.innerRect(), QRectF(10.0, 10.0, 240.0, 86400.0));
    QVERIFY(!strip.flags().testFlag(QGraphicsItem::ItemIsSelectable));
    QVERIFY(strip.acceptDrops());
    QCOMPARE(strip.timeItemCount(), 0);
    QVERIFY(!strip.view());

    const auto lines = ZavoTest::childrenOf<QGraphicsLineItem>(&strip);
    QCOMPARE(lines.size(), 1);
    QVERIFY(!lines.first()->isVisible());
    QCOMPARE(lines.first()->pen().color(), QColor(Qt::green));
    QVERIFY(lines.first()->pen().isCosmetic());
}

void tst_ZvTimeTableTimeZoneItem::setRectGrowsByTheMargin()
{
    ZvTimeTableTimeZoneItem strip;
    strip.setRect(QRectF(100.0, 50.0, 30.0, 70.0));
    QCOMPARE(strip.pos(), QPointF(90.0, 40.0));
    QCOMPARE(strip.boundingRect(), QRectF(0.0, 0.0, 50.0, 90.0));
    QCOMPARE(strip.innerRect(), QRectF(10.0, 10.0, 30.0, 70.0));
}

void tst_ZvTimeTableTimeZoneItem::placeInTheTable()
{
    const TimeTableFixture table;
    QCOMPARE(table.strip()->pos(), QPointF(50.0, 0.0));
    QCOMPARE(table.strip()->innerRect(), QRectF(QPointF(10.0, 10.0), QPointF(250.0, 1450.0)));
    QCOMPARE(table.strip()->view(), table.view());
}

void tst_ZvTimeTableTimeZoneItem::timeAtY_data()
{
    QTest::addColumn<double>("y");
    QTest::addColumn<QTime>("time");
    QTest::newRow("top") << 10.0 << at("00:00:00");
    QTest::newRow("eight") << 490.0 << at("08:00:00");
    QTest::newRow("truncated milliseconds") << 10.0 + 1.9 / 60000.0 << at("00:00:00.001");
    QTest::newRow("bottom") << 1450.0 << at("24:00:00");
    QTest::newRow("below") << 1460.0 << at("24:00:00");
    QTest::newRow("far below") << 1e9 << at("24:00:00");
    QTest::newRow("just above the bottom") << 1449.99 << at("23:59:59.399");
}

void tst_ZvTimeTableTimeZoneItem::timeAtY()
{
    QFETCH(double, y);
    QFETCH(QTime, time);
    const TimeTableFixture table;
    QVERIFY(qAbs(table.strip()->timeAtY(y).msecsTo(time)) <= 1);
    const double v = y - 10.0;
    const QTime exact =
        v >= 1440.0 ? QTime(23, 59, 59, 999) : QTime(0, 0).addMSecs(static_cast<int>(v * 60000.0));
    QCOMPARE(table.strip()->timeAtY(y), exact);
}

void tst_ZvTimeTableTimeZoneItem::insertBracketsAndCounts()
{
    TimeTableFixture table;
    SignalLog log;
    watchAll(log, table.strip());
    QVERIFY(table.strip()->insertTimeItems(threeBands()));
    QCOMPARE(log.names(), names("disable count count count disable look"));
    QCOMPARE(log.arguments(0), QVariantList{true});
    QCOMPARE(log.arguments(1), QVariantList{1});
    QCOMPARE(log.arguments(3), QVariantList{3});
    QCOMPARE(log.arguments(4), QVariantList{false});

    log.clear();
    QVERIFY(table.strip()->insertTimeItems({band("09:00:00", "10:00:00")}));
    QCOMPARE(log.names(), names("disable count disable look"));
    QCOMPARE(log.arguments(1), QVariantList{4});
}

void tst_ZvTimeTableTimeZoneItem::insertPlacesBands()
{
    TimeTableFixture table;
    QVERIFY(table.strip()->insertTimeItems(
        {band("13:00:00", "24:00:00", "C"), band("08:00:00", "09:00:00", "A"),
         band("00:00:00", "08:00:00", "0"), band("10:00:00", "11:30:00", "B")}));
    const QStringList expected{QStringLiteral("0"), QStringLiteral("A"), QStringLiteral("B"),
                               QStringLiteral("C")};
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(table.item(i)->timeInfo().stageName(), expected.at(i));
    QCOMPARE(disorderOf(table.strip()), QString());
    QCOMPARE(table.item(0)->pos(), QPointF(10.0, 10.0));
    QCOMPARE(table.item(2)->pos(), QPointF(10.0, yOf("10:00:00")));
    QCOMPARE(table.item(2)->itemHeight(), 90.0);
    QCOMPARE(table.item(2)->itemWidth(), 240.0);
    QCOMPARE(table.item(3)->y() + table.item(3)->itemHeight(), 1450.0);
    QCOMPARE(table.item(3)->parentItem(), table.strip());
}

void tst_ZvTimeTableTimeZoneItem::insertSelectsTheNewBandsOnly()
{
    TimeTableFixture table;
    QVERIFY(table.strip()->insertTimeItems(threeBands()));
    QCOMPARE(selectedIndices(table), QList<int>({0, 1, 2}));
    QCOMPARE(table.scene()->selectedTimeItems(), table.strip()->timeItems());
    QVERIFY(table.strip()->insertTimeItems({band("09:00:00", "10:00:00")}));
    QCOMPARE(selectedIndices(table), QList<int>{1});
    QCOMPARE(table.strip()->selectedTimeItemCount(), 1);
    QCOMPARE(table.scene()->selectedTimeItems(), QList<ZvTimeTableTimeItem *>{table.item(1)});
}

void tst_ZvTimeTableTimeZoneItem::insertKeepsGoingAfterAFailure()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    const int itemsBefore = table.scene()->items().size();
    SignalLog log;
    watchAll(log, table.strip());
    QVERIFY(!table.strip()->insertTimeItems({band("12:00:00", "13:30:00", "sub/x y.xml"),
                                             band("15:00:00", "16:00:00", "D"),
                                             band("15:30:00", "16:30:00", "again.xml")}));
    QCOMPARE(log.names(), names("disable critical count critical disable look"));
    QCOMPARE(log.arguments(1), QVariantList{QStringLiteral("Failed to assign \"sub/x y.xml\".")});
    QCOMPARE(log.arguments(3), QVariantList{QStringLiteral("Failed to assign \"again.xml\".")});
    QCOMPARE(table.count(), 4);
    QCOMPARE(selectedIndices(table), QList<int>{3});
    QCOMPARE(disorderOf(table.strip()), QString());
    // Nothing stays of the bands that found no place. The inner mark is a grandchild of its band.
    QCOMPARE(table.scene()->items().size(),
             itemsBefore + 1 + table.item(3)->childItems().size() + 1);
}

void tst_ZvTimeTableTimeZoneItem::insertAcceptsAStartInsideAnEarlierBand()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    QVERIFY(table.strip()->insertTimeItems({band("10:30:00", "12:00:00", "over")}));
    QCOMPARE(table.item(2)->timeInfo().stageName(), QStringLiteral("over"));
    QCOMPARE(table.item(2)->y(), yOf("10:30:00"));
    QVERIFY(table.item(2)->y() < table.item(1)->y() + table.item(1)->itemHeight());
    QCOMPARE(disorderOf(table.strip()), QString());
}

void tst_ZvTimeTableTimeZoneItem::insertNothing()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({1});
    SignalLog log;
    watchAll(log, table.strip());
    QVERIFY(table.strip()->insertTimeItems({}));
    QCOMPARE(log.names(), names("disable disable look"));
    QCOMPARE(table.strip()->selectedTimeItemCount(), 0);
}

void tst_ZvTimeTableTimeZoneItem::insertHandsOverTheScales()
{
    TimeTableFixture table;
    table.scene()->setVerticalScale(6.0);
    table.scene()->setHorizontalScale(1.5);
    QVERIFY(table.strip()->insertTimeItems({band("08:00:00", "09:00:00")}));
    QCOMPARE(markOf(table.item(0))->rect(), QRectF(0.0, 0.0, 360.0, 360.0));
    table.strip()->setHorizontalScale(2.0);
    QCOMPARE(markOf(table.item(0))->rect().width(), 480.0);
}

void tst_ZvTimeTableTimeZoneItem::insertWithoutScene()
{
    ZvTimeTableTimeZoneItem strip;
    strip.setRect(QRectF(60.0, 10.0, 240.0, 1440.0));
    QVERIFY(strip.insertTimeItems(threeBands()));
    QCOMPARE(strip.timeItemCount(), 3);
    QCOMPARE(markOf(strip.timeItems().first())->rect(), QRectF(0.0, 0.0, 240.0, 60.0));
    strip.clearSelection();
    strip.selectNextTimeItem();
    strip.removeTimeItems({threeBands().first()});
    QCOMPARE(strip.timeItemCount(), 2);
    strip.removeAllTimeItems();
    QCOMPARE(strip.timeItemCount(), 0);
}

void tst_ZvTimeTableTimeZoneItem::whatWasShownCanBeShownAgain()
{
    QRandomGenerator random(7);
    TimeTableFixture table;
    for (int round = 0; round < 6; ++round) {
        QList<ZvTime> times;
        for (QTime start(0, 0); start < QTime(23, 50);) {
            const QTime end = start.addSecs(1 + random.bounded(500));
            times.append(ZvTime(start, end, QStringLiteral("a.xml")));
            start = end;
        }
        times.append(ZvTime(times.last().endTime(), at("24:00:00"), QStringLiteral("a.xml")));
        QVERIFY(table.fill(times));
        const QList<ZvTime> shown = table.strip()->times();
        QCOMPARE(shown, times);
        // Shuffled and truncated once more, every band finds its place again.
        QList<ZvTime> shuffled = shown;
        std::shuffle(shuffled.begin(), shuffled.end(), random);
        QVERIFY(table.fill(shuffled));
        QCOMPARE(table.strip()->times(), times);
        QCOMPARE(disorderOf(table.strip()), QString());
        table.strip()->removeTimeItems(times);
        QCOMPARE(table.count(), 0);
    }
}

void tst_ZvTimeTableTimeZoneItem::removeBracketsAndCountsOnce()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    SignalLog log;
    watchAll(log, table.strip());
    table.strip()->removeTimeItems({threeBands().at(0), threeBands().at(1)});
    QCOMPARE(log.names(), names("disable disable look count"));
    QCOMPARE(log.arguments(0), QVariantList{true});
    QCOMPARE(log.arguments(1), QVariantList{false});
    QCOMPARE(log.arguments(3), QVariantList{1});
    QCOMPARE(disorderOf(table.strip()), QString());
    QCOMPARE(table.item(0)->timeInfo(), threeBands().at(2));
}

void tst_ZvTimeTableTimeZoneItem::removeWithoutMatch()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    SignalLog log;
    watchAll(log, table.strip());
    table.strip()->removeTimeItems({band("08:00:00", "09:00:00", "other"), ZvTime()});
    QCOMPARE(log.names(), names("disable disable look"));
    QCOMPARE(table.count(), 3);
}

void tst_ZvTimeTableTimeZoneItem::removeEqualRecords()
{
    const ZvTime empty = band("08:00:12", "08:00:12");
    TimeTableFixture table;
    QVERIFY(table.fill({empty, empty, empty, band("09:00:00", "10:00:00")}));
    QCOMPARE(table.count(), 4);
    table.strip()->removeTimeItems({empty, empty});
    QCOMPARE(table.count(), 2);
    table.strip()->removeTimeItems({empty, empty});
    QCOMPARE(table.count(), 1);
    QCOMPARE(table.item(0)->startTime(), at("09:00:00"));
}

void tst_ZvTimeTableTimeZoneItem::removeWithTolerance()
{
    // Geometry gives this time back a millisecond short.
    TimeTableFixture table;
    QVERIFY(table.fill({band("00:04:05", "00:05:00")}));
    QCOMPARE(table.item(0)->startTime(), at("00:04:04.999"));
    table.strip()->removeTimeItems({band("00:04:05.006", "00:05:00")});
    QCOMPARE(table.count(), 1);
    table.strip()->removeTimeItems({band("00:04:05", "00:05:00")});
    QCOMPARE(table.count(), 0);
}

void tst_ZvTimeTableTimeZoneItem::removeDeletesTheBands()
{
    TimeTableFixture table;
    const int itemsBefore = table.scene()->items().size();
    QVERIFY(table.strip()->insertTimeItems(threeBands()));
    const QPointer<ZvTimeTableTimeItem> removed = table.item(1);
    const QPointer<ZvTimeTableTimeItem> kept = table.item(0);
    table.strip()->removeTimeItems({threeBands().at(1)});
    QVERIFY(!removed);
    QVERIFY(kept);
    QCOMPARE(table.scene()->selectedTimeItems().size(), 2);
    table.strip()->removeAllTimeItems();
    QVERIFY(!kept);
    QCOMPARE(table.scene()->items().size(), itemsBefore);
    QVERIFY(table.scene()->selectedTimeItems().isEmpty());
}

void tst_ZvTimeTableTimeZoneItem::removeAll()
{
    TimeTableFixture table;
    QVERIFY(table.strip()->insertTimeItems(threeBands()));
    SignalLog log;
    watchAll(log, table.strip());
    table.strip()->removeAllTimeItems();
    QCOMPARE(log.names(), names("disable disable look count"));
    QCOMPARE(log.arguments(3), QVariantList{0});
    log.clear();
    table.strip()->removeAllTimeItems();
    QCOMPARE(log.names(), names("disable disable look"));
}

void tst_ZvTimeTableTimeZoneItem::setTimesByIndex()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    SignalLog log;
    watchAll(log, table.strip());
    log.watch(table.item(0), SIGNAL(timeInfoChanged(ZvTime)), "info");
    table.strip()->setTimeItemTimes({{-1, band("01:00:00", "02:00:00", "below")},
                                     {0, band("00:04:05", "00:05:06", "X")},
                                     {2, band("23:00:00", "24:00:00", "Y")},
                                     {3, band("01:00:00", "02:00:00", "above")}});
    QCOMPARE(log.names(), QStringList());
    // The record stays as it was passed, without the truncation of its geometry.
    QCOMPARE(table.item(0)->startTime(), at("00:04:05"));
    QCOMPARE(table.item(0)->endTime(), at("00:05:06"));
    QCOMPARE(table.item(0)->y(), yOf("00:04:05"));
    QCOMPARE(table.item(1)->timeInfo(), threeBands().at(1));
    QCOMPARE(table.item(2)->timeInfo().stageName(), QStringLiteral("Y"));
    QCOMPARE(table.item(2)->itemHeight(), 60.0);
    // The bracket is closed: from here on moves are derived again.
    table.item(0)->setY(yOf("01:00:00"));
    QCOMPARE(table.item(0)->startTime(), at("01:00:00"));
}

void tst_ZvTimeTableTimeZoneItem::insertAndRemoveInOddOrder()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.strip()->setTimeItemTimes({{0, band("20:00:00", "21:00:00", "A")}});
    // The walk starts at the second band of the list and stops at the first that is late enough.
    QVERIFY(table.strip()->insertTimeItems({band("09:00:00", "09:30:00", "new")}));
    QCOMPARE(table.item(0)->timeInfo().stageName(), QStringLiteral("new"));
    table.strip()->setTimeItemTimes({{1, band("02:00:00", "03:00:00", "A")}});
    QVERIFY(table.strip()->insertTimeItems({band("11:30:00", "12:00:00", "next")}));
    QCOMPARE(table.item(3)->timeInfo().stageName(), QStringLiteral("next"));
    QCOMPARE(disorderOf(table.strip()), QString());

    table.strip()->removeTimeItems({band("02:00:00", "03:00:00", "A")});
    QCOMPARE(table.count(), 4);
    QCOMPARE(disorderOf(table.strip()), QString());
    QCOMPARE(table.item(1)->timeInfo(), threeBands().at(1));
}

void tst_ZvTimeTableTimeZoneItem::selectAllAndNone()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    SignalLog log;
    watchAll(log, table.strip());
    table.strip()->selectAllTimeItems();
    QCOMPARE(log.names(), names("disable disable look"));
    QCOMPARE(log.arguments(0), QVariantList{true});
    QCOMPARE(log.arguments(1), QVariantList{false});
    QCOMPARE(selectedIndices(table), QList<int>({0, 1, 2}));
    QCOMPARE(table.scene()->selectedTimeItems().size(), 3);
    log.clear();
    table.strip()->clearSelection();
    QVERIFY(log.names().isEmpty());
    QVERIFY(selectedIndices(table).isEmpty());
    QVERIFY(table.scene()->selectedTimeItems().isEmpty());
}

void tst_ZvTimeTableTimeZoneItem::selectNext()
{
    TimeTableFixture table;
    table.strip()->selectNextTimeItem();
    QVERIFY(selectedIndices(table).isEmpty());

    QVERIFY(table.fill(threeBands()));
    for (int expected : {0, 1, 2, 0}) {
        table.strip()->selectNextTimeItem();
        QCOMPARE(selectedIndices(table), QList<int>{expected});
    }
    table.select({0, 2});
    table.strip()->selectNextTimeItem();
    QCOMPARE(selectedIndices(table), QList<int>{1});

    QVERIFY(table.fill({threeBands().first()}));
    table.select({0});
    table.strip()->selectNextTimeItem();
    QCOMPARE(selectedIndices(table), QList<int>{0});
}

void tst_ZvTimeTableTimeZoneItem::selectPrevious()
{
    TimeTableFixture table;
    table.strip()->selectPreviousTimeItem();
    QVERIFY(selectedIndices(table).isEmpty());

    QVERIFY(table.fill(threeBands()));
    for (int expected : {2, 1, 0, 2}) {
        table.strip()->selectPreviousTimeItem();
        QCOMPARE(selectedIndices(table), QList<int>{expected});
    }
    table.select({0, 2});
    table.strip()->selectPreviousTimeItem();
    QCOMPARE(selectedIndices(table), QList<int>{1});
}

void tst_ZvTimeTableTimeZoneItem::selectNextBringsIntoSight()
{
    TimeTableFixture table;
    QVERIFY(table.fill({band("00:00:00", "01:00:00"), band("22:00:00", "23:00:00")}));
    table.scrollTo(0.0);
    const auto isInSight = [&table](int index) {
        const QRectF rect = table.item(index)->sceneBoundingRect();
        const QRect port = table.view()->viewport()->rect();
        return QRectF(table.view()->mapToScene(port.topLeft()),
                      table.view()->mapToScene(port.bottomRight()))
            .contains(rect);
    };
    QVERIFY(!isInSight(1));
    table.strip()->selectPreviousTimeItem();
    QVERIFY(isInSight(1));
    QVERIFY(!isInSight(0));
    table.strip()->selectNextTimeItem();
    QVERIFY(isInSight(0));
}

void tst_ZvTimeTableTimeZoneItem::selectionCount()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({0, 2});
    int count = -1;
    table.strip()->getTimeItemSelectionCount(&count);
    QCOMPARE(count, 2);
    table.strip()->getTimeItemSelectionCount(nullptr);

    count = -1;
    Q_EMIT table.item(1)->requestGettingTimeItemSelectionCount(&count);
    QCOMPARE(count, 2);
}

void tst_ZvTimeTableTimeZoneItem::containsAll()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    const QList<ZvTimeTableTimeItem *> items = table.strip()->timeItems();
    QVERIFY(table.strip()->containsAll(items));
    table.strip()->removeTimeItems({threeBands().at(1)});
    QVERIFY(!table.strip()->containsAll(items));
    QVERIFY(table.strip()->containsAll({items.at(2), items.at(0)}));
}

void tst_ZvTimeTableTimeZoneItem::paintsItsEdges()
{
    TimeTableFixture table;
    QImage image(260, 1460, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    table.strip()->paint(&painter, nullptr, nullptr);
    painter.end();
    QCOMPARE(image.pixelColor(100, 10), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(100, 1450), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(10, 700), QColor(Qt::black));
    QCOMPARE(image.pixelColor(250, 700), QColor(Qt::black));
    // The white fill comes from the base item; nothing of the area is painted here.
    QCOMPARE(image.pixelColor(9, 700), QColor(Qt::white));
    QCOMPARE(image.pixelColor(100, 700), QColor(Qt::white));
    QCOMPARE(image.pixelColor(100, 9), QColor(Qt::white));
}

void tst_ZvTimeTableTimeZoneItem::diesWithItsBands()
{
    ZvTimeTableScene scene;
    auto *strip = new ZvTimeTableTimeZoneItem;
    scene.addItem(strip);
    scene.setTimeZoneItem(strip);
    QVERIFY(scene.insertTimeItems(threeBands()));
    const QPointer<ZvTimeTableTimeItem> item = strip->timeItems().first();
    QCOMPARE(scene.selectedTimeItems().size(), 3);
    delete strip;
    QVERIFY(!item);
    QVERIFY(scene.items().isEmpty());
    QVERIFY(scene.selectedTimeItems().isEmpty());
}

QTEST_MAIN(tst_ZvTimeTableTimeZoneItem)
#include "tst_zvtimetabletimezoneitem.moc"
