#include "timetable/ZvTimeTableTimeItem.h"

#include "SceneMouse.h"
#include "TimeTableFixture.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Zavo;
using ZavoTest::band;
using ZavoTest::SceneMouse;
using ZavoTest::textOf;
using ZavoTest::TimeTableFixture;
using ZavoTest::yOf;

namespace {

ZvTime hours(int from, int to, const QString &stageName = QStringLiteral("a.xml"))
{
    return {QTime(from, 0), to == 24 ? TimeAxis::endOfDay() : QTime(to, 0), stageName};
}

/// The start that a band at @p y derives.
QTime derivedStart(double y)
{
    return QTime(0, 0).addMSecs(static_cast<int>(y * 60000.0 - 10.0 * 60000.0));
}

} // namespace

class tst_ZvTimeTableTimeItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_table.reset(new TimeTableFixture); }
    void cleanup() { m_table.reset(); }

    void isAnHourAtFirst();
    void isOnlyMovedByTheScene();

    void standsWhereItsTimesSay_data();
    void standsWhereItsTimesSay();
    void keepsItsRecordOutsideAScene();
    void keepsItsRecordWhileBlocked();
    void losesAMillisecondToItsGeometry();
    void derivesEveryStartByTheSameExpression();
    void placesWithoutRegardForNeighbours();
    void limitsMovesAgainAfterBeingPlaced();
    void namesItsStage();

    void reachesTheEndOfTheDay();
    void leavesTheEndOfTheDay();
    void endsWhereItStartsWithoutLength();
    void tellsEachChangeOfItsTimes();
    void doesNotTellWhatDidNotChange();
    void derivesNothingWhileBlocked();
    void setsTimesAndPlaceAtOnceInBrackets();

    void keepsInTheDay();
    void keepsBetweenItsNeighbours();
    void lowerBoundWinsInASmallGap();
    void keepsItsLeftEdge();
    void movesFreelyWithoutLimit();
    void movesFreelyOutsideAScene();
    void knowsItsBounds();
    void knowsTheTimesOfItsBounds();

    void numbersTheChain();
    void showsItsNumber();
    void leavesTheChainWhenItDies();
    void standsAboveItsNeighboursWhenSelected();
    void showsTheMarkWhenSelected();
    void hidesHandlesWhenDeselected();
    void secondSelectionHidesTheHandles();
    void takesASelectionAsASlot();

    void rightPressLeavesTheSelection();
    void rightPressKeepsAGroup();
    void leftPressSelects();
    void asksTheStripForTheSelection();

private:
    QScopedPointer<TimeTableFixture> m_table;
};

void tst_ZvTimeTableTimeItem::isAnHourAtFirst()
{
    const ZvTimeTableTimeItem item;
    QCOMPARE(item.itemHeight(), 60.0);
    QCOMPARE(item.itemWidth(), 240.0);
    QCOMPARE(item.boundingRect(), QRectF(0.0, 0.0, 240.0, 60.0));
    QCOMPARE(item.index(), 0);
    QVERIFY(item.timeInfo().isEmpty());
    QCOMPARE(item.upperBound(), 10.0);
    QCOMPARE(item.lowerBound(), 1450.0);
    QVERIFY(!item.previousItem() && !item.nextItem());
    QCOMPARE(item.topHandle()->handleType(), ZvTimeTableTimeItemResizeHandle::TopHandle);
    QCOMPARE(item.bottomHandle()->handleType(), ZvTimeTableTimeItemResizeHandle::BottomHandle);
    QVERIFY(!item.topHandle()->isVisible() && !item.bottomHandle()->isVisible());
}

void tst_ZvTimeTableTimeItem::isOnlyMovedByTheScene()
{
    const ZvTimeTableTimeItem item;
    QVERIFY(item.flags() & QGraphicsItem::ItemIsSelectable);
    QVERIFY(!(item.flags() & QGraphicsItem::ItemIsMovable));
    QVERIFY(item.flags() & QGraphicsItem::ItemSendsScenePositionChanges);
    QVERIFY(item.flags() & QGraphicsItem::ItemSendsGeometryChanges);
}

void tst_ZvTimeTableTimeItem::standsWhereItsTimesSay_data()
{
    QTest::addColumn<ZvTime>("time");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("height");
    QTest::addColumn<QString>("derived");
    const auto row = [](const char *start, const char *end, double y, double height,
                        const char *derived) {
        QTest::addRow("%s-%s", start, end)
            << band(QLatin1String(start), QLatin1String(end)) << y << height
            << QStringLiteral("%1 a.xml").arg(QLatin1String(derived));
    };
    row("00:00:00", "01:00:00", 10.0, 60.0, "00:00:00.000-01:00:00.000");
    row("23:00:00", "24:00:00", 1390.0, 60.0, "23:00:00.000-23:59:59.999");
    row("00:00:00", "24:00:00", 10.0, 1440.0, "00:00:00.000-23:59:59.999");
    row("12:30:00", "12:30:30", 760.0, 0.5, "12:30:00.000-12:30:30.000");
    row("08:15:00", "17:45:00", 505.0, 570.0, "08:15:00.000-17:45:00.000");
    row("23:59:00", "24:00:00", 1449.0, 1.0, "23:59:00.000-23:59:59.999");
}

void tst_ZvTimeTableTimeItem::standsWhereItsTimesSay()
{
    QFETCH(ZvTime, time);
    QFETCH(double, y);
    QFETCH(double, height);
    QFETCH(QString, derived);
    QVERIFY(m_table->fill({time}));
    const ZvTimeTableTimeItem *item = m_table->item(0);
    QVERIFY(item->y() == y);
    QVERIFY(item->itemHeight() == height);
    QCOMPARE(item->scenePos(), QPointF(60.0, y));
    QCOMPARE(textOf(item->timeInfo()), derived);
}

void tst_ZvTimeTableTimeItem::keepsItsRecordOutsideAScene()
{
    ZvTimeTableTimeItem item;
    item.setTimeInfo(band(QStringLiteral("00:04:05"), QStringLiteral("00:10:00")));
    QCOMPARE(textOf(item.timeInfo()), QStringLiteral("00:04:05.000-00:10:00.000 a.xml"));
    QCOMPARE(item.pos(), QPointF(10.0, 10.0 + 245000 / 60000.0));
}

void tst_ZvTimeTableTimeItem::keepsItsRecordWhileBlocked()
{
    QVERIFY(m_table->fill({hours(2, 3)}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    item->setTimeUpdateBlocked(true);
    item->setTimeInfo(band(QStringLiteral("00:04:05"), QStringLiteral("00:10:00")));
    item->setTimeUpdateBlocked(false);
    QCOMPARE(textOf(item->timeInfo()), QStringLiteral("00:04:05.000-00:10:00.000 a.xml"));
    QCOMPARE(item->y(), 10.0 + 245000 / 60000.0);
}

void tst_ZvTimeTableTimeItem::losesAMillisecondToItsGeometry()
{
    QVERIFY(m_table->fill({band(QStringLiteral("00:04:05"), QStringLiteral("01:00:00"))}));
    QCOMPARE(m_table->item(0)->startTime(), QTime(0, 4, 4, 999));
}

void tst_ZvTimeTableTimeItem::derivesEveryStartByTheSameExpression()
{
    QVERIFY(m_table->fill({hours(2, 3)}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    int truncated = 0;
    for (int second = 0; second < 86395; second += 5) {
        const QTime start = QTime(0, 0).addSecs(second);
        item->setTimeInfo({start, start.addSecs(5), QStringLiteral("a.xml")});
        QCOMPARE(item->startTime(), derivedStart(10.0 + second / 60.0));
        QCOMPARE(item->endTime(),
                 item->startTime().addMSecs(static_cast<int>(item->itemHeight() * 60000.0)));
        truncated += item->startTime() == start ? 0 : 1;
    }
    QVERIFY(truncated > 0);
}

void tst_ZvTimeTableTimeItem::placesWithoutRegardForNeighbours()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(3, 4), hours(5, 6)}));
    m_table->item(1)->setTimeInfo(hours(10, 11));
    QCOMPARE(m_table->item(1)->y(), yOf(QStringLiteral("10:00:00")));
    m_table->item(1)->setTimeInfo(hours(0, 1));
    QCOMPARE(m_table->item(1)->y(), yOf(QStringLiteral("00:00:00")));
}

void tst_ZvTimeTableTimeItem::limitsMovesAgainAfterBeingPlaced()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(3, 4)}));
    ZvTimeTableTimeItem *item = m_table->item(1);
    item->setTimeInfo(hours(5, 6));
    item->setY(0.0);
    QCOMPARE(item->y(), yOf(QStringLiteral("02:00:00")));
}

void tst_ZvTimeTableTimeItem::namesItsStage()
{
    QVERIFY(m_table->fill({hours(1, 2, QStringLiteral("folder/<b>one</b>.xml"))}));
    QCOMPARE(ZavoTest::stageLabelOf(m_table->item(0))->toPlainText(),
             QStringLiteral("folder/<b>one</b>.xml"));
    m_table->item(0)->setTimeInfo(hours(1, 2, QStringLiteral("two.xml")));
    QCOMPARE(ZavoTest::stageLabelOf(m_table->item(0))->toPlainText(), QStringLiteral("two.xml"));
    QCOMPARE(m_table->item(0)->timeInfo().stageName(), QStringLiteral("two.xml"));
}

void tst_ZvTimeTableTimeItem::reachesTheEndOfTheDay()
{
    QVERIFY(m_table->fill({hours(20, 21)}));
    m_table->item(0)->setY(1e6);
    QCOMPARE(m_table->item(0)->y(), 1390.0);
    QCOMPARE(textOf(m_table->item(0)->timeInfo()),
             QStringLiteral("23:00:00.000-23:59:59.999 a.xml"));
}

void tst_ZvTimeTableTimeItem::leavesTheEndOfTheDay()
{
    QVERIFY(m_table->fill({hours(23, 24)}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    QVERIFY(item->y() == 1390.0 && item->itemHeight() == 60.0);
    item->setY(item->y() - 1.0);
    QCOMPARE(textOf(item->timeInfo()), QStringLiteral("22:59:00.000-23:59:00.000 a.xml"));
}

void tst_ZvTimeTableTimeItem::endsWhereItStartsWithoutLength()
{
    QVERIFY(m_table->fill({band(QStringLiteral("08:00:00"), QStringLiteral("08:00:00"))}));
    QCOMPARE(textOf(m_table->item(0)->timeInfo()),
             QStringLiteral("08:00:00.000-08:00:00.000 a.xml"));
    m_table->item(0)->setY(yOf(QStringLiteral("09:00:00")));
    QCOMPARE(textOf(m_table->item(0)->timeInfo()),
             QStringLiteral("09:00:00.000-09:00:00.000 a.xml"));
}

void tst_ZvTimeTableTimeItem::tellsEachChangeOfItsTimes()
{
    QVERIFY(m_table->fill({hours(1, 2)}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    QSignalSpy changed(item, SIGNAL(timeInfoChanged(ZvTime)));
    item->setY(item->y() + 1.0);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(textOf(changed.takeFirst().at(0).value<ZvTime>()),
             QStringLiteral("01:01:00.000-02:01:00.000 a.xml"));

    item->setItemHeight(30.0);
    QCOMPARE(changed.size(), 0);
    item->updateTimeInfo();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(textOf(changed.takeFirst().at(0).value<ZvTime>()),
             QStringLiteral("01:01:00.000-01:31:00.000 a.xml"));
}

void tst_ZvTimeTableTimeItem::doesNotTellWhatDidNotChange()
{
    QVERIFY(m_table->fill({hours(0, 2)}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    QSignalSpy changed(item, SIGNAL(timeInfoChanged(ZvTime)));
    item->setY(0.0);
    item->setX(100.0);
    item->updateTimeInfo();
    item->setItemWidth(100.0);
    item->setVerticalScale(2.0);
    item->setHorizontalScale(2.0);
    item->setSelected(true);
    QCOMPARE(changed.size(), 0);
}

void tst_ZvTimeTableTimeItem::derivesNothingWhileBlocked()
{
    QVERIFY(m_table->fill({hours(1, 2)}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    QSignalSpy changed(item, SIGNAL(timeInfoChanged(ZvTime)));
    item->setTimeUpdateBlocked(true);
    item->setY(100.0);
    item->updateTimeInfo();
    QCOMPARE(changed.size(), 0);
    QCOMPARE(textOf(item->timeInfo()), QStringLiteral("01:00:00.000-02:00:00.000 a.xml"));
    item->setTimeUpdateBlocked(false);
    item->updateTimeInfo();
    QCOMPARE(textOf(item->timeInfo()), QStringLiteral("01:30:00.000-02:30:00.000 a.xml"));
    QCOMPARE(changed.size(), 1);
}

void tst_ZvTimeTableTimeItem::setsTimesAndPlaceAtOnceInBrackets()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(3, 4)}));
    ZvTimeTableTimeItem *item = m_table->item(1);
    QSignalSpy changed(item, SIGNAL(timeInfoChanged(ZvTime)));
    item->setTimeUpdateBlocked(true);
    item->setPositionLimited(false);
    item->setItemHeight(30.0);
    item->setPos(10.0, yOf(QStringLiteral("00:30:00")));
    item->setPositionLimited(true);
    item->setTimeUpdateBlocked(false);
    QCOMPARE(changed.size(), 0);
    item->updateTimeInfo();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(textOf(item->timeInfo()), QStringLiteral("00:30:00.000-01:00:00.000 a.xml"));
}

void tst_ZvTimeTableTimeItem::keepsInTheDay()
{
    QVERIFY(m_table->fill({hours(1, 2)}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    item->setY(-1e9);
    QCOMPARE(item->y(), 10.0);
    QCOMPARE(textOf(item->timeInfo()), QStringLiteral("00:00:00.000-01:00:00.000 a.xml"));
    item->setY(1390.0001);
    QCOMPARE(item->y(), 1390.0);
    QCOMPARE(item->endTime(), TimeAxis::endOfDay());
}

void tst_ZvTimeTableTimeItem::keepsBetweenItsNeighbours()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(4, 5), hours(8, 9)}));
    ZvTimeTableTimeItem *item = m_table->item(1);
    item->setY(0.0);
    QCOMPARE(textOf(item->timeInfo()), QStringLiteral("02:00:00.000-03:00:00.000 a.xml"));
    item->setY(1400.0);
    QCOMPARE(textOf(item->timeInfo()), QStringLiteral("07:00:00.000-08:00:00.000 a.xml"));
    QCOMPARE(m_table->item(0)->y(), yOf(QStringLiteral("01:00:00")));
    QCOMPARE(m_table->item(2)->y(), yOf(QStringLiteral("08:00:00")));
}

void tst_ZvTimeTableTimeItem::lowerBoundWinsInASmallGap()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(3, 4), hours(5, 6)}));
    ZvTimeTableTimeItem *item = m_table->item(1);
    item->setItemHeight(240.0);
    item->setY(item->y() + 1.0);
    // Four hours before 05:00: over the band above, which ends at 02:00.
    QCOMPARE(item->y(), yOf(QStringLiteral("01:00:00")));
    QVERIFY(item->y() < item->upperBound());
    item->setY(1400.0);
    QCOMPARE(item->y(), yOf(QStringLiteral("01:00:00")));
}

void tst_ZvTimeTableTimeItem::keepsItsLeftEdge()
{
    QVERIFY(m_table->fill({hours(1, 2)}));
    m_table->item(0)->setPos(500.0, 200.0);
    QCOMPARE(m_table->item(0)->pos(), QPointF(10.0, 200.0));
    m_table->item(0)->setLeft(25.0);
    m_table->item(0)->moveBy(0.0, 1.0);
    QCOMPARE(m_table->item(0)->pos(), QPointF(25.0, 201.0));
}

void tst_ZvTimeTableTimeItem::movesFreelyWithoutLimit()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(3, 4)}));
    m_table->item(1)->setPositionLimited(false);
    m_table->item(1)->setPos(33.0, yOf(QStringLiteral("00:30:00")));
    QCOMPARE(m_table->item(1)->pos(), QPointF(33.0, yOf(QStringLiteral("00:30:00"))));
    QCOMPARE(m_table->item(1)->startTime(), QTime(0, 30));
}

void tst_ZvTimeTableTimeItem::movesFreelyOutsideAScene()
{
    ZvTimeTableTimeItem item;
    item.setPos(-5.0, 5000.0);
    QCOMPARE(item.pos(), QPointF(-5.0, 5000.0));
    QVERIFY(item.timeInfo().isEmpty());
}

void tst_ZvTimeTableTimeItem::knowsItsBounds()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(4, 5), hours(8, 24)}));
    QCOMPARE(m_table->item(0)->upperBound(), 10.0);
    QCOMPARE(m_table->item(0)->lowerBound(), yOf(QStringLiteral("04:00:00")));
    QCOMPARE(m_table->item(1)->upperBound(), yOf(QStringLiteral("02:00:00")));
    QCOMPARE(m_table->item(1)->lowerBound(), yOf(QStringLiteral("08:00:00")));
    QCOMPARE(m_table->item(2)->upperBound(), yOf(QStringLiteral("05:00:00")));
    QCOMPARE(m_table->item(2)->lowerBound(), 1450.0);
}

void tst_ZvTimeTableTimeItem::knowsTheTimesOfItsBounds()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(4, 5), hours(8, 24)}));
    QCOMPARE(m_table->item(0)->minimumStartTime(), QTime(0, 0));
    QCOMPARE(m_table->item(0)->maximumEndTime(), QTime(4, 0));
    QCOMPARE(m_table->item(1)->minimumStartTime(), QTime(2, 0));
    QCOMPARE(m_table->item(1)->maximumEndTime(), QTime(8, 0));
    QCOMPARE(m_table->item(2)->maximumEndTime(), QTime(23, 59, 59, 999));

    // Truncated like all other times.
    m_table->item(0)->setTimeInfo(band(QStringLiteral("00:01:00"), QStringLiteral("00:04:05")));
    const double bottom = m_table->item(0)->y() + m_table->item(0)->itemHeight();
    QCOMPARE(m_table->item(1)->minimumStartTime(), derivedStart(bottom));
    m_table->item(1)->setTopMargin(0.0);
    QCOMPARE(m_table->item(1)->maximumEndTime(), QTime(8, 10));
}

void tst_ZvTimeTableTimeItem::numbersTheChain()
{
    ZvTimeTableTimeItem items[3];
    for (int i = 0; i < 2; ++i) {
        items[i].setNextItem(&items[i + 1]);
        items[i + 1].setPreviousItem(&items[i]);
    }
    items[0].renumber();
    for (int i = 0; i < 3; ++i)
        QCOMPARE(items[i].index(), i);

    // From an item in the middle on, what stands before it counts.
    items[0].setIndex(7);
    items[1].renumber();
    QCOMPARE(items[0].index(), 7);
    QCOMPARE(items[1].index(), 8);
    QCOMPARE(items[2].index(), 9);
    QCOMPARE(items[2].zValue(), 9.0);
    items[0].setNextItem(nullptr);
    items[1].setPreviousItem(nullptr);
    items[1].renumber();
    QCOMPARE(items[1].index(), 0);
    QCOMPARE(items[2].index(), 1);
}

void tst_ZvTimeTableTimeItem::showsItsNumber()
{
    QVERIFY(m_table->fill({hours(5, 6), hours(1, 2), hours(3, 4)}));
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(m_table->item(i)->index(), i);
        QCOMPARE(ZavoTest::indexLabelOf(m_table->item(i))->toPlainText(),
                 QStringLiteral("#%1").arg(i));
        QCOMPARE(m_table->item(i)->zValue(), double(i));
    }
    QVERIFY(m_table->fill({hours(5, 6)}));
    QCOMPARE(ZavoTest::indexLabelOf(m_table->item(0))->toPlainText(), QStringLiteral("#0"));
}

void tst_ZvTimeTableTimeItem::leavesTheChainWhenItDies()
{
    ZvTimeTableTimeItem first;
    auto *second = new ZvTimeTableTimeItem;
    ZvTimeTableTimeItem third;
    first.setNextItem(second);
    second->setPreviousItem(&first);
    second->setNextItem(&third);
    third.setPreviousItem(second);
    first.renumber();
    QCOMPARE(third.index(), 2);
    delete second;
    QCOMPARE(first.nextItem(), &third);
    QCOMPARE(third.previousItem(), &first);
    QCOMPARE(third.index(), 1);
    QCOMPARE(ZavoTest::indexLabelOf(&third)->toPlainText(), QStringLiteral("#1"));
}

void tst_ZvTimeTableTimeItem::standsAboveItsNeighboursWhenSelected()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(3, 4), hours(5, 6)}));
    m_table->select({1});
    QCOMPARE(m_table->item(0)->zValue(), 0.0);
    QCOMPARE(m_table->item(1)->zValue(), 10001.0);
    QCOMPARE(m_table->item(2)->zValue(), 2.0);
    m_table->item(1)->setIndex(5);
    QCOMPARE(m_table->item(1)->zValue(), 10005.0);
    m_table->item(1)->setSelected(false);
    QCOMPARE(m_table->item(1)->zValue(), 5.0);
}

void tst_ZvTimeTableTimeItem::showsTheMarkWhenSelected()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(3, 4)}));
    QVERIFY(!ZavoTest::markOf(m_table->item(0))->isVisible());
    m_table->select({0, 1});
    QVERIFY(ZavoTest::markOf(m_table->item(0))->isVisible());
    QVERIFY(ZavoTest::innerMarkOf(m_table->item(1))->isVisible());
    m_table->item(0)->setSelected(false);
    QVERIFY(!ZavoTest::markOf(m_table->item(0))->isVisible());
    QVERIFY(!ZavoTest::innerMarkOf(m_table->item(0))->isVisible());
    QVERIFY(ZavoTest::markOf(m_table->item(1))->isVisible());
}

void tst_ZvTimeTableTimeItem::hidesHandlesWhenDeselected()
{
    QVERIFY(m_table->fill({hours(1, 2)}));
    m_table->select({0});
    QVERIFY(m_table->item(0)->topHandle()->isVisible());
    QVERIFY(m_table->item(0)->bottomHandle()->isVisible());
    m_table->item(0)->setSelected(false);
    QVERIFY(!m_table->item(0)->topHandle()->isVisible());
    QVERIFY(!m_table->item(0)->bottomHandle()->isVisible());
}

void tst_ZvTimeTableTimeItem::secondSelectionHidesTheHandles()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(3, 4)}));
    m_table->select({0});
    QVERIFY(m_table->item(0)->topHandle()->isVisible());
    m_table->item(1)->setSelected(true);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!m_table->item(i)->topHandle()->isVisible());
        QVERIFY(!m_table->item(i)->bottomHandle()->isVisible());
    }
}

void tst_ZvTimeTableTimeItem::takesASelectionAsASlot()
{
    QVERIFY(m_table->fill({hours(1, 2)}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    QVERIFY(QMetaObject::invokeMethod(item, "onSelectionChanged"));
    QVERIFY(ZavoTest::markOf(item)->isVisible());
    // The mark follows the argument, the place in the stack the item.
    QCOMPARE(item->zValue(), 0.0);
    QVERIFY(!item->topHandle()->isVisible());
    QVERIFY(QMetaObject::invokeMethod(item, "setResizeHandleVisible", Q_ARG(bool, true)));
    QVERIFY(item->topHandle()->isVisible() && item->bottomHandle()->isVisible());
    QVERIFY(QMetaObject::invokeMethod(item, "onSelectionChanged", Q_ARG(bool, false)));
    QVERIFY(!ZavoTest::markOf(item)->isVisible());
    QVERIFY(!item->topHandle()->isVisible() && !item->bottomHandle()->isVisible());
}

void tst_ZvTimeTableTimeItem::rightPressLeavesTheSelection()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(3, 4)}));
    m_table->scrollTo(10.0);
    SceneMouse mouse(m_table->view());
    mouse.press(QPointF(200.0, 90.0), Qt::RightButton);
    QVERIFY(!m_table->item(0)->isSelected());
    mouse.release(Qt::RightButton);
    QVERIFY(!m_table->item(0)->isSelected());
}

void tst_ZvTimeTableTimeItem::rightPressKeepsAGroup()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(3, 4), hours(5, 6)}));
    m_table->scrollTo(10.0);
    m_table->select({0, 1});
    SceneMouse mouse(m_table->view());
    for (double y : {90.0, 210.0, 330.0}) {
        mouse.click(QPointF(200.0, y), Qt::RightButton);
        QVERIFY(m_table->item(0)->isSelected() && m_table->item(1)->isSelected());
        QVERIFY(!m_table->item(2)->isSelected());
    }
}

void tst_ZvTimeTableTimeItem::leftPressSelects()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(3, 4)}));
    m_table->scrollTo(10.0);
    SceneMouse mouse(m_table->view());
    mouse.click(QPointF(200.0, 90.0));
    QVERIFY(m_table->item(0)->isSelected() && !m_table->item(1)->isSelected());
    mouse.click(QPointF(200.0, 210.0));
    QVERIFY(!m_table->item(0)->isSelected() && m_table->item(1)->isSelected());
    mouse.setModifiers(Qt::ControlModifier);
    mouse.click(QPointF(200.0, 90.0));
    QVERIFY(m_table->item(0)->isSelected() && m_table->item(1)->isSelected());
}

void tst_ZvTimeTableTimeItem::asksTheStripForTheSelection()
{
    QVERIFY(m_table->fill({hours(1, 2), hours(3, 4), hours(5, 6)}));
    m_table->select({0, 2});
    int count = -1;
    int *answer = &count;
    QVERIFY(QMetaObject::invokeMethod(m_table->item(1), "requestGettingTimeItemSelectionCount",
                                      Q_ARG(int *, answer)));
    QCOMPARE(count, 2);
}

QTEST_MAIN(tst_ZvTimeTableTimeItem)
#include "tst_zvtimetabletimeitem.moc"
