#include "TimeTableFixture.h"

#include <QPointer>
#include <QRandomGenerator>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

/// @p count bands of a minute from @p firstMinute on.
QList<ZvTime> minutes(int firstMinute, int count)
{
    QList<ZvTime> times;
    for (int minute = firstMinute; minute < firstMinute + count; ++minute)
        times.append({QTime(0, 0).addSecs(60 * minute), QTime(0, 0).addSecs(60 * minute + 60),
                      QStringLiteral("stage-%1.xml").arg(minute % 7)});
    return times;
}

/// What is wrong with the labels of the table; empty if nothing is.
QString faultOf(const TimeTableFixture &table)
{
    for (int i = 0; i < table.count(); ++i) {
        const ZvTimeTableTimeItem *item = table.item(i);
        const QList<QGraphicsItem *> children = item->childItems();
        const ZvTimeTableTimeItemLabel *index = indexLabelOf(item);
        if (children.size() != 5 || item->index() != i)
            return QStringLiteral("band %1 is not whole").arg(i);
        if (children.first() != stageLabelOf(item) || children.last() != index)
            return QStringLiteral("band %1 has its children in another order").arg(i);
        if (index->toPlainText() != QStringLiteral("#%1").arg(i) || !index->pos().isNull())
            return QStringLiteral("band %1 reads %2").arg(i).arg(index->toPlainText());
        if (stageLabelOf(item)->toPlainText() != item->timeInfo().stageName())
            return QStringLiteral("band %1 names another stage").arg(i);
    }
    return {};
}

} // namespace

class tst_IndexLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areTrueAfterBandsCameInFront();
    void areTrueAfterTheFirstBandsWent();
    void areTrueInARandomOrderOfChanges();
    void areTrueBehindAMessage();
    void leaveNoLabelBehindInTheScene();
    void goWithTheirBand();
};

void tst_IndexLabels::areTrueAfterBandsCameInFront()
{
    TimeTableFixture table;
    QVERIFY(table.fill(minutes(100, 50)));
    QCOMPARE(faultOf(table), QString());
    QVERIFY(table.scene()->insertTimeItems(minutes(0, 30)));
    QCOMPARE(table.count(), 80);
    QCOMPARE(faultOf(table), QString());
    QVERIFY(table.scene()->insertTimeItems(minutes(60, 5)));
    QCOMPARE(faultOf(table), QString());
}

void tst_IndexLabels::areTrueAfterTheFirstBandsWent()
{
    TimeTableFixture table;
    const QList<ZvTime> times = minutes(0, 60);
    QVERIFY(table.fill(times));
    table.scene()->removeTimeItems(times.mid(0, 25));
    QCOMPARE(table.count(), 35);
    QCOMPARE(faultOf(table), QString());
    table.scene()->removeTimeItems({times.last(), times.at(30), times.at(40)});
    QCOMPARE(table.count(), 32);
    QCOMPARE(faultOf(table), QString());
}

void tst_IndexLabels::areTrueInARandomOrderOfChanges()
{
    TimeTableFixture table;
    QRandomGenerator random(20270101);
    QSet<int> taken;
    for (int step = 0; step < 200; ++step) {
        QList<ZvTime> coming;
        QList<ZvTime> going;
        for (int i = 0; i < 8; ++i) {
            const int minute = random.bounded(240);
            if (taken.remove(minute)) {
                going += minutes(minute, 1);
            } else {
                taken.insert(minute);
                coming += minutes(minute, 1);
            }
        }
        table.scene()->insertTimeItems(coming);
        table.scene()->removeTimeItems(going);
        QCOMPARE(table.count(), taken.size());
        QCOMPARE(faultOf(table), QString());
    }
}

void tst_IndexLabels::areTrueBehindAMessage()
{
    TimeTableFixture table;
    QVERIFY(table.fill(minutes(100, 20)));
    QStringList faults;
    connect(table.strip(), &ZvTimeTableTimeZoneItem::criticalErrorOccured, this,
            [&] { faults.append(faultOf(table)); });
    const QList<ZvTime> refused{band(QStringLiteral("01:45:00"), QStringLiteral("02:01:00"))};
    QVERIFY(!table.scene()->insertTimeItems(minutes(0, 10) + refused + minutes(20, 10)));
    QCOMPARE(faults, QStringList{QString()});
    QCOMPARE(table.count(), 40);
    QCOMPARE(faultOf(table), QString());
}

void tst_IndexLabels::leaveNoLabelBehindInTheScene()
{
    TimeTableFixture table;
    const int empty = table.scene()->items().size();
    const QList<ZvTime> times = minutes(0, 40);
    QVERIFY(table.fill(times));
    QCOMPARE(table.scene()->items().size(), empty + 7 * 40);
    table.scene()->removeTimeItems(times.mid(0, 20));
    QCOMPARE(table.scene()->items().size(), empty + 7 * 20);
    table.scene()->insertTimeItems(times.mid(0, 10));
    QCOMPARE(table.scene()->items().size(), empty + 7 * 30);
    table.scene()->removeAllTimeItems();
    QCOMPARE(table.scene()->items().size(), empty);
}

void tst_IndexLabels::goWithTheirBand()
{
    TimeTableFixture table;
    QVERIFY(table.fill(minutes(0, 3)));
    const QPointer<ZvTimeTableTimeItem> band = table.item(1);
    const QPointer<ZvTimeTableTimeItemResizeHandle> handle = table.item(1)->topHandle();
    table.scene()->removeAllTimeItems();
    QVERIFY(band.isNull());
    QVERIFY(handle.isNull());
    QVERIFY(table.fill(minutes(0, 3)));
    QVERIFY(band.isNull());
    QCOMPARE(faultOf(table), QString());
}

QTEST_MAIN(tst_IndexLabels)
#include "tst_indexlabels.moc"
