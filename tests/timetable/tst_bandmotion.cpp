#include "BandText.h"
#include "timetable/BandMotion.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Zavo;
using ZavoTest::band;
using ZavoTest::TimeTableFixture;
using ZavoTest::yOf;

namespace {

constexpr double fiveSeconds = 0.08333333333333333; // scene units
constexpr double second = 1.0 / 60.0;               // scene units

/// A at 08:00, B at 09:30, C at 11:00, D at 12:00 adjoining C; an hour each, the last up to 13:00.
QList<ZvTime> fourBands()
{
    return {band("08:00:00", "09:00:00", "A"), band("09:30:00", "10:30:00", "B"),
            band("11:00:00", "12:00:00", "C"), band("12:00:00", "13:00:00", "D")};
}

bool isNear(double a, double b)
{
    return qAbs(a - b) < 1e-9;
}

} // namespace

class tst_BandMotion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void movesBlocks_data();
    void movesBlocks();
    void singleBandIsClamped_data();
    void singleBandIsClamped();
    void overlappingBlockIsPushedApart();
    void topEdge_data();
    void topEdge();
    void bottomEdge_data();
    void bottomEdge();
    void randomMovesKeepOrderAndGaps();
};

void tst_BandMotion::movesBlocks_data()
{
    QTest::addColumn<QList<int>>("moved");
    QTest::addColumn<double>("dy");
    QTest::addColumn<double>("distance");
    QTest::addColumn<bool>("hasMoved");

    QTest::newRow("A, B: free way down") << QList<int>{0, 1} << 10.0 << 10.0 << true;
    QTest::newRow("A, B down to C") << QList<int>{0, 1} << 100.0 << 30.0 << true;
    QTest::newRow("A, B up to midnight") << QList<int>{0, 1} << -1000.0 << -480.0 << true;
    QTest::newRow("A, C: B limits the way down") << QList<int>{0, 2} << 5.0 << 0.0 << false;
    QTest::newRow("A, C: B limits the way up") << QList<int>{0, 2} << -100.0 << -30.0 << true;
    QTest::newRow("A, D: gap after A limits") << QList<int>{0, 3} << 100.0 << 30.0 << true;
    QTest::newRow("A, D: C limits the way up") << QList<int>{0, 3} << -5.0 << 0.0 << false;
    QTest::newRow("adjoining C, D down to the day's end")
        << QList<int>{2, 3} << 2000.0 << 660.0 << true;
    QTest::newRow("adjoining C, D up to B") << QList<int>{2, 3} << -45.0 << -30.0 << true;
    QTest::newRow("exactly the room") << QList<int>{2, 3} << -30.0 << -30.0 << true;
    QTest::newRow("all down") << QList<int>{0, 1, 2, 3} << 2000.0 << 660.0 << true;
    QTest::newRow("all up") << QList<int>{0, 1, 2, 3} << -2000.0 << -480.0 << true;
    QTest::newRow("not at all") << QList<int>{0, 1} << 0.0 << 0.0 << false;
}

void tst_BandMotion::movesBlocks()
{
    QFETCH(QList<int>, moved);
    QFETCH(double, dy);
    QFETCH(double, distance);
    QFETCH(bool, hasMoved);
    TimeTableFixture table;
    QVERIFY(table.fill(fourBands()));
    QList<ZvTimeTableTimeItem *> items;
    for (int index : qAsConst(moved))
        items.append(table.item(index));
    QList<double> before;
    for (int i = 0; i < table.count(); ++i)
        before.append(table.item(i)->y());

    QCOMPARE(BandMotion::move(items, dy), hasMoved);
    for (int i = 0; i < table.count(); ++i) {
        QVERIFY2(isNear(table.item(i)->y(), before.at(i) + (moved.contains(i) ? distance : 0.0)),
                 qPrintable(QStringLiteral("band %1 at %2").arg(i).arg(table.item(i)->y())));
        QCOMPARE(table.item(i)->itemHeight(), 60.0);
    }
}

void tst_BandMotion::singleBandIsClamped_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<double>("dy");
    QTest::addColumn<double>("distance");
    QTest::newRow("free") << 1 << 12.5 << 12.5;
    QTest::newRow("down to the neighbour") << 1 << 500.0 << 30.0;
    QTest::newRow("up to the neighbour") << 1 << -500.0 << -30.0;
    QTest::newRow("up to midnight") << 0 << -500.0 << -480.0;
    QTest::newRow("down to the day's end") << 3 << 5000.0 << 660.0;
    QTest::newRow("between neighbours without room") << 2 << 5.0 << 0.0;
}

void tst_BandMotion::singleBandIsClamped()
{
    QFETCH(int, index);
    QFETCH(double, dy);
    QFETCH(double, distance);
    TimeTableFixture table;
    QVERIFY(table.fill(fourBands()));
    const double before = table.item(index)->y();
    // Reports a move even if nothing was left of it.
    QVERIFY(BandMotion::move({table.item(index)}, dy));
    QVERIFY(isNear(table.item(index)->y(), before + distance));
}

void tst_BandMotion::overlappingBlockIsPushedApart()
{
    TimeTableFixture table;
    QVERIFY(table.fill(fourBands()));
    // D starts a minute inside C: the room below C is negative and wins over a small step down.
    table.strip()->setTimeItemTimes({{3, band("11:59:00", "13:00:00", "D")}});
    QVERIFY(BandMotion::move({table.item(0), table.item(2)}, 5.0));
    QVERIFY(isNear(table.item(2)->y(), yOf("10:59:00")));
    QVERIFY(isNear(table.item(0)->y(), yOf("07:59:00")));
}

void tst_BandMotion::topEdge_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<double>("dy");
    QTest::addColumn<double>("top");
    QTest::addColumn<double>("height");
    const double bottom = yOf("10:30:00");
    QTest::newRow("up") << 1 << -10.0 << yOf("09:20:00") << 70.0;
    QTest::newRow("up to the neighbour") << 1 << -100.0 << yOf("09:00:00") << 90.0;
    QTest::newRow("up to midnight") << 0 << -1000.0 << 10.0 << 540.0;
    QTest::newRow("up with no room") << 3 << -1.0 << yOf("12:00:00") << 60.0;
    QTest::newRow("down") << 1 << 10.0 << yOf("09:40:00") << 50.0;
    QTest::newRow("down to five seconds")
        << 1 << 60.0 - fiveSeconds << bottom - fiveSeconds << fiveSeconds;
    QTest::newRow("down past five seconds") << 1 << 59.99 << bottom - fiveSeconds << fiveSeconds;
    QTest::newRow("down past the bottom") << 1 << 600.0 << bottom - fiveSeconds << fiveSeconds;
}

void tst_BandMotion::topEdge()
{
    QFETCH(int, index);
    QFETCH(double, dy);
    QFETCH(double, top);
    QFETCH(double, height);
    TimeTableFixture table;
    QVERIFY(table.fill(fourBands()));
    const BandMotion::Span span = BandMotion::spanWithTopMoved(*table.item(index), dy);
    QVERIFY(isNear(span.top, top));
    QVERIFY(isNear(span.height, height));
    QVERIFY(
        isNear(span.top + span.height, table.item(index)->y() + table.item(index)->itemHeight()));
    QVERIFY(span.height >= fiveSeconds);
}

void tst_BandMotion::bottomEdge_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<double>("dy");
    QTest::addColumn<double>("height");
    QTest::newRow("up") << 1 << -10.0 << 50.0;
    QTest::newRow("up to five seconds") << 1 << -60.0 + fiveSeconds << fiveSeconds;
    QTest::newRow("up past five seconds") << 1 << -60.0 + 4.0 * second << fiveSeconds;
    QTest::newRow("up past the top") << 1 << -600.0 << fiveSeconds;
    QTest::newRow("down") << 1 << 10.0 << 70.0;
    QTest::newRow("down to the neighbour") << 1 << 30.0 << 90.0;
    QTest::newRow("down past the neighbour") << 1 << 31.0 << 90.0;
    QTest::newRow("down with no room") << 2 << 1.0 << 60.0;
    QTest::newRow("down past the day's end") << 3 << 5000.0 << 720.0;
}

void tst_BandMotion::bottomEdge()
{
    QFETCH(int, index);
    QFETCH(double, dy);
    QFETCH(double, height);
    TimeTableFixture table;
    QVERIFY(table.fill(fourBands()));
    const BandMotion::Span span = BandMotion::spanWithBottomMoved(*table.item(index), dy);
    QCOMPARE(span.top, table.item(index)->y());
    QVERIFY(isNear(span.height, height));
}

void tst_BandMotion::randomMovesKeepOrderAndGaps()
{
    TimeTableFixture table;
    QList<ZvTime> times;
    for (int hour = 0; hour < 24; hour += 2) {
        times.append(ZvTime(QTime(hour, 0), QTime(hour, 30), QStringLiteral("a.xml")));
        times.append(ZvTime(QTime(hour, 30), QTime(hour, 50), QStringLiteral("b.xml")));
    }
    QVERIFY(table.fill(times));
    QRandomGenerator random(99);
    for (int round = 0; round < 3000; ++round) {
        QList<ZvTimeTableTimeItem *> moved;
        for (int i = 0; i < table.count(); ++i) {
            if (random.bounded(4) == 0)
                moved.append(table.item(i));
        }
        if (moved.isEmpty())
            continue;
        const double firstBefore = moved.first()->y();
        const double lastBefore = moved.last()->y();
        BandMotion::move(moved, random.bounded(-40, 41) + random.bounded(1.0));
        // The block keeps its shape, and nothing overlaps or leaves the day.
        QVERIFY(isNear(moved.first()->y() - firstBefore, moved.last()->y() - lastBefore));
        double bottom = 10.0;
        for (int i = 0; i < table.count(); ++i) {
            QVERIFY(table.item(i)->y() >= bottom - 1e-9);
            bottom = table.item(i)->y() + table.item(i)->itemHeight();
        }
        QVERIFY(bottom <= 1450.0 + 1e-9);
    }
}

QTEST_MAIN(tst_BandMotion)
#include "tst_bandmotion.moc"
